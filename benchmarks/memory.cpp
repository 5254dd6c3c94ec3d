// Compares the heap that a list of profiles takes with that of a QDomDocument of the same bytes.

#include "replies.h"

#include <vorn/onvif/profiles.h>

#include <QtCore/QCoreApplication>
#include <QtXml/QDomDocument>

#include <algorithm>
#include <functional>
#include <iomanip>
#include <iostream>
#include <malloc.h>
#include <vector>

namespace {

std::size_t held = 0;
std::size_t peak = 0;

void *taken(void *memory)
{
    held += malloc_usable_size(memory);
    peak = std::max(peak, held);
    return memory;
}

} // namespace

// The program's malloc takes precedence over the C library's, for all libraries: if they can see it.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
void __libc_free(void *memory);

[[gnu::visibility("default")]] void *malloc(std::size_t size)
{
    return taken(__libc_malloc(size));
}

[[gnu::visibility("default")]] void *calloc(std::size_t count, std::size_t size)
{
    return taken(__libc_calloc(count, size));
}

[[gnu::visibility("default")]] void *realloc(void *memory, std::size_t size)
{
    held -= malloc_usable_size(memory);
    return taken(__libc_realloc(memory, size));
}

[[gnu::visibility("default")]] void free(void *memory)
{
    held -= malloc_usable_size(memory);
    __libc_free(memory);
}
}

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
    const std::size_t before = held;
    peak = held;
    const auto object = make();
    return {double(held - before), double(peak - before)};
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
    bool good = true;
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
            good = good && profiles.held <= 0.40 * document.held && profiles.peak <= document.peak;
            const auto bytes = double(reply.bytes.size());
            std::cout << "| " << reply.name << " | " << reply.bytes.size() << std::setprecision(1) << " | "
                      << document.held / bytes << " x | " << document.peak / bytes << " x | " << profiles.held / bytes
                      << " x, " << std::setprecision(2) << profiles.held / document.held << " | "
                      << std::setprecision(1) << profiles.peak / bytes << " x, " << std::setprecision(2)
                      << profiles.peak / document.peak << " |\n";
        }
    }
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
