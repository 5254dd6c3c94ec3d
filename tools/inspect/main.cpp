// onvif-inspect: shows what the library makes of a reply.

#include "inspect/outline.h"
#include "inspect/reply.h"

#include <vorn/onvif/version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cstdio>
#include <optional>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

enum ExitCode : int {
    Read = 0, ///< A record was read.
    NothingRead =
        1,         ///< The reply is a fault or holds nothing that the library reads, or of which a request can be made.
    CannotRun = 2, ///< The command line is wrong or a file cannot be read.
};

void print(std::FILE *stream, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    // Whether all went out is asked once, at the end.
    (void)std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stream);
}

void complain(const QString &text)
{
    print(stderr, QLatin1String("onvif-inspect: ") + text + QLatin1Char('\n'));
}

bool isOutputATerminal()
{
#ifdef Q_OS_UNIX
    return isatty(STDOUT_FILENO) != 0;
#else
    return false;
#endif
}

inspect::Palette paletteForOutput()
{
    if (isOutputATerminal() && qEnvironmentVariableIsEmpty("NO_COLOR"))
        return {QStringLiteral("\033[1m"), QStringLiteral("\033[36m"), QStringLiteral("\033[0m")};
    return {};
}

bool open(QFile &file)
{
    if (file.fileName() == QLatin1String("-"))
        return file.open(stdin, QIODevice::ReadOnly);
    return file.open(QIODevice::ReadOnly);
}

/// The bytes of a file; nothing, after a complaint, if it cannot be read.
std::optional<QByteArray> contentsOf(const QString &fileName)
{
    QFile file(fileName);
    if (open(file)) {
        QByteArray bytes = file.readAll();
        if (file.error() == QFileDevice::NoError)
            return bytes;
    }
    complain(QStringLiteral("cannot read %1: %2. Check the name and the permissions.")
                 .arg(inspect::quoted(fileName), file.errorString()));
    return std::nullopt;
}

QString asJson(const QString &fileName, const inspect::Reply &reply)
{
    const QString content = reply.isFault ? QStringLiteral("fault") : QStringLiteral("record");
    QJsonObject json{{QStringLiteral("file"), fileName},
                     {QStringLiteral("reply"), reply.kind},
                     {content, reply.record ? reply.record->toJson() : QJsonValue()}};
    if (!reply.remark.isEmpty())
        json.insert(QStringLiteral("remark"), reply.remark);
    if (reply.tree)
        json.insert(QStringLiteral("tree"), reply.tree->toJson());
    return inspect::jsonLine(json) + QLatin1Char('\n');
}

QString asOutline(const QString &heading, const inspect::Reply &reply, const inspect::Palette &palette)
{
    QString content;
    if (reply.record)
        content += reply.record->toLines(palette, 1);
    if (!reply.remark.isEmpty())
        content += QLatin1String("\n  ") + reply.remark;
    if (reply.tree)
        content +=
            inspect::Outline(inspect::Outline::Fields{{QStringLiteral("tree"), *reply.tree}}).toLines(palette, 1);
    return heading + palette.heading + inspect::printable(reply.kind) + palette.end + content + QLatin1Char('\n');
}

ExitCode printRequests(const QString &fileName, const inspect::Reply &reply)
{
    const QStringList fragments = reply.requests ? reply.requests() : QStringList();
    for (const QString &fragment : fragments)
        print(stdout, (isOutputATerminal() ? inspect::printable(fragment) : fragment) + QLatin1Char('\n'));
    if (!fragments.isEmpty())
        return Read;
    complain(inspect::printable(fileName) + QLatin1String(" (") + inspect::printable(reply.kind)
             + QLatin1String("): it holds nothing of which a request can be made."));
    return NothingRead;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("onvif-inspect"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VORNSDK_ONVIF_VERSION_STRING));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows what is in replies of ONVIF devices.\n\n"
                       "Exit codes: 0 all replies were read; 1 one is a fault, or holds nothing that can be read or,\n"
                       "with --request, be set; 2 the command line is wrong or a file cannot be read."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Shows the version."));
    const QCommandLineOption json(QStringLiteral("json"),
                                  QStringLiteral("Prints one line of JSON for each reply, for scripts."));
    const QCommandLineOption action(QStringLiteral("action"),
                                    QStringLiteral("The request that the replies answer, such as DeleteUsers. The "
                                                   "sentence of a fault may depend on it."),
                                    QStringLiteral("NAME"));
    const QCommandLineOption request(QStringLiteral("request"),
                                     QStringLiteral("Prints what stands inside a request that sets what was read: of a "
                                                    "GetNetworkInterfaces or GetNetworkDefaultGateway reply."));
    parser.addOptions({help, version, json, request, action});
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("A file with the bytes of a reply; - for standard input."),
                                 QStringLiteral("FILE..."));

    if (!parser.parse(QCoreApplication::arguments())) {
        complain(parser.errorText() + QLatin1String(" Try --help."));
        return CannotRun;
    }
    if (parser.isSet(help)) {
        print(stdout, parser.helpText());
        return Read;
    }
    if (parser.isSet(version)) {
        print(stdout, QStringLiteral("onvif-inspect " VORNSDK_ONVIF_VERSION_STRING "\n"));
        return Read;
    }
    if (parser.isSet(json) && parser.isSet(request)) {
        complain(QStringLiteral("--json and --request exclude each other. Try --help."));
        return CannotRun;
    }
    const QStringList fileNames = parser.positionalArguments();
    if (fileNames.isEmpty()) {
        complain(
            QStringLiteral("no file given. Name a file that holds the reply of a device, or - for standard input."));
        return CannotRun;
    }

    const QByteArray actionName = parser.value(action).toUtf8();
    const inspect::Palette palette = paletteForOutput();
    int exitCode = Read;
    for (const QString &fileName : fileNames) {
        const std::optional<QByteArray> bytes = contentsOf(fileName);
        if (!bytes) {
            exitCode = CannotRun;
            continue;
        }
        const inspect::Reply reply = inspect::read(*bytes, actionName.constData());
        if (parser.isSet(request)) {
            exitCode = std::max<int>(exitCode, printRequests(fileName, reply));
            continue;
        }
        const QString heading = fileNames.size() > 1 ? inspect::printable(fileName) + QLatin1String(": ") : QString();
        print(stdout, parser.isSet(json) ? asJson(fileName, reply) : asOutline(heading, reply, palette));
        exitCode = std::max<int>(exitCode, reply.record && !reply.isFault ? Read : NothingRead);
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        complain(QStringLiteral("cannot write the output. Check that there is room for it."));
        exitCode = CannotRun;
    }
    return exitCode;
}
