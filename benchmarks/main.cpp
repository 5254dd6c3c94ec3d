// Times the library's roads against QDomDocument::setContent and checks each against its limit.

#include "device.h"
#include "fault.h"
#include "road.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    bench::addDeviceRoads();
    bench::addFaultRoads();
    return bench::runAll(std::cout) ? EXIT_SUCCESS : EXIT_FAILURE;
}
