#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
#include <iosfwd>
#include <string>

namespace bench {

/// From the bytes of a reply to a record and on to its destruction.
using Read = std::function<void(const QByteArray &reply)>;

/// Times \a read on \a reply against what `QDomDocument::setContent` and the document's destruction cost on the same
/// bytes. It may cost at most \a limit of that.
void addRoad(const std::string &name, const QByteArray &reply, double limit, const Read &read);

/// Times \a read on \a large against the same on \a small. It may cost at most \a limit times as much.
void addGrowth(const std::string &name, const QByteArray &small, const QByteArray &large, double limit,
               const Read &read);

/// Runs all in one run and prints a table. False if one is over its limit.
bool runAll(std::ostream &output);

/// The bytes of a file below samples/. Ends the program if there is no such file.
QByteArray sample(const QString &path);

/// Ends the program with \a what unless \a holds: a time is worth nothing where the result is wrong.
void require(bool holds, const std::string &what);

} // namespace bench
