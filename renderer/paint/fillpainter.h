#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/upload/uniformblock.h"

#include <span>

namespace vxrenderer {

/// Fills flat areas with one colour.
class FillPainter {
public:
    FillPainter();

    /// Fills what is inside an odd number of the areas around which the lines of an outline run. The lines are pairs of
    /// points, in any order; a chain that is not closed is closed by straight lines to the first point. Each pixel is
    /// blended once. Needs a target with a stencil buffer, which is 0 everywhere, and stays so.
    /// @param toClip from the points to the current viewport
    void fill(std::span<const vxgraphics3d::Vector3f> lines, const vxgraphics3d::Matrixf& toClip,
              const vxgraphics3d::Color& color) const;

private:
    struct FillBlock;

    GlProgram m_program;
    UniformBlock<FillBlock> m_block;
    GlVertexArray m_array;
    GlBuffer m_buffer;
};

} // namespace vxrenderer
