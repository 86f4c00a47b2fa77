#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/graph/linestyle.h"
#include "renderer/paint/linepainter.h"

#include <vector>

namespace vxrenderer {

/// Divides polylines of pixels into the dashes and dots of a style.
///
/// The pattern runs on around the corners of a polyline. Pieces are as `LinePainter` draws them, with ends that reach
/// half the width of the line beyond their points.
class LineDashes {
public:
    /// @param style dashed, dotted or dashDot
    /// @param lineWidth in pixels
    /// @param width,height of the area: what lies outside of it has no dashes
    /// @param scale pixels of the picture for a pixel of the screen
    LineDashes(LineStyle style, float lineWidth, float width, float height, float scale);

    /// Starts another polyline.
    void moveTo(const vxgraphics3d::Vector3f& point);
    void lineTo(const vxgraphics3d::Vector3f& point);

    const std::vector<LineSegment>& getDashes() const { return m_dashes; }

private:
    void addDashes(const vxgraphics3d::Vector3f& from, const vxgraphics3d::Vector3f& to, double start, double length);

    float m_reach;
    float m_width;
    float m_height;
    /// Lengths of dashes and gaps in turn.
    std::vector<double> m_pattern;
    double m_period = 0.0;
    /// Distance of the current point from the start of the polyline.
    double m_distance = 0.0;
    vxgraphics3d::Vector3f m_point;
    std::vector<LineSegment> m_dashes;
};

} // namespace vxrenderer
