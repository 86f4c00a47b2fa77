#include "renderer/gl/target.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace vxrenderer {
namespace {

GLint limit(GLenum name)
{
    GLint value = 0;
    glGetIntegerv(name, &value);
    return value;
}

void requireSize(int width, int height)
{
    const int largest =
        std::min({limit(GL_MAX_RENDERBUFFER_SIZE), limit(GL_MAX_VIEWPORT_DIMS), limit(GL_MAX_TEXTURE_SIZE)});
    const std::string size = std::to_string(width) + " by " + std::to_string(height);
    if (width < 1 || height < 1) {
        throw std::invalid_argument("A picture needs at least one pixel in each direction, not " + size + ".");
    }
    if (width > largest || height > largest || std::int64_t(width) * height > Target::c_largestPixelCount) {
        throw std::invalid_argument("A picture of " + size + " is too large: a side has at most " +
                                    std::to_string(largest) + ", all of it " +
                                    std::to_string(Target::c_largestPixelCount) + " pixels.");
    }
}

void requireComplete(const char* name)
{
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE) {
        throw std::runtime_error(std::string("The driver does not give the ") + name + " of the picture.");
    }
}

void attach(const GlRenderbuffer& buffer, GLenum point, GLenum format, int samples, int width, int height)
{
    glBindRenderbuffer(GL_RENDERBUFFER, buffer.name());
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples > 1 ? samples : 0, format, width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, point, GL_RENDERBUFFER, buffer.name());
}

/// Makes depths and stencil a texture, so that shaders can read them. The number of samples must be that of the
/// colours, for which drivers may take more than was asked for.
void attachDepths(const GlTexture& texture, int samples, int width, int height)
{
    const GLenum kind = samples > 1 ? GL_TEXTURE_2D_MULTISAMPLE : GL_TEXTURE_2D;
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(kind, texture.name());
    if (samples > 1) {
        glTexImage2DMultisample(kind, samples, GL_DEPTH24_STENCIL8, width, height, GL_TRUE);
    } else {
        glTexImage2D(kind, 0, GL_DEPTH24_STENCIL8, width, height, 0, GL_DEPTH_STENCIL, GL_UNSIGNED_INT_24_8, nullptr);
        glTexParameteri(kind, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(kind, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    }
    glBindTexture(kind, 0);
    glFramebufferTexture(GL_FRAMEBUFFER, GL_DEPTH_STENCIL_ATTACHMENT, texture.name(), 0);
}

} // namespace

Target::Target(int width, int height, int samples) : m_width(width), m_height(height), m_samples(1)
{
    requireSize(width, height);
    m_samples =
        std::clamp(samples, 1, std::max(1, std::min(limit(GL_MAX_SAMPLES), limit(GL_MAX_DEPTH_TEXTURE_SAMPLES))));

    glBindFramebuffer(GL_FRAMEBUFFER, m_scene.name());
    attach(m_sceneColor, GL_COLOR_ATTACHMENT0, GL_RGBA8, m_samples, width, height);
    GLint samplesOfColors = 0;
    glGetRenderbufferParameteriv(GL_RENDERBUFFER, GL_RENDERBUFFER_SAMPLES, &samplesOfColors);
    attachDepths(m_sceneDepth, samplesOfColors, width, height);
    requireComplete("scene buffer");

    glBindFramebuffer(GL_FRAMEBUFFER, m_sceneColors.name());
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_sceneColor.name());
    requireComplete("colours of the scene buffer");

    if (m_samples > 1) {
        glBindFramebuffer(GL_FRAMEBUFFER, m_plain.name());
        attach(m_plainColor, GL_COLOR_ATTACHMENT0, GL_RGBA8, 1, width, height);
        requireComplete("image buffer");
    }
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for a picture of this size.");
    }
}

void Target::bindScene() const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_scene.name());
}

void Target::bindSceneColors() const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_sceneColors.name());
}

void Target::beginScene() const
{
    bindScene();
    glViewport(0, 0, m_width, m_height);
    glDisable(GL_SCISSOR_TEST);
    glDepthMask(GL_TRUE);
    // Both at once: they share their memory.
    glClear(GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
}

void Target::beginOverlay() const
{
    glDisable(GL_SCISSOR_TEST);
    if (m_samples > 1) {
        glBindFramebuffer(GL_READ_FRAMEBUFFER, m_scene.name());
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, m_plain.name());
        glBlitFramebuffer(0, 0, m_width, m_height, 0, 0, m_width, m_height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    }
    glBindFramebuffer(GL_FRAMEBUFFER, picture().name());
    glViewport(0, 0, m_width, m_height);
}

void Target::read(std::uint8_t* pixels) const
{
    glBindFramebuffer(GL_READ_FRAMEBUFFER, picture().name());
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, m_width, m_height, GL_RGBA, GL_UNSIGNED_BYTE, pixels);

    // The first row read is the bottom one.
    const std::ptrdiff_t row = std::ptrdiff_t(4) * m_width;
    for (std::uint8_t *top = pixels, *bottom = pixels + (m_height - 1) * row; top < bottom; top += row, bottom -= row) {
        std::swap_ranges(top, top + row, bottom);
    }
}

} // namespace vxrenderer
