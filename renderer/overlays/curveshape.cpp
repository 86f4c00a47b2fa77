#include "renderer/overlays/curveshape.h"

#include "graphics3d/overlays/overlaycurve.h"

namespace vxrenderer {

using vxgraphics3d::OverlayCurve;
using vxgraphics3d::OverlayObject;
using vxgraphics3d::Vector3f;

namespace {

Vector3f vertexAt(const float* vertices, int index)
{
    const float* vertex = vertices + 3 * index;
    return {vertex[0], vertex[1], vertex[2]};
}

} // namespace

void appendPolyline(std::vector<Vector3f>& lines, const float* vertices, int count)
{
    for (int i = 1; i < count; ++i) {
        lines.push_back(vertexAt(vertices, i - 1));
        lines.push_back(vertexAt(vertices, i));
    }
}

CurveShape::CurveShape(const OverlayCurve& curve)
{
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
    int count = 0;
    const float* polyline = curve.getRenderVertices(count, edge);
    if (count < 2) {
        return;
    }
    appendPolyline(outline, polyline, count);
    appendPolyline(curve.getMarkedEdges().contains(edge) ? markedLines : lines, polyline, count);
    if (curve.getDisplayEdgeNumbers()) {
        const Vector3f middle = (vertexAt(polyline, (count - 1) / 2) + vertexAt(polyline, count / 2)) * 0.5f;
        numbers.push_back({middle, std::string("E").append(std::to_string(edge))});
    }
    const bool hasOwnEnds = curve.getType() == OverlayObject::TypeDrawCurve;
    const int numPoints = curve.getNControlPoints(edge);
    Vector3f last = vertexAt(polyline, 0);
    for (int index = hasOwnEnds ? 1 : 0; index < (hasOwnEnds ? numPoints - 1 : numPoints); ++index) {
        const Vector3f point = curve.getControlPoint(edge, index);
        const bool isMarked = curve.getMarkedPoints().contains(curve.getControlPointId(edge, index));
        (isMarked ? markedControlPoints : controlPoints).push_back(point);
        if (numPoints > 2) {
            polygons.push_back(last);
            polygons.push_back(point);
            last = point;
        }
    }
    if (numPoints > 2) {
        polygons.push_back(last);
        polygons.push_back(vertexAt(polyline, count - 1));
    }
}

} // namespace vxrenderer
