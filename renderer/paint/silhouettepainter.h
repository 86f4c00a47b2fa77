#pragma once

#include "renderer/frame/view.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/upload/uniformblock.h"

#include <map>
#include <utility>

namespace vxgraphics3d {
struct Color;
}

namespace vxrenderer {

class Target;

/// Draws lines where the depth of a picture jumps: along the outlines of bodies, also those in front of other bodies.
///
/// Edges of triangles between sides that are seen and not seen would do so too, but on a surface that is not quite even
/// there are many of them next to an outline, of which one sees nothing. Each sample of a pixel is compared with
/// samples at a fixed distance in four directions. It is part of the line if the step to one of them is far larger than
/// that in the opposite direction: surfaces that are seen at a small angle have steps of one size. The part of a pixel
/// that is line is the part of its samples, so that lines are as smooth as the outlines themselves.
class SilhouettePainter {
public:
    /// Draws over what is in the scene buffer of a target, in the viewport of the view, and lets what follows draw
    /// there again.
    /// @param width of the lines, in pixels
    void draw(const Target& target, const View& view, float width, const vxgraphics3d::Color& color);

private:
    struct Block;

    const GlProgram& program(int numSamples, int reach);

    /// By the number of samples and the distance at which they are compared, in fourths of a pixel. Made when they are
    /// used for the first time.
    std::map<std::pair<int, int>, GlProgram> m_programs;
    UniformBlock<Block> m_block;
    GlVertexArray m_array;
};

} // namespace vxrenderer
