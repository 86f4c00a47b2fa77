#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"

#include <span>

namespace vxgraphics3d {
class Matrixf;
}

namespace vxrenderer {

/// A straight line between two points.
struct LineSegment {
    vxgraphics3d::Vector3f from;
    vxgraphics3d::Vector3f to;
};

/// Draws lines of any width: a driver need not offer lines wider than one pixel, so each is a rectangle that faces the
/// eye.
class LinePainter {
public:
    LinePainter();

    /// @param toClip from the points to the present viewport
    /// @param width,height of the viewport in pixels
    /// @param lineWidth in pixels; the ends reach half of it beyond the points
    void draw(std::span<const LineSegment> lines, const vxgraphics3d::Matrixf& toClip, int width, int height,
              float lineWidth, const vxgraphics3d::Color& color);

private:
    GlProgram m_program;
    GLint m_toClip;
    GLint m_viewport;
    GLint m_lineWidth;
    GLint m_color;
    GlVertexArray m_array;
    GlBuffer m_buffer;
};

/// From pixels of a picture, counted from its top left corner, to clip coordinates; depths stay.
vxgraphics3d::Matrixf pixelsToClip(int width, int height);

} // namespace vxrenderer
