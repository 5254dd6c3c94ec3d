#include "printer.h"

#include "jsonparts.h"
#include "support/terminal.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace client {
namespace {

QJsonObject jsonOf(const FoundCamera &found)
{
    return {{"sender", found.sender.toString()},
            {"addresses", QJsonArray::fromStringList(found.addresses)},
            {"name", orNull(found.name)},
            {"hardware", orNull(found.hardware)},
            {"types", QJsonArray::fromStringList(found.types)},
            {"locations", QJsonArray::fromStringList(found.locations)},
            {"endpoint", orNull(found.endpoint)}};
}

QString textOf(const FoundCamera &found)
{
    const QString addresses = found.addresses.isEmpty() ? "without an address" : found.addresses.join(", ");
    const QString types = found.types.isEmpty() ? QString() : QString(" (%1)").arg(found.types.join(", "));
    return QString("%1: %2%3\n")
        .arg(example::printable(addresses), example::printable(found.name), example::printable(types));
}

} // namespace

Printer::Printer(Form form, bool quiet)
    : m_form(form)
    , m_quiet(quiet)
{
}

void Printer::show(const FoundCamera &found)
{
    if (m_form == Form::Json)
        return write(example::jsonLine({{"found", jsonOf(found)}}));
    if (m_form == Form::Table)
        return;
    separateFrom(Last::Camera);
    write(textOf(found));
}

void Printer::show(const Report &report)
{
    for (const QString &line : linesOf(report.failures))
        complain(QString("%1: %2").arg(report.address, line));
    if (m_form == Form::Json)
        return write(example::jsonLine(jsonOf(report)));
    if (m_form == Form::Table) {
        if (m_last == Last::Nothing)
            write(tableHeading());
        m_last = Last::Report;
        return write(tableLineOf(report));
    }
    if (report.isEmpty())
        return;
    separateFrom(Last::Report);
    write(textOf(report));
}

void Printer::show(const QString &address, const QByteArray &message)
{
    if (m_form == Form::Json)
        write(example::jsonLine({{"address", address}, {"request", QString::fromUtf8(message)}}));
    else
        write(example::printable(QString::fromUtf8(message)) + '\n');
}

void Printer::progress(const QString &line)
{
    if (m_quiet)
        return;
    m_line.clear();
    example::note("camera-report: " + example::printable(line));
    m_line.set(m_progress);
}

void Printer::progressOf(const QString &text)
{
    if (!hasProgressLine())
        return;
    m_progress = text;
    m_line.set(text);
}

void Printer::complain(const QString &sentence)
{
    m_line.clear();
    example::note("camera-report: " + example::printable(sentence));
    if (!m_progress.isEmpty())
        m_line.set(m_progress);
}

void Printer::write(const QString &text)
{
    m_line.clear();
    example::print(text);
    (void)example::isOutputWritten(); // so that each stands there when it is complete; whether all does is asked at the
                                      // end
    if (!m_progress.isEmpty())
        m_line.set(m_progress);
}

void Printer::separateFrom(Last next)
{
    if (m_last == Last::Report || (m_last == Last::Camera && next == Last::Report))
        write("\n");
    m_last = next;
}

} // namespace client
