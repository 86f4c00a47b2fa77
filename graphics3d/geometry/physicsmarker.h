#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <boost/shared_ptr.hpp>

#include <utility>
#include <vector>

namespace vxgraphics3d {

class Image;
class SelectablePart;

/// An icon at a part of a physics object, with the directions that are shown at it: none, one, or the three of a
/// coordinate system. It belongs to its `SceneGraphPhysicsObject` and never changes.
class VX_API PhysicsMarker {
public:
    /// A marker without directions.
    PhysicsMarker(const SelectablePart& part, const Vector3f& position, boost::shared_ptr<Image> image);
    PhysicsMarker(const SelectablePart& part, const Vector3f& position, boost::shared_ptr<Image> image,
                  const std::vector<Vector3f>& directions);
    /// A marker with a right-handed coordinate system whose tangent is as close to a coordinate axis as a direction at
    /// right angles to the normal can be. If the axis is parallel to the normal, the next axis is used.
    ///
    /// With t for the tangent, n for the normal and b for n x t, the directions are
    ///
    /// | dimension | normalLast | axis  | directions |
    /// |-----------|------------|-------|------------|
    /// | 3         | any        | any   | t, b, n    |
    /// | other     | true       | not 1 | t, b, n    |
    /// | other     | true       | 1     | b, -t, n   |
    /// | other     | false      | 2     | b, n, t    |
    /// | other     | false      | not 2 | t, n, -b   |
    ///
    /// @param normal of length 1
    /// @param flip whether the system is built around the opposite of the normal
    /// @param axis 0 for x, 1 for y, any other number for z
    PhysicsMarker(const SelectablePart& part, const Vector3f& position, boost::shared_ptr<Image> image, Vector3f normal,
                  bool flip, bool normalLast, int dimension, int axis);

    const Vector3f& getPosition() const { return m_position; }
    /// The part that the marker was made for. It is deleted when its object is filled or reset; the marker stays.
    const SelectablePart* getPart() const { return m_part; }
    /// The icon that had the name when the marker was made, or null.
    const boost::shared_ptr<Image>& getImage() const { return m_image; }
    /// Never null.
    const boost::shared_ptr<std::vector<Vector3f>>& getDirections() const { return m_directions; }

private:
    Vector3f m_position;
    const SelectablePart* m_part;
    boost::shared_ptr<Image> m_image;
    boost::shared_ptr<std::vector<Vector3f>> m_directions;
};

} // namespace vxgraphics3d
