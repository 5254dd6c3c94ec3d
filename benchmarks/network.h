#pragma once

namespace bench {

void addNetworkRoads();

} // namespace bench
