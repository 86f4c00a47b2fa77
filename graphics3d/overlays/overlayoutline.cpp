#include "graphics3d/overlays/overlayoutline.h"

#include "graphics3d/overlays/overlaycurve.h"
#include "graphics3d/overlays/overlayellipse.h"
#include "graphics3d/overlays/overlayline.h"
#include "graphics3d/overlays/overlayrectangle.h"
#include "graphics3d/overlays/overlaytransformation.h"

#include <algorithm>
#include <array>

namespace vxgraphics3d {
namespace {

std::size_t countLineEnds(int numVertices)
{
    return numVertices < 2 ? 0 : 2 * static_cast<std::size_t>(numVertices - 1);
}

/// Writes the lines of a polyline of three floats per vertex, and returns the end of what it has written.
Vector3f* writePolyline(Vector3f* lines, const float* xyz, int count)
{
    for (int i = 1; i < count; ++i, xyz += 3) {
        *lines++ = {xyz[0], xyz[1], xyz[2]};
        *lines++ = {xyz[3], xyz[4], xyz[5]};
    }
    return lines;
}

void appendPolyline(std::vector<Vector3f>& lines, const float* xyz, int count)
{
    const std::size_t first = lines.size();
    lines.resize(first + countLineEnds(count));
    writePolyline(lines.data() + first, xyz, count);
}

std::vector<Vector3f> linesAround(const std::array<Vector3f, 4>& corners)
{
    return {corners[0], corners[1], corners[1], corners[2], corners[2], corners[3], corners[3], corners[0]};
}

} // namespace

void appendEdge(std::vector<Vector3f>& lines, const OverlayCurve& curve, int edge)
{
    int count = 0;
    const float* xyz = curve.getRenderVertices(count, edge);
    appendPolyline(lines, xyz, count);
}

std::size_t countLineEnds(const OverlayCurve& curve)
{
    std::size_t numEnds = 0;
    for (int edge = 0; edge < curve.getNEdges(); ++edge) {
        if (curve.isEdgeRendered(edge)) {
            int count = 0;
            curve.getRenderVertices(count, edge);
            numEnds += countLineEnds(count);
        }
    }
    return numEnds;
}

ControlPointRange shownControlPoints(const OverlayCurve& curve, int edge)
{
    const int numPoints = curve.getNControlPoints(edge);
    if (curve.getType() != OverlayObject::TypeDrawCurve) {
        return {0, numPoints};
    }
    return {1, std::max(numPoints - 1, 1)};
}

std::vector<Vector3f> outlineOf(const OverlayObject& object)
{
    std::vector<Vector3f> lines;
    switch (object.getType()) {
    case OverlayObject::TypePoint:
    case OverlayObject::TypeSymbol:
        break;
    case OverlayObject::TypeLine: {
        const auto& line = static_cast<const OverlayLine&>(object);
        lines = {{line.getStartX(), line.getStartY(), 0.0}, {line.getEndX(), line.getEndY(), 0.0}};
        break;
    }
    case OverlayObject::TypeRectangle: {
        const auto& rectangle = static_cast<const OverlayRectangle&>(object);
        const Vector3f a(rectangle.getStartX(), rectangle.getStartY(), 0.0);
        const Vector3f c(rectangle.getEndX(), rectangle.getEndY(), 0.0);
        lines = linesAround({a, {c.x, a.y, 0.0f}, c, {a.x, c.y, 0.0f}});
        break;
    }
    case OverlayObject::TypeEllipse: {
        int count = 0;
        const float* xyz = static_cast<const OverlayEllipse&>(object).getVertices(count);
        appendPolyline(lines, xyz, count);
        break;
    }
    case OverlayObject::TypeTransformation: {
        const auto& frame = static_cast<const OverlayTransformation&>(object);
        lines =
            linesAround({frame.getHandlePos(0), frame.getHandlePos(2), frame.getHandlePos(4), frame.getHandlePos(6)});
        break;
    }
    case OverlayObject::TypeRenderEdit:
    case OverlayObject::TypeDrawCurve: {
        const auto& curve = static_cast<const OverlayCurve&>(object);
        lines.resize(countLineEnds(curve));
        Vector3f* line = lines.data();
        for (int edge = 0; edge < curve.getNEdges(); ++edge) {
            if (curve.isEdgeRendered(edge)) {
                int count = 0;
                const float* xyz = curve.getRenderVertices(count, edge);
                line = writePolyline(line, xyz, count);
            }
        }
        break;
    }
    }
    return lines;
}

} // namespace vxgraphics3d
