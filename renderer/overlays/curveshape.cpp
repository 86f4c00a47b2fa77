#include "renderer/overlays/curveshape.h"

#include "graphics3d/overlays/overlaycurve.h"
#include "graphics3d/overlays/overlayoutline.h"

namespace vxrenderer {

using vxgraphics3d::OverlayCurve;
using vxgraphics3d::Vector3f;

CurveShape::CurveShape(const OverlayCurve& curve)
{
    lines.reserve(countLineEnds(curve));
    for (int edge = 0; edge < curve.getNEdges(); ++edge) {
        if (curve.isEdgeRendered(edge)) {
            addEdge(curve, edge);
        }
    }
    for (int vertex = 0; vertex < curve.getNVertices(); ++vertex) {
        if (curve.isVertexRendered(vertex)) {
            const Vector3f position = curve.getVertex(vertex);
            (curve.getMarkedVertices().contains(vertex) ? markedVertices : vertices).push_back(position);
            if (curve.getDisplayVertexNumbers()) {
                numbers.push_back({position, std::string("V").append(std::to_string(vertex))});
            }
        }
    }
}

void CurveShape::addEdge(const OverlayCurve& curve, int edge)
{
    std::vector<Vector3f>& target = curve.getMarkedEdges().contains(edge) ? markedLines : lines;
    const std::size_t first = target.size();
    appendEdge(target, curve, edge);
    if (target.size() == first) {
        return;
    }
    if (curve.getDisplayEdgeNumbers()) {
        const std::size_t middle = first + (target.size() - first) / 4 * 2;
        numbers.push_back(
            {(target[middle] + target[middle + 1]) * 0.5f, std::string("E").append(std::to_string(edge))});
    }
    const bool hasPolygon = curve.getNControlPoints(edge) > 2;
    Vector3f last = target[first];
    const auto addToPolygon = [&](const Vector3f& point) {
        if (hasPolygon) {
            polygons.push_back(last);
            polygons.push_back(point);
            last = point;
        }
    };
    const auto shown = vxgraphics3d::shownControlPoints(curve, edge);
    for (int index = shown.begin; index < shown.end; ++index) {
        const Vector3f point = curve.getControlPoint(edge, index);
        const bool isMarked = curve.getMarkedPoints().contains(curve.getControlPointId(edge, index));
        (isMarked ? markedControlPoints : controlPoints).push_back(point);
        addToPolygon(point);
    }
    addToPolygon(target.back());
}

} // namespace vxrenderer
