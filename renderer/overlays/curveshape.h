#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <string>
#include <vector>

namespace vxgraphics3d {
class OverlayCurve;
}

namespace vxrenderer {

/// What is drawn of a curve, before its transformation: lines as pairs of points, and points, those that are marked
/// apart from the others. Hidden edges and vertices are left out.
///
/// The polygon of an edge shows how its control points bend it; a straight edge has none.
struct CurveShape {
    struct Number {
        vxgraphics3d::Vector3f position;
        std::string text;
    };

    explicit CurveShape(const vxgraphics3d::OverlayCurve& curve);

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
