#pragma once

#include <cstddef>

namespace vxgraphics3d {

/// The number of allocations by `new` on this thread since it started.
std::size_t numAllocations();

} // namespace vxgraphics3d
