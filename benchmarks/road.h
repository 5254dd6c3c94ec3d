#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace bench {

/// From the bytes of a reply to a record and on to its destruction.
using Read = std::function<void(const QByteArray &reply)>;

/// The most that a task may cost, as multiples of its yardstick.
struct Limits
{
    std::optional<double> time;
    std::optional<double> instructions = {};
};

/// Compares \a read on \a reply with what `QDomDocument::setContent` and the document's destruction cost on the same
/// bytes.
void addRoad(const std::string &name, const QByteArray &reply, const Limits &limits, const Read &read);

/// Compares \a read on \a large with the same on \a small. A limit of the time would be one of the machine: it takes
/// longer where the large one no longer fits its caches.
void addGrowth(const std::string &name, const QByteArray &small, const QByteArray &large, const Limits &limits,
               const Read &read);

/// Times all in one run, counts their instructions if valgrind is there, and prints a table. False if one is over a
/// limit.
bool runAll(std::ostream &output);

/// For the run under valgrind that counts instructions: runs the comparisons of these \a names.
void runCounted(const QStringList &names);

/// The bytes of a file below samples/. Ends the program if there is no such file.
QByteArray sample(const QString &path);

/// Ends the program with \a what unless \a holds: a cost is worth nothing where the result is wrong.
void require(bool holds, const std::string &what);

} // namespace bench
