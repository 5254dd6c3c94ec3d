#include "report.h"
#include "support/terminal.h"

#include <QtCore/QStringList>

#include <cstdlib>

namespace client {
namespace {

/// The width of each column but the last. A longer text moves the rest of its line.
const std::pair<const char *, int> columns[] = {
    {"ADDRESS", 22}, {"MANUFACTURER", 16}, {"MODEL", 18}, {"FIRMWARE", 20}, {"SERIAL NUMBER", 26}, {"CLOCK", 18},
};
const char *const lastColumn = "NOT ANSWERED";

QString lineOf(const QStringList &cells)
{
    QString line;
    qsizetype index = 0;
    for (const auto &[title, width] : columns)
        line += example::printable(cells.value(index++)).leftJustified(width) + ' ';
    line += example::printable(cells.value(index));
    while (line.endsWith(' '))
        line.chop(1);
    return line + '\n';
}

QString clockText(const std::optional<ClockReading> &reading)
{
    if (!reading || !reading->secondsAhead)
        return {};
    if (reading->secondsAhead == 0)
        return "right";
    return duration(std::llabs(*reading->secondsAhead)) + (*reading->secondsAhead > 0 ? " ahead" : " behind");
}

} // namespace

QString tableHeading()
{
    QStringList titles;
    for (const auto &[title, width] : columns)
        titles += title;
    return lineOf(titles + QStringList(lastColumn));
}

QString tableLineOf(const Report &report)
{
    const auto information = report.information.record.value_or(vorn::OnvifDeviceInformation());
    return lineOf({report.address, information.manufacturer, information.model, information.firmwareVersion,
                   information.serialNumber, clockText(report.clock.record), linesOf(report.failures).join(' ')});
}

} // namespace client
