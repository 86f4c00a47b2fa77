#include "interaction/curveediting.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/overlays/overlaycurve.h"
#include "graphics3d/overlays/overlayoutline.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vxinteraction {

using vxgraphics3d::Matrixf;
using vxgraphics3d::OverlayCurve;
using vxgraphics3d::Vector3f;

CurveEditing::CurveEditing(OverlayView view, boost::shared_ptr<OverlayCurve> curve)
    : OverlayInteraction(std::move(view)), m_curve(std::move(curve))
{
    if (!m_curve) {
        throw std::invalid_argument("There is no curve to edit.");
    }
}

CurveEditing::~CurveEditing() = default;

CurveEditing::Taken CurveEditing::takenAt(const PlanePoint& picture) const
{
    const OverlayPlane view = plane();
    Taken found;
    double nearest = pickingTolerance();
    const auto isNearest = [&](const Vector3f& point) {
        const auto position = view.toPicture(m_curve->getTransformation() * point);
        const double distance = position ? std::hypot(position->x - picture.x, position->y - picture.y)
                                         : std::numeric_limits<double>::infinity();
        const bool isNearer = distance <= nearest;
        nearest = isNearer ? distance : nearest;
        return isNearer;
    };
    for (int vertex = 0; vertex < m_curve->getNVertices(); ++vertex) {
        if (m_curve->isVertexRendered(vertex) && isNearest(m_curve->getVertex(vertex))) {
            found = {-1, vertex, -1};
        }
    }
    for (int edge = 0; found.index < 0 && edge < m_curve->getNEdges(); ++edge) {
        if (m_curve->isEdgeRendered(edge)) {
            const auto shown = shownControlPoints(*m_curve, edge);
            for (int index = shown.begin; index < shown.end; ++index) {
                if (isNearest(m_curve->getControlPoint(edge, index))) {
                    found = {edge, index, m_curve->getControlPointId(edge, index)};
                }
            }
        }
    }
    return found;
}

PlanePoint CurveEditing::position() const
{
    std::vector<double> out(3);
    if (m_taken.edge < 0) {
        m_curve->getVertex(m_taken.index, out);
    } else {
        m_curve->getControlPoint(m_taken.edge, m_taken.index, out);
    }
    return {out[0], out[1]};
}

void CurveEditing::moveTo(const PlanePoint& position)
{
    if (m_taken.edge >= 0) {
        m_curve->setControlPoint(m_taken.edge, m_taken.index, position.x, position.y);
        return;
    }
    m_curve->setVertex(m_taken.index, position.x, position.y);
    if (m_curve->getType() == OverlayCurve::TypeDrawCurve) {
        // A drawn curve updates only the last edges at the vertex by itself; setting a point updates its edge.
        std::vector<double> first(3);
        for (int edge = 0; edge < m_curve->getNEdges(); ++edge) {
            if (m_curve->getNControlPoints(edge) > 0) {
                m_curve->getControlPoint(edge, 0, first);
                m_curve->setControlPoint(edge, 0, first[0], first[1]);
            }
        }
    }
}

void CurveEditing::mark(const Taken& taken, bool on)
{
    if (taken.edge >= 0) {
        m_curve->setPointMarking(taken.id, on);
    } else if (taken.index >= 0) {
        m_curve->setVertexMarking(taken.index, on);
    }
}

bool CurveEditing::press(int x, int y)
{
    release();
    const PlanePoint picture = PlanePoint::ofPixel(x, y);
    const bool wasMarked = m_taken.index >= 0;
    mark(m_taken, false);
    m_taken = takenAt(picture);
    mark(m_taken, true);
    const auto pointer = toObject(*m_curve, picture);
    if (m_taken.index >= 0 && pointer) {
        m_drag = {position(), position() - *pointer};
    }
    return wasMarked || m_taken.index >= 0;
}

bool CurveEditing::drag(int x, int y)
{
    const auto pointer = m_drag ? toObject(*m_curve, PlanePoint::ofPixel(x, y)) : std::nullopt;
    if (!pointer) {
        return false;
    }
    moveTo(*pointer + m_drag->offset);
    return true;
}

bool CurveEditing::release()
{
    m_drag.reset();
    return false;
}

bool CurveEditing::cancel()
{
    if (!m_drag) {
        return false;
    }
    moveTo(m_drag->before);
    m_drag.reset();
    return true;
}

} // namespace vxinteraction
