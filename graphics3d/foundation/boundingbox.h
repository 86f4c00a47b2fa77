#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <bit>
#include <cstdint>
#include <vector>

namespace vxgraphics3d {

/// A box along the axes, kept as centre and half sizes, or an empty box.
///
/// Every operation on limits takes them as centre plus and minus half size and makes these anew, so each step rounds,
/// and a merged box is not a bit-exact union. An empty (invalid) box absorbs nothing but a merge.
class VX_API BoundingBox {
public:
    /// An empty box, all zeros.
    BoundingBox() = default;
    BoundingBox(float xmin, float xmax, float ymin, float ymax, float zmin, float zmax)
    {
        init(xmin, xmax, ymin, ymax, zmin, zmax);
    }
    /// Narrows the limits to float.
    BoundingBox(double xmin, double xmax, double ymin, double ymax, double zmin, double zmax);
    /// Takes three rows (min, max) for x, y and z.
    /// @throws std::out_of_range for a missing row or value
    explicit BoundingBox(const std::vector<std::vector<double>>& limits);

    void init(float xmin, float xmax, float ymin, float ymax, float zmin, float zmax)
    {
        setLimits(Lanes{xmin, ymin, zmin, -1.0f}, Lanes{xmax, ymax, zmax, 1.0f});
    }
    /// Copies a valid box; an empty one leaves this box untouched. To copy in every case, assign.
    void init(const BoundingBox& box)
    {
        // Member by member: compilers then keep a box that is merged in a loop in registers.
        if (box.isValid()) {
            m_center = box.m_center;
            m_halfSize = box.m_halfSize;
        }
    }
    /// Makes the box empty.
    void reset() { *this = BoundingBox(); }

    bool isValid() const { return std::bit_cast<Truth>(m_halfSize)[3] != 0; }
    Vector3f getCenter() const { return toVector(m_center); }
    float getHalfSizeX() const { return m_halfSize[0]; }
    float getHalfSizeY() const { return m_halfSize[1]; }
    float getHalfSizeZ() const { return m_halfSize[2]; }
    Vector3f getHalfSize() const { return toVector(m_halfSize); }
    /// The corner of the lowest coordinates, also of an empty box, where it is the origin.
    Vector3f getMin() const { return toVector(m_center - m_halfSize); }
    /// The corner of the highest coordinates.
    Vector3f getMax() const { return toVector(m_center + m_halfSize); }

    /// Widens the box over another one. An empty box takes the other over as it is; an empty other changes nothing.
    void merge(const BoundingBox& box)
    {
        if (!isValid()) [[unlikely]] {
            init(box);
        } else if (box.isValid()) [[likely]] {
            cover(box.m_center - box.m_halfSize, box.m_center + box.m_halfSize);
        }
    }
    /// Widens a valid box over a point; an empty box stays empty.
    void expandWithPoint(const Vector3f& point)
    {
        if (isValid()) {
            cover(toLanes(point), toLanes(point));
        }
    }
    /// Adds to the half sizes of a valid box.
    void expand(float dx, float dy, float dz)
    {
        if (isValid()) {
            m_halfSize += Lanes{dx, dy, dz, 0.0f};
        }
    }
    /// Multiplies the half sizes of a valid box; its centre stays.
    void scale(float sx, float sy, float sz)
    {
        if (isValid()) {
            m_halfSize *= Lanes{sx, sy, sz, 1.0f};
        }
    }
    /// Moves a valid box.
    void translate(float dx, float dy, float dz)
    {
        if (isValid()) {
            m_center += Lanes{dx, dy, dz, 0.0f};
        }
    }

    /// Corner i of 8: 0 to 3 go around the low z face from the minimum corner, 4 to 7 around the high z face, where the
    /// maximum corner is 6. Any other i gives (0, 0, 0).
    Vector3f getVertex(int i) const;
    /// The sum of the three edge lengths.
    float getL1Norm() const { return 2.0f * (m_halfSize[0] + m_halfSize[1] + m_halfSize[2]); }
    /// The distance from the centre to a corner.
    float getBoundingRadius() const;
    /// Whether all three half sizes are 0, as they are in an empty box.
    bool isZeroSize() const { return getHalfSize() == Vector3f(); }
    /// Whether the segment from a to b meets the box, border included. An empty box meets nothing.
    bool doesLineIntersect(const Vector3f& a, const Vector3f& b) const;

    /// Whether both boxes are valid and equal. An empty box equals nothing, not even another empty one.
    friend bool operator==(const BoundingBox& a, const BoundingBox& b)
    {
        return b.isValid() && allTrue((a.m_center == b.m_center) & (a.m_halfSize == b.m_halfSize));
    }

private:
    /// Four floats that are worked on at once: x, y, z, and a fourth axis on which an empty box has nothing and every
    /// other one the limits -1 and 1. So the fourth half size says whether the box is valid, and merging keeps it.
    using Lanes = float __attribute__((vector_size(16)));
    /// What comparing lanes gives: 0 or -1 for each.
    using Truth = std::int32_t __attribute__((vector_size(16)));

    static bool allTrue(Truth truth)
    {
#ifdef __SSE__
        return __builtin_ia32_movmskps(std::bit_cast<Lanes>(truth)) == 0xf;
#else
        return (truth[0] & truth[1] & truth[2] & truth[3]) != 0;
#endif
    }
    static Lanes toLanes(const Vector3f& v)
    {
        return Lanes{v.x, v.y, v.z, 0.0f};
    }
    static Vector3f toVector(Lanes lanes)
    {
        return {lanes[0], lanes[1], lanes[2]};
    }

    void setLimits(Lanes low, Lanes high)
    {
        m_center = (low + high) * 0.5f;
        m_halfSize = (high - low) * 0.5f;
    }
    void cover(Lanes low, Lanes high)
    {
        const Lanes ownLow = m_center - m_halfSize;
        const Lanes ownHigh = m_center + m_halfSize;
        setLimits(low < ownLow ? low : ownLow, ownHigh < high ? high : ownHigh);
    }

    Lanes m_center{};
    Lanes m_halfSize{};
};

} // namespace vxgraphics3d
