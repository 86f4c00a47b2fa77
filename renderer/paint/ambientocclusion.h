#pragma once

#include "renderer/frame/view.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/upload/uniformblock.h"

#include <array>

namespace vxrenderer {

/// Finds out how much ambient light reaches the surfaces of a picture: less of it in corners and holes.
///
/// The surfaces are first drawn with their normals and depths, at half the resolution, or less in a very large picture.
/// Each of these pixels then looks at others around it, and what rises above its surface within a radius hides some of
/// the light from it. Neighbouring pixels look at different ones, in a pattern of four by four pixels that repeats; two
/// passes of blurring take the mean of means of such squares as far as they belong to one surface. So a picture has no
/// noise and is the same each time.
class AmbientOcclusion {
public:
    /// Texture unit of the result.
    static constexpr GLint c_unit = 4;

    AmbientOcclusion();

    /// Lets what follows draw normals into a buffer of its own. Changes the framebuffer and the viewport.
    /// @return the view that has to be drawn
    View beginShapes(const View& view);
    /// Finds the occlusion from what was drawn since, and binds it: occlusion, and depth in the eye's coordinates.
    /// @param radius within which surfaces hide light from each other, in the eye's coordinates
    void finish(float radius);

    /// Size of the result in texels.
    int getWidth() const { return m_width; }
    int getHeight() const { return m_height; }

private:
    struct Block;
    /// A buffer of one texture.
    struct Layer {
        GlTexture texture;
        GlFramebuffer buffer;
    };

    void resize(int width, int height);
    void run(const GlProgram& program, const Layer& layer) const;

    int m_width = 0;
    int m_height = 0;
    View m_view;
    Layer m_normals;
    GlTexture m_depths;
    /// Depths in the eye's coordinates.
    Layer m_distances;
    std::array<Layer, 2> m_results;
    GlProgram m_measure;
    GlProgram m_find;
    GlProgram m_blurAcross;
    GlProgram m_blurDown;
    UniformBlock<Block> m_block;
    GlVertexArray m_array;
};

} // namespace vxrenderer
