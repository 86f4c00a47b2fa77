#pragma once

#include <cstddef>

namespace vxgraphics3d {

/// A reference for an argument that the code under test only passes on: it refers to no object and must not be
/// accessed. The type need not be complete.
template <class T>
T& handedThrough()
{
    alignas(std::max_align_t) static std::byte nothing[64];
    return *reinterpret_cast<T*>(nothing);
}

} // namespace vxgraphics3d
