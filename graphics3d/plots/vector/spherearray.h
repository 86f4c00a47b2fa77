#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>

namespace vxgraphics3d {

/// The records of a sphere plot: an array of the size of the record's points, which the fill writes once. The points
/// that it leaves out leave space at the end.
template <class Sphere>
class SphereArray {
    static_assert(std::is_trivially_default_constructible_v<Sphere>, "a new array is written once, by its fill");

public:
    /// Drops all records, then makes space for `count` of them, which `write` writes from the start of the array. It
    /// returns the end of what it has written.
    template <class Write>
    void fill(std::size_t count, Write write)
    {
        m_count = 0;
        m_spheres.reset();
        m_spheres.reset(new Sphere[count]);
        m_count = static_cast<std::size_t>(write(m_spheres.get()) - m_spheres.get());
    }

    std::span<const Sphere> spheres() const { return {m_spheres.get(), m_count}; }

private:
    std::unique_ptr<Sphere[]> m_spheres;
    std::size_t m_count = 0;
};

} // namespace vxgraphics3d
