// Compares the heap that a list of profiles takes with that of a QDomDocument of the same bytes.

#include "replies.h"
#include "support/allocations.h"

#include <vorn/onvif/profiles.h>

#include <QtCore/QCoreApplication>
#include <QtXml/QDomDocument>

#include <iomanip>
#include <iostream>

namespace {

struct Heap
{
    double held;
    double peak;
};

/// What is taken while \a make works, and what it leaves behind in the object that it returns.
template <typename Make>
Heap heapOf(const Make &make)
{
    const test::AllocationCounter allocations;
    const auto object = make();
    return {double(allocations.heldBytes()), double(allocations.peakBytes())};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList folders = QCoreApplication::arguments().mid(1);
    folders.prepend(QStringLiteral(SAMPLES_FOLDER));

    std::cout << "| Reply | Bytes | QDomDocument holds | at its peak | OnvifProfileVector holds | at its peak |\n"
                 "|---|--:|--:|--:|--:|--:|\n"
              << std::fixed;
    for (const QString &folder : std::as_const(folders)) {
        for (const bench::Reply &reply : bench::repliesTo(QStringLiteral("GetProfiles"), folder)) {
            const QString root = QStringLiteral("/Envelope/Body/GetProfilesResponse");
            const auto readProfiles = [&] { return vorn::OnvifProfileVector(reply.bytes, root); };
            const auto setContent = [&] {
                QDomDocument document;
                document.setContent(reply.bytes);
                return document;
            };
            readProfiles(); // what is made only once is not counted
            setContent();
            const Heap profiles = heapOf(readProfiles);
            const Heap document = heapOf(setContent);
            const auto bytes = double(reply.bytes.size());
            std::cout << "| " << reply.name << " | " << reply.bytes.size() << std::setprecision(1) << " | "
                      << document.held / bytes << " x | " << document.peak / bytes << " x | " << profiles.held / bytes
                      << " x, " << std::setprecision(2) << profiles.held / document.held << " | "
                      << std::setprecision(1) << profiles.peak / bytes << " x, " << std::setprecision(2)
                      << profiles.peak / document.peak << " |\n";
        }
    }
    return EXIT_SUCCESS;
}
