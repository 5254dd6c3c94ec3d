#pragma once

#include <QtCore/QByteArray>

/// What holds for every reply. Each of these ends the program if it does not.
namespace fuzz {

/// All records that can be made of a reply: lists have one entry for each element, in document order; copies hold what
/// their source does, but for what the headers say is lost; what is printed for a request is what the values give.
void checkRecords(const QByteArray &reply);

/// The verdict: it has a sentence, copies give the same, and other prefixes do not change it.
void checkFault(const QByteArray &reply);

} // namespace fuzz
