#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <boost/shared_ptr.hpp>

#include <utility>
#include <vector>

namespace vxgraphics3d {

class Image;

/// An icon at a position of its own that connects several parts of a physics object, with one point on each of them.
/// It belongs to its `SceneGraphPhysicsObject`, never changes, and does not refer to the parts.
class VX_API PhysicsConnector {
public:
    PhysicsConnector(const Vector3f& position, const std::vector<Vector3f>& points, boost::shared_ptr<Image> image)
        : m_position(position), m_points(points), m_image(std::move(image))
    {}

    const Vector3f& getPosition() const { return m_position; }
    const std::vector<Vector3f>& getPoints() const { return m_points; }
    /// The icon that had the name when the connector was made, or null.
    const boost::shared_ptr<Image>& getImage() const { return m_image; }

private:
    Vector3f m_position;
    std::vector<Vector3f> m_points;
    boost::shared_ptr<Image> m_image;
};

} // namespace vxgraphics3d
