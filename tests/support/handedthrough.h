#pragma once

#include <cstddef>

namespace vxgraphics3d {

/// A reference for an argument that the code under test only hands on: no object stands behind it, and nothing may
/// look. The type need not be complete.
template <class T>
T& handedThrough()
{
    alignas(std::max_align_t) static std::byte nothing[64];
    return *reinterpret_cast<T*>(nothing);
}

} // namespace vxgraphics3d
