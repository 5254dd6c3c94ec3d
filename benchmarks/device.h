#pragma once

namespace bench {

void addDeviceRoads();

} // namespace bench
