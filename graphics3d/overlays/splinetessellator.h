#pragma once

#include "base/export.h"
#include "datacarrier/boundingbox2d.h"
#include "datacarrier/renderdrawedit2d.h"
#include "graphics3d/foundation/vector3f.h"

#include <vector>

namespace vxgraphics3d {

/// A point of an edge.
struct CurvePoint {
    double x;
    double y;
};

/// The point of an edge at parameter u, which is in the range of its knots from `m_knots[p]` to the one that is stored
/// p before the last, for degree p. Makes no allocation up to degree 9. The edge has passed `requireCurve`.
VX_API CurvePoint curvePoint(const vxdatacarrier::RenderDrawEdit2D::Edge& edge, double u);

/// Turns edges into polylines. It keeps the memory that it needs from one edge to the next.
///
/// An edge starts with each knot span in as many equal parts as its degree. A part is halved until the middle of the
/// curve is no further than the tolerance from the middle of the chord, in x and in y. A part of which neither ends nor
/// middle are in the box is left as it is, and after a number of halvings all that remain are.
class VX_API SplineTessellator {
public:
    using Edge = vxdatacarrier::RenderDrawEdit2D::Edge;

    /// An edge takes one halving more than the limit.
    static constexpr int c_refinementLimit = 100;

    /// @param edge an edge that has passed `requireCurve`
    /// @return the polyline, with z = 0, until the next call
    const std::vector<Vector3f>& tessellate(const Edge& edge, double tolerance, const vxdatacarrier::BoundingBox2D& box,
                                            int limit = c_refinementLimit);

private:
    /// Stacks of parameters and their points that are still ahead, the next on top.
    std::vector<double> m_parameters;
    std::vector<Vector3f> m_points;
    std::vector<Vector3f> m_polyline;
};

} // namespace vxgraphics3d
