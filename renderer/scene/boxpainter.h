#pragma once

#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"

namespace vxgraphics3d {
class BoundingBox;
}

namespace vxrenderer {

struct View;

/// Draws the edges of a box as thin lines.
class BoxPainter {
public:
    BoxPainter();

    void draw(const vxgraphics3d::BoundingBox& box, const View& view) const;

private:
    GlProgram m_program;
    GLint m_matrix;
    GlVertexArray m_array;
    GlBuffer m_corners;
};

} // namespace vxrenderer
