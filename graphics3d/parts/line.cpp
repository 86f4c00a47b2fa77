#include "graphics3d/parts/line.h"

#include <boost/make_shared.hpp>

namespace vxgraphics3d {
namespace {

constexpr float c_labelFraction = 0.5f;
constexpr float c_directionFraction = 0.6f;

} // namespace

Line::Line(int numSegments) : SelectablePart(1)
{
    m_vertices.allocate(2 * numSegments);
}

Line::~Line() = default;

void Line::appendSegment(const Vector3f& a, const Vector3f& b)
{
    m_vertices.appendVertex(a);
    m_vertices.appendVertex(b);
    m_extent.include(a);
    m_extent.include(b);
    m_length += (b - a).length();
}

void Line::updateDirectionMarker()
{
    DirectionMarker marker;
    Vector3f normal;
    m_directionMarker = pointAlongLine(c_directionFraction, marker.first, normal, marker.second)
                            ? boost::make_shared<DirectionMarker>(marker)
                            : nullptr;
}

bool Line::pointAlongLine(float fraction, Vector3f& position, Vector3f& normal, Vector3f& direction) const
{
    const int numVertices = m_vertices.getNumberOfVertices();
    if (numVertices == 0) {
        return false;
    }
    if (!(m_length > 0.0f)) {
        position = m_vertices.getCoord(numVertices / 2);
        normal = {1.0f, 0.0f, 0.0f};
        direction = {0.0f, 1.0f, 0.0f};
        return true;
    }
    float rest = -fraction * m_length;
    for (int i = 0; i + 1 < numVertices; i += 2) {
        const Vector3f start = m_vertices.getCoord(i);
        const Vector3f end = m_vertices.getCoord(i + 1);
        const Vector3f d = end - start;
        const float length = d.length();
        if (rest + length >= 0.0f) {
            // A segment of length 0 is hit at its start only.
            const float s = length > 0.0f ? -rest / length : 0.0f;
            position = (1.0f - s) * start + s * end;
            normal = Vector3f(0.0f, 0.0f, 1.0f).cross(d).normalize();
            direction = d;
            return true;
        }
        rest += length;
    }
    return true;
}

bool Line::setLabel(const vxbase::UString& text)
{
    Vector3f position;
    Vector3f normal;
    Vector3f direction;
    const bool hasPosition = pointAlongLine(c_labelFraction, position, normal, direction);
    if (hasPosition) {
        m_label.set(text, position);
    } else {
        m_label.remove();
    }
    return hasPosition;
}

} // namespace vxgraphics3d
