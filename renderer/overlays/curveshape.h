#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <string>
#include <vector>

namespace vxgraphics3d {
class OverlayCurve;
}

namespace vxrenderer {

/// Appends the segments of a polyline of `count` vertices of three floats as pairs of points.
void appendPolyline(std::vector<vxgraphics3d::Vector3f>& lines, const float* vertices, int count);

/// What is drawn of a curve, before its transformation: lines as pairs of points, and points, those that are marked
/// apart from the others. Hidden edges and vertices are left out.
///
/// The polygon of an edge shows how its control points bend it; a straight edge has none. Of an edge that is drawn
/// between vertices the first and last control points are left out, because they have no influence on it.
struct CurveShape {
    struct Number {
        vxgraphics3d::Vector3f position;
        std::string text;
    };

    explicit CurveShape(const vxgraphics3d::OverlayCurve& curve);

    /// Of all edges, for the fill.
    std::vector<vxgraphics3d::Vector3f> outline;
    std::vector<vxgraphics3d::Vector3f> lines;
    std::vector<vxgraphics3d::Vector3f> markedLines;
    std::vector<vxgraphics3d::Vector3f> polygons;
    std::vector<vxgraphics3d::Vector3f> vertices;
    std::vector<vxgraphics3d::Vector3f> markedVertices;
    std::vector<vxgraphics3d::Vector3f> controlPoints;
    std::vector<vxgraphics3d::Vector3f> markedControlPoints;
    std::vector<Number> numbers;

private:
    void addEdge(const vxgraphics3d::OverlayCurve& curve, int edge);
};

} // namespace vxrenderer
