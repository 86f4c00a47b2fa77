#include "graphics3d/geometry/physicsmarker.h"

#include <boost/make_shared.hpp>

#include <cmath>

namespace vxgraphics3d {
namespace {

using Directions = std::vector<Vector3f>;

/// An axis whose part at right angles to the normal is shorter than this is parallel to it.
constexpr double c_parallel = 1e-10;
/// 2^-52, so that a length of 0 can be divided by.
constexpr float c_tiny = 2.220446e-16f;

/// The part of a vector that is at right angles to a unit vector.
Vector3f withoutNormal(const Vector3f& v, const Vector3f& normal)
{
    return v - normal * normal.dot(v);
}

Directions frameAround(const Vector3f& n, bool normalLast, int dimension, int axis)
{
    Vector3f e = axis == 0   ? Vector3f(1.0f, 0.0f, 0.0f)
                 : axis == 1 ? Vector3f(0.0f, 1.0f, 0.0f)
                             : Vector3f(0.0f, 0.0f, 1.0f);
    if (static_cast<double>(withoutNormal(e, n).length()) < c_parallel) {
        e = {e.z, e.x, e.y};
    }
    Vector3f t = withoutNormal(e, n);
    t /= std::sqrt(t.dot(t) + c_tiny);
    const Vector3f b = n.cross(t);
    if (dimension == 3) {
        return {t, b, n};
    }
    if (normalLast) {
        return axis == 1 ? Directions{b, -t, n} : Directions{t, b, n};
    }
    return axis == 2 ? Directions{b, n, t} : Directions{t, n, -b};
}

} // namespace

PhysicsMarker::PhysicsMarker(const SelectablePart& part, const Vector3f& position, boost::shared_ptr<Image> image)
    : PhysicsMarker(part, position, std::move(image), Directions())
{}

PhysicsMarker::PhysicsMarker(const SelectablePart& part, const Vector3f& position, boost::shared_ptr<Image> image,
                             const std::vector<Vector3f>& directions)
    : m_position(position),
      m_part(&part),
      m_image(std::move(image)),
      m_directions(boost::make_shared<Directions>(directions))
{}

PhysicsMarker::PhysicsMarker(const SelectablePart& part, const Vector3f& position, boost::shared_ptr<Image> image,
                             Vector3f normal, bool flip, bool normalLast, int dimension, int axis)
    : PhysicsMarker(part, position, std::move(image), frameAround(flip ? -normal : normal, normalLast, dimension, axis))
{}

} // namespace vxgraphics3d
