#include "graphics3d/overlays/overlaycurve.h"

#include <cstddef>

namespace vxgraphics3d {

OverlayCurve::~OverlayCurve() = default;

bool OverlayCurve::isEdgeRendered(int) const
{
    return true;
}

bool OverlayCurve::isVertexRendered(int) const
{
    return true;
}

std::optional<OverlayCurve::ControlPoint> OverlayCurve::findControlPoint(int id) const
{
    if (id < 0 || id >= m_nextControlPointId) {
        return std::nullopt;
    }
    const ControlPoint point = m_controlPoints[static_cast<std::size_t>(id)];
    return point == c_noControlPoint ? std::nullopt : std::optional(point);
}

int OverlayCurve::getControlPointId(int edge, int index) const
{
    const auto found = m_controlPointIds.find({edge, index});
    return found == m_controlPointIds.end() ? -1 : found->second;
}

void OverlayCurve::clearMarkings()
{
    m_markedPoints.clear();
    m_markedVertices.clear();
    m_markedEdges.clear();
}

int OverlayCurve::takeControlPointId(int edge, int index)
{
    const ControlPoint point(edge, index);
    m_controlPoints.resize(static_cast<std::size_t>(m_nextControlPointId) + 1);
    const auto [entry, isNew] = m_controlPointIds.try_emplace(point, m_nextControlPointId);
    if (!isNew) {
        m_controlPoints[static_cast<std::size_t>(entry->second)] = c_noControlPoint;
        entry->second = m_nextControlPointId;
    }
    m_controlPoints.back() = point;
    return m_nextControlPointId++;
}

void OverlayCurve::markEdge(int edge, int startVertex, int endVertex, bool on)
{
    setMark(m_markedEdges, edge, on);
    for (const int vertex : {startVertex, endVertex}) {
        if (vertex >= 0) {
            setMark(m_markedVertices, vertex, on);
        }
    }
    for (int index = 0; index < getNControlPoints(edge); ++index) {
        if (const int id = getControlPointId(edge, index); id >= 0) {
            setMark(m_markedPoints, id, on);
        }
    }
}

void OverlayCurve::setMark(std::set<int>& marks, int number, bool on)
{
    if (on) {
        marks.insert(number);
    } else {
        marks.erase(number);
    }
}

} // namespace vxgraphics3d
