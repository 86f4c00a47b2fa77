#pragma once

#include "renderer/gl/globject.h"

namespace vxrenderer {

/// A copy of the colours drawn so far, one for each pixel, for shaders that take them into account.
class SceneCopy {
public:
    /// The texture unit that it is bound to.
    static constexpr GLint c_unit = 6;

    /// Copies what the current framebuffer holds, within the scissor box if that is on, and binds the copy.
    void take(int width, int height);

private:
    GlFramebuffer m_framebuffer;
    GlTexture m_texture;
    int m_width = 0;
    int m_height = 0;
};

} // namespace vxrenderer
