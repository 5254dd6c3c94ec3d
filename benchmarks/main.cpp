// Times the library's roads against QDomDocument::setContent, counts their instructions, and checks each against its
// limits.

#include "device.h"
#include "fault.h"
#include "media.h"
#include "network.h"
#include "road.h"

#include <QtCore/QCoreApplication>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>

#ifdef __GLIBC__
#include <malloc.h>
#endif

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const bool counts = application.arguments().value(1) == QLatin1String("--count");
    if (!counts) {
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv))
            return 2;
    }
#ifdef __GLIBC__
    // Memory that goes back to the system after each run comes back with a page fault for each page, and that would be
    // measured: on these sizes it is as much as the work.
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
#endif
    bench::addDeviceRoads();
    bench::addFaultRoads();
    bench::addMediaRoads();
    bench::addNetworkRoads();
    if (counts) {
        bench::runCounted(application.arguments().mid(2));
        return EXIT_SUCCESS;
    }
    return bench::runAll(std::cout) ? EXIT_SUCCESS : EXIT_FAILURE;
}
