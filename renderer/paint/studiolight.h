#pragma once

#include "renderer/frame/lighting.h"

#include <epoxy/gl.h>

#include <array>
#include <cstddef>

namespace vxrenderer {

/// Light by which a shape is read at a glance, and which leaves the colours of data as they are in their table as far
/// as it can. It is the uniform block `Studio`.
///
/// It is made of the light of the scene. The larger part of each lamp becomes soft light: ambient light, which is
/// stronger from above and weaker in corners, and a weak light from the eye, so that nothing that is seen is dark. The
/// rest comes from the lamp as before. Highlights are restrained, most of all on colours of a table. What would be too
/// bright keeps the proportion of its channels, and with it hue and saturation, while it approaches the brightest
/// level.
struct StudioLight {
    static constexpr const char* c_block = "Studio";
    static constexpr GLuint c_binding = 9;
    /// The block, with `vec3 softLight(vec3 n, vec3 toEye, vec3 point)` and `vec3 limited(vec3 color)`, for fragment
    /// shaders with the constant `c_hasOcclusion`.
    static const char* const c_source;

    /// Ambient light from above and from below.
    Lighting::Vec4 sky{};
    Lighting::Vec4 ground{};
    /// From the eye.
    Lighting::Vec4 fill{};
    /// The direction of the sky in the eye's coordinates.
    Lighting::Vec4 up{0.0f, 0.94f, 0.34f, 0.0f};
    /// The first pixel of the scene, and the texels of the occlusion for each pixel.
    std::array<float, 4> occlusionArea{};
    /// The size of a pixel for each unit of w, and what the projection takes w from: depth and 1.
    std::array<float, 4> pixelSize{};
    /// Part of highlights on colours of a table and on others.
    std::array<float, 2> highlights{};
    /// What lamps are multiplied by.
    float lamps = 1.0f;
    float unused = 0.0f;

    /// The light made of that of a scene.
    static StudioLight of(const Lighting& scene);
};
static_assert(sizeof(StudioLight) == 112 && offsetof(StudioLight, highlights) == 96);

} // namespace vxrenderer
