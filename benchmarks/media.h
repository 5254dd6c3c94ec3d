#pragma once

namespace bench {

void addMediaRoads();

} // namespace bench
