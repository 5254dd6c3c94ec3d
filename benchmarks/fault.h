#pragma once

namespace bench {

void addFaultRoads();

} // namespace bench
