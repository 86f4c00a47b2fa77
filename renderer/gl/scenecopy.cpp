#include "renderer/gl/scenecopy.h"

namespace vxrenderer {

void SceneCopy::take(int width, int height)
{
    GLint current = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &current);
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(c_unit));
    glBindTexture(GL_TEXTURE_2D, m_texture.name());
    if (m_width != width || m_height != height) {
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer.name());
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_texture.name(), 0);
        m_width = width;
        m_height = height;
    }
    glBindFramebuffer(GL_READ_FRAMEBUFFER, static_cast<GLuint>(current));
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, m_framebuffer.name());
    glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(current));
}

} // namespace vxrenderer
