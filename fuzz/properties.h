#pragma once

#include <QtCore/QByteArray>

/// What holds for every reply. Each of these ends the program if it does not.
namespace fuzz {

/// All records that can be made of a reply: what holds for lists; copies hold what their source does, but for what the
/// headers say is lost; what is printed for a request is what the values give.
void checkRecords(const QByteArray &reply);

/// All list records, which are read from views: they have one entry for each node that getAll() gives, in document
/// order, and it holds what the constructor makes of the node. A view shows what the node at the same place holds.
void checkLists(const QByteArray &reply);

/// The verdict: it has a sentence, copies give the same, and other prefixes do not change it.
void checkFault(const QByteArray &reply);

} // namespace fuzz
