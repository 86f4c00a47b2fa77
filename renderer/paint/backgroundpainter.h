#pragma once

#include "renderer/frame/appearance.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/upload/uniformblock.h"

namespace vxrenderer {

/// Draws what lies behind the scene: a colour, or two that run into each other from top to bottom, and an image over
/// them.
class BackgroundPainter {
public:
    BackgroundPainter();

    /// Fills the whole picture, which is the current viewport.
    /// @param scale pixels of the picture that a pixel of the image takes in each direction
    void draw(const Appearance::Backdrop& backdrop, int width, int height, float scale) const;

private:
    struct BackgroundBlock;

    void drawImage(const Appearance::Backdrop& backdrop, int width, int height, float scale) const;

    GlProgram m_colors;
    GlProgram m_image;
    UniformBlock<BackgroundBlock> m_block;
    GlVertexArray m_array;
    GlTexture m_texture;
};

} // namespace vxrenderer
