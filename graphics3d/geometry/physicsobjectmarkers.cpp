// The markers and connectors of a physics object.

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"

#include <boost/make_shared.hpp>

namespace vxgraphics3d {
namespace {

constexpr float c_middle = 0.5f;

/// Whether the parts of a level have a middle and a normal of their own.
bool hasNormals(int level)
{
    return level == PartLine || level == PartSheet;
}

} // namespace

void SceneGraphPhysicsObject::setPhysicsMarker(int level, int index, const std::string& icon)
{
    if (m_parts.has(level)) {
        addMarker(level, index, icon, findLabel(level, index));
    }
}

void SceneGraphPhysicsObject::setPhysicsMarkerNormal(int level, int index, const std::string& icon, bool flip)
{
    if (!hasNormals(level)) {
        setPhysicsMarker(level, index, icon);
        return;
    }
    const auto center = findCenter(level, index);
    const Vector3f normal = center ? center->normal : Vector3f();
    addMarker(level, index, icon, center, std::vector<Vector3f>{flip ? -normal : normal});
}

void SceneGraphPhysicsObject::setPhysicsMarkerSys(int level, int index, const std::string& icon,
                                                  const std::vector<Vector3f>& sys)
{
    if (!hasNormals(level)) {
        setPhysicsMarker(level, index, icon);
        return;
    }
    addMarker(level, index, icon, findLabel(level, index), sys);
}

void SceneGraphPhysicsObject::setPhysicsMarkerBoundSys(int level, int index, const std::string& icon, bool flip,
                                                       bool normalLast, int dimension, int axis)
{
    if (!hasNormals(level)) {
        setPhysicsMarker(level, index, icon);
        return;
    }
    const auto center = findCenter(level, index);
    addMarker(level, index, icon, center, center ? center->normal : Vector3f(), flip, normalLast, dimension, axis);
}

/// @param anchor none if the part has no position for a marker
template <class... Directions>
void SceneGraphPhysicsObject::addMarker(int level, int index, const std::string& icon,
                                        const std::optional<Anchor>& anchor, const Directions&... directions)
{
    if (!anchor) {
        logWarning("There is no position for a marker at part %d of level %d.", index, level);
        return;
    }
    const auto marker = boost::make_shared<PhysicsMarker>(m_parts.getPart(level, index), anchor->position,
                                                          m_images[icon], directions...);
    m_markers.at(static_cast<std::size_t>(level)).emplace(index, marker);
    m_markerChangeIds.at(static_cast<std::size_t>(level)).raise();
}

std::optional<SceneGraphPhysicsObject::Anchor> SceneGraphPhysicsObject::findLabel(int level, int index) const
{
    m_parts.requirePart(level, index);
    const auto& label = m_parts.getLabel(level, index);
    return label ? std::optional(Anchor{label->getPosition(), {}}) : std::nullopt;
}

std::optional<SceneGraphPhysicsObject::Anchor> SceneGraphPhysicsObject::findCenter(int level, int index) const
{
    m_parts.requirePart(level, index);
    Anchor center;
    Vector3f direction;
    const bool hasCenter =
        level == PartLine
            ? getLines().getPart(index).pointAlongLine(c_middle, center.position, center.normal, direction)
            : getSheets().getPart(index).computeLabelPosition(center.position, center.normal);
    return hasCenter ? std::optional(center) : std::nullopt;
}

void SceneGraphPhysicsObject::setPhysicsConnector(int level, const std::vector<int>& parts, const std::string& icon,
                                                  const Vector3f& position)
{
    if (!hasNormals(level)) {
        return;
    }
    std::vector<Vector3f> points;
    for (const int part : parts) {
        if (const auto center = findCenter(level, part)) {
            points.push_back(center->position);
        }
    }
    addConnector(position, points, icon);
}

void SceneGraphPhysicsObject::setPhysicsConnector(int level, const std::vector<int>& parts, const std::string& icon)
{
    if (!hasNormals(level)) {
        return;
    }
    std::vector<Vector3f> points;
    Vector3f sum;
    float total = 0.0f;
    for (const int part : parts) {
        const auto center = findCenter(level, part);
        const float weight =
            level == PartLine ? getLines().getPart(part).getLength() : getSheets().getPart(part).getArea();
        if (center && weight > 0.0f) {
            sum += center->position * weight;
            total += weight;
            points.push_back(center->position);
        }
    }
    if (!points.empty()) {
        addConnector(sum / total, points, icon);
    }
}

void SceneGraphPhysicsObject::addConnector(const Vector3f& position, const std::vector<Vector3f>& points,
                                           const std::string& icon)
{
    m_connectors.push_back(boost::make_shared<PhysicsConnector>(position, points, m_images[icon]));
    m_connectorChangeId.raise();
}

void SceneGraphPhysicsObject::clearPhysicsMarkers()
{
    for (std::size_t level = 0; level < m_markers.size(); ++level) {
        m_markers[level].clear();
        m_markerChangeIds[level].raise();
    }
    m_connectors.clear();
    m_connectorChangeId.raise();
}

} // namespace vxgraphics3d
