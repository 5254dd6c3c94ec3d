#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
#include <iosfwd>
#include <string>

namespace bench {

/// One way from the bytes of a reply to a record and on to its destruction, timed against its yardstick: what
/// `QDomDocument::setContent` and the document's destruction cost on the same bytes in the same run.
struct Road
{
    std::string name;
    QByteArray reply;
    double limit; ///< the most that the road may cost, as a fraction of the yardstick
    std::function<void(const QByteArray &reply)> run;
};

void add(const Road &road);

/// Runs all roads and prints a table of them. False if one costs more than its limit.
bool runAll(std::ostream &output);

/// The bytes of a file below samples/. Ends the program if there is no such file.
QByteArray sample(const QString &path);

/// Ends the program with \a what unless \a holds: a time is worth nothing where the result is wrong.
void require(bool holds, const std::string &what);

} // namespace bench
