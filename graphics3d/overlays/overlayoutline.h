#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <cstddef>
#include <vector>

namespace vxgraphics3d {

class OverlayCurve;
class OverlayObject;

/// The outline of an object before its transformation, as pairs of ends of straight lines: what renderers draw, and
/// what is hit by a pointer. A frame has the rectangle of its handles, a curve all edges that are rendered, a point or
/// a symbol nothing. Takes time in proportion to the number of lines.
VX_API std::vector<Vector3f> outlineOf(const OverlayObject& object);

/// Appends the lines of one edge of a curve.
VX_API void appendEdge(std::vector<Vector3f>& lines, const OverlayCurve& curve, int edge);

/// The number of points in the outline of a curve.
VX_API std::size_t countLineEnds(const OverlayCurve& curve);

/// The control points of an edge by which it is changed, as a range of indices. Without those that have no influence on
/// it: the first and the last one of an edge that begins and ends at its vertices.
struct ControlPointRange {
    int begin;
    int end;
};
VX_API ControlPointRange shownControlPoints(const OverlayCurve& curve, int edge);

} // namespace vxgraphics3d
