#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <algorithm>
#include <vector>

namespace vxgraphics3d {

/// A box along the axes, kept as centre and half sizes, or an empty box.
///
/// Every operation on limits takes them as centre plus and minus half size and goes back through `init`, so each step
/// rounds, and a merged box is not a bit-exact union. An empty (invalid) box absorbs nothing but a merge.
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
        m_center.init((xmin + xmax) * 0.5f, (ymin + ymax) * 0.5f, (zmin + zmax) * 0.5f);
        m_halfSizeX = (xmax - xmin) * 0.5f;
        m_halfSizeY = (ymax - ymin) * 0.5f;
        m_halfSizeZ = (zmax - zmin) * 0.5f;
        m_valid = true;
    }
    /// Copies a valid box; an empty one leaves this box untouched. To copy in every case, assign.
    void init(const BoundingBox& box)
    {
        // Member by member: compilers then keep a box that is merged in a loop in registers.
        if (box.m_valid) {
            m_center.init(box.m_center.x, box.m_center.y, box.m_center.z);
            m_halfSizeX = box.m_halfSizeX;
            m_halfSizeY = box.m_halfSizeY;
            m_halfSizeZ = box.m_halfSizeZ;
            m_valid = true;
        }
    }
    /// Makes the box empty.
    void reset() { *this = BoundingBox(); }

    bool isValid() const { return m_valid; }
    const Vector3f& getCenter() const { return m_center; }
    float getHalfSizeX() const { return m_halfSizeX; }
    float getHalfSizeY() const { return m_halfSizeY; }
    float getHalfSizeZ() const { return m_halfSizeZ; }
    Vector3f getHalfSize() const { return {m_halfSizeX, m_halfSizeY, m_halfSizeZ}; }
    /// The corner of the lowest coordinates, also of an empty box, where it is the origin.
    Vector3f getMin() const { return m_center - getHalfSize(); }
    /// The corner of the highest coordinates.
    Vector3f getMax() const { return m_center + getHalfSize(); }

    /// Widens the box over another one. An empty box takes the other over as it is; an empty other changes nothing.
    void merge(const BoundingBox& box)
    {
        if (!m_valid) {
            init(box);
        } else if (box.m_valid) {
            cover(box.getMin(), box.getMax());
        }
    }
    /// Widens a valid box over a point; an empty box stays empty.
    void expandWithPoint(const Vector3f& point)
    {
        if (m_valid) {
            cover(point, point);
        }
    }
    /// Adds to the half sizes of a valid box.
    void expand(float dx, float dy, float dz)
    {
        if (m_valid) {
            m_halfSizeX += dx;
            m_halfSizeY += dy;
            m_halfSizeZ += dz;
        }
    }
    /// Multiplies the half sizes of a valid box; its centre stays.
    void scale(float sx, float sy, float sz)
    {
        if (m_valid) {
            m_halfSizeX *= sx;
            m_halfSizeY *= sy;
            m_halfSizeZ *= sz;
        }
    }
    /// Moves a valid box.
    void translate(float dx, float dy, float dz)
    {
        if (m_valid) {
            m_center.translate(dx, dy, dz);
        }
    }

    /// Corner i of 8: 0 to 3 go around the low z face from the minimum corner, 4 to 7 around the high z face, where the
    /// maximum corner is 6. Any other i gives (0, 0, 0).
    Vector3f getVertex(int i) const;
    /// The sum of the three edge lengths.
    float getL1Norm() const { return 2.0f * (m_halfSizeX + m_halfSizeY + m_halfSizeZ); }
    /// The distance from the centre to a corner.
    float getBoundingRadius() const;
    /// Whether all three half sizes are 0, as they are in an empty box.
    bool isZeroSize() const { return m_halfSizeX == 0.0f && m_halfSizeY == 0.0f && m_halfSizeZ == 0.0f; }
    /// Whether the segment from a to b meets the box, border included. An empty box meets nothing.
    bool doesLineIntersect(const Vector3f& a, const Vector3f& b) const;

    /// Whether both boxes are valid and equal. An empty box equals nothing, not even another empty one.
    friend bool operator==(const BoundingBox& a, const BoundingBox& b)
    {
        return a.m_valid && b.m_valid && a.m_center == b.m_center && a.m_halfSizeX == b.m_halfSizeX &&
               a.m_halfSizeY == b.m_halfSizeY && a.m_halfSizeZ == b.m_halfSizeZ;
    }

private:
    void cover(const Vector3f& low, const Vector3f& high)
    {
        coverAxis(m_center.x, m_halfSizeX, low.x, high.x);
        coverAxis(m_center.y, m_halfSizeY, low.y, high.y);
        coverAxis(m_center.z, m_halfSizeZ, low.z, high.z);
    }
    static void coverAxis(float& center, float& halfSize, float low, float high)
    {
        const float min = std::min(center - halfSize, low);
        const float max = std::max(center + halfSize, high);
        center = (min + max) * 0.5f;
        halfSize = (max - min) * 0.5f;
    }

    Vector3f m_center;
    float m_halfSizeX = 0.0f;
    float m_halfSizeY = 0.0f;
    float m_halfSizeZ = 0.0f;
    bool m_valid = false;
};

} // namespace vxgraphics3d
