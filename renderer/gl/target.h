#pragma once

#include "renderer/gl/globject.h"

#include <cstdint>

namespace vxrenderer {

/// The buffers that a picture is drawn into: one for the scene and, if that has several samples per pixel, a plain one
/// that it is resolved to. Text and legends are drawn over the plain one.
class Target {
public:
    /// The most pixels that a picture may have; with more, the buffers would use up the memory of the process.
    static constexpr std::int64_t c_largestPixelCount = std::int64_t(1) << 26;

    /// @param samples per pixel, 1 for none; more than the driver has are reduced to what it has
    /// @throws std::invalid_argument if a size is below 1 or above what the driver allows
    /// @throws std::runtime_error if the driver cannot provide the buffers
    Target(int width, int height, int samples);

    int getWidth() const { return m_width; }
    int getHeight() const { return m_height; }
    /// Samples in use.
    int getSamples() const { return m_samples; }

    /// Lets what follows draw into the scene buffer, or ask about it.
    void bindScene() const;
    /// Lets what follows draw into the scene buffer, whose depths and stencil are cleared and whose
    /// colours are undefined.
    void beginScene() const;
    /// Lets what follows draw into the colours of the scene buffer while it reads `getDepths`, without a depth test.
    void bindSceneColors() const;
    /// The depths of the scene: a texture with as many samples as the scene, of one sample an ordinary one.
    const GlTexture& getDepths() const { return m_sceneDepth; }
    /// Resolves the scene and lets what follows draw over it, without a depth test.
    void beginOverlay() const;
    /// Copies the picture out: four bytes per pixel, red first, the top row first.
    /// @param pixels space for 4 * width * height bytes
    void read(std::uint8_t* pixels) const;

private:
    /// The colours that text is drawn over.
    const GlFramebuffer& picture() const { return m_samples > 1 ? m_plain : m_sceneColors; }

    int m_width;
    int m_height;
    int m_samples;
    GlFramebuffer m_scene;
    GlRenderbuffer m_sceneColor;
    GlTexture m_sceneDepth;
    GlFramebuffer m_sceneColors;
    /// Of a scene with several samples.
    GlFramebuffer m_plain;
    GlRenderbuffer m_plainColor;
};

} // namespace vxrenderer
