#pragma once

#include <cstddef>

namespace vxgraphics3d {

/// How often this thread has taken memory by `new` since it started.
std::size_t numAllocations();

} // namespace vxgraphics3d
