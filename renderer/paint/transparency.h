#pragma once

#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/upload/uniformblock.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace vxrenderer {

class Target;
struct View;

/// What programs that write to layers read, the uniform block `Layers`.
struct LayersBlock {
    static constexpr const char* c_block = "Layers";
    static constexpr GLuint c_binding = 11;
    /// The texture units of the layer before, and of the nearest depths that are opaque.
    static constexpr GLint c_layerUnit = 5;
    static constexpr GLint c_limitUnit = 6;

    /// The rows of the projection that depths come from: what z and w take from the depth in the eye's coordinates.
    std::array<float, 4> depthRows{};
    /// The depths of the near and the far plane in the eye's coordinates.
    std::array<float, 2> planes{};
    /// The corner of the layers in the scene, in pixels, and the sample of these that is found.
    std::array<std::int32_t, 2> origin{};
    std::int32_t sample = 0;
    std::int32_t step = 0;
    std::array<float, 2> unused{};
};
static_assert(sizeof(LayersBlock) == 48 && offsetof(LayersBlock, planes) == 16);

/// Mixes what is translucent in a 3D view in the order of its depths, whatever the order in which it is drawn.
///
/// Each sample of a pixel is found on its own, in a picture with one sample that is shifted by the position of the
/// sample, and covers that sample of the scene in the end. Layers are peeled off from front to back: each pass adds up
/// the fragments at the depth of the layer, which the pass before has found, and finds the depth of the next layer.
/// What is at the same depth, like two faces of one shape, is one layer with their mean colour. Everything behind the
/// last layer is mixed as one, the nearer the more (weighted blending), which needs no order. All sums are of multiples
/// of a power of two that leave no remainder, so that their order does not matter to the last bit.
class Transparency {
public:
    /// Layers of a full picture. What has fewer takes fewer passes.
    static constexpr int c_fullLayers = 8;

    /// Draws everything that is translucent, with programs that write to layers.
    /// @param view to draw it in: the one of the scene, shifted by less than a pixel
    using Draw = std::function<void(const View& view)>;

    Transparency();
    ~Transparency();
    Transparency(const Transparency&) = delete;
    Transparency& operator=(const Transparency&) = delete;

    /// Mixes what is translucent over what the area of the view shows, whose depths limit it.
    /// @param numLayers that are mixed in their order; 0 mixes everything as one, in a single pass for each sample
    void draw(const Target& target, const View& view, int numLayers, const Draw& draw);
    /// Frees the buffers, for a picture without anything translucent.
    void release();

private:
    struct Buffers;
    struct Band;

    void drawSample(const Band& band, int numLayers, const Draw& draw) const;
    void drawPass(const Band& band, int pass, int step, const Draw& draw) const;
    int countNextLayer(int pass) const;
    void merge(int pass, bool isTail) const;
    void drawQuad(const GlProgram& program) const;

    GlProgram m_depthProgram;
    GlProgram m_multisampledDepthProgram;
    GlProgram m_nextProgram;
    GlProgram m_layerProgram;
    GlProgram m_tailProgram;
    GlProgram m_coverProgram;
    GlVertexArray m_array;
    UniformBlock<LayersBlock> m_block;
    std::unique_ptr<Buffers> m_buffers;
};

} // namespace vxrenderer
