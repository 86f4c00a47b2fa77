#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <algorithm>
#include <vector>

namespace vxgraphics3d {

/// An axis-aligned box, stored as centre and half sizes, or an empty box.
///
/// Every operation on limits computes them as centre plus and minus half size and converts the result back, so each
/// step rounds, and a merged box is not a bit-exact union. An empty (invalid) box is changed only by a merge.
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
        setLimits({xmin, ymin, zmin}, {xmax, ymax, zmax});
    }
    /// Copies a valid box; an empty one leaves this box unchanged. Use assignment to copy in either case.
    void init(const BoundingBox& box)
    {
        if (box.m_isValid) {
            *this = box;
        }
    }
    /// Makes the box empty.
    void reset() { *this = BoundingBox(); }

    bool isValid() const { return m_isValid; }
    Vector3f getCenter() const { return m_center; }
    float getHalfSizeX() const { return m_halfSize.x; }
    float getHalfSizeY() const { return m_halfSize.y; }
    float getHalfSizeZ() const { return m_halfSize.z; }
    Vector3f getHalfSize() const { return m_halfSize; }
    /// The corner of the lowest coordinates; the origin for an empty box.
    Vector3f getMin() const { return m_center - m_halfSize; }
    /// The corner of the highest coordinates.
    Vector3f getMax() const { return m_center + m_halfSize; }

    /// Extends the box to include another one. An empty box becomes a copy of the other; an empty other changes
    /// nothing.
    void merge(const BoundingBox& box)
    {
        if (!m_isValid) {
            init(box);
        } else if (box.m_isValid) {
            cover(box.getMin(), box.getMax());
        }
    }
    /// Extends a valid box to include a point; an empty box stays empty.
    void expandWithPoint(const Vector3f& point)
    {
        if (m_isValid) {
            cover(point, point);
        }
    }
    /// Adds to the half sizes of a valid box.
    void expand(float dx, float dy, float dz)
    {
        if (m_isValid) {
            m_halfSize.translate(dx, dy, dz);
        }
    }
    /// Multiplies the half sizes of a valid box; its centre stays.
    void scale(float sx, float sy, float sz)
    {
        if (m_isValid) {
            m_halfSize.scale(sx, sy, sz);
        }
    }
    /// Moves a valid box.
    void translate(float dx, float dy, float dz)
    {
        if (m_isValid) {
            m_center.translate(dx, dy, dz);
        }
    }

    /// Corner i of 8: 0 to 3 go around the low z face from the minimum corner. On the high z face, 4 is above 1, 5
    /// above 0, 6 above 2 and 7 above 3. Any other i gives (0, 0, 0).
    Vector3f getVertex(int i) const;
    /// The sum of the three edge lengths.
    float getL1Norm() const { return 2.0f * (m_halfSize.x + m_halfSize.y + m_halfSize.z); }
    /// The distance from the centre to a corner.
    float getBoundingRadius() const;
    /// Whether all three half sizes are 0, as they are in an empty box.
    bool isZeroSize() const { return m_halfSize == Vector3f(); }
    /// Whether the segment from a to b intersects the box, border included. Nothing intersects an empty box.
    bool doesLineIntersect(const Vector3f& a, const Vector3f& b) const;

    /// Whether both boxes are valid and equal. An empty box equals nothing, not even another empty one.
    friend bool operator==(const BoundingBox& a, const BoundingBox& b)
    {
        return a.m_isValid && b.m_isValid && a.m_center == b.m_center && a.m_halfSize == b.m_halfSize;
    }

private:
    void setLimits(const Vector3f& low, const Vector3f& high)
    {
        m_center = (low + high) * 0.5f;
        m_halfSize = (high - low) * 0.5f;
        m_isValid = true;
    }
    /// Extends a valid box to include the space between two corners. A limit that is NaN is ignored.
    void cover(const Vector3f& low, const Vector3f& high)
    {
        const Vector3f ownLow = getMin();
        const Vector3f ownHigh = getMax();
        setLimits({std::min(ownLow.x, low.x), std::min(ownLow.y, low.y), std::min(ownLow.z, low.z)},
                  {std::max(ownHigh.x, high.x), std::max(ownHigh.y, high.y), std::max(ownHigh.z, high.z)});
    }

    Vector3f m_center;
    Vector3f m_halfSize;
    bool m_isValid = false;
};

} // namespace vxgraphics3d
