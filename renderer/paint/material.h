#pragma once

#include "graphics3d/foundation/color.h"

#include <epoxy/gl.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace vxrenderer {

/// The channels of a colour from 0 to 1, as shaders take them.
std::array<float, 4> channelsOf(const vxgraphics3d::Color& color);

/// How faces and lines get their colours: one for all, or that of their data. It is the uniform block `Material`.
///
/// With u the texture coordinate, 0 to 1 over the range of the data, l = mix(dataTex, u) is the position on the legend
/// and t = mix(legendTex, l), with l clamped, the position in the colour table, which is the texture of unit 0. What
/// has a u outside the restriction is not drawn.
struct Material {
    static constexpr const char* c_block = "Material";
    static constexpr GLuint c_binding = 2;
    /// The block, with `bool isHidden(float u)` and `vec3 materialColor(float u)`, for fragment shaders. Those that are
    /// only for materials with a table use `vec4 tableTexel(float u)` instead, see `ColorTextures` for the alpha.
    static const char* const c_source;

    /// Channels from 0 to 1. Alpha is the opacity, also of colours of a table.
    std::array<float, 4> color{0.0f, 0.0f, 0.0f, 1.0f};
    std::array<float, 2> dataTex{0.0f, 1.0f};
    std::array<float, 2> legendTex{0.0f, 1.0f};
    std::array<float, 2> restriction{-std::numeric_limits<float>::max(), std::numeric_limits<float>::max()};
    /// Whether the colours are those of the table.
    std::int32_t hasTable = 0;
    std::int32_t isReversed = 0;
    float shininess = 64.0f;
    /// Whether colours of the table that are side by side may differ visibly; shaders do not read it.
    std::int32_t hasSteps = 0;
    std::array<float, 2> unused{};

    bool isTranslucent() const { return color[3] < 1.0f; }
    bool isRestricted() const
    {
        return restriction[0] > -std::numeric_limits<float>::max() ||
               restriction[1] < std::numeric_limits<float>::max();
    }

    /// Whether the restriction hides a texture coordinate.
    bool hides(float u) const { return u < restriction[0] || u > restriction[1]; }
    /// The same opacity and restriction in one colour.
    Material inColor(const vxgraphics3d::Color& newColor) const;

    /// One colour, with its own alpha.
    static Material of(const vxgraphics3d::Color& color);
};
static_assert(sizeof(Material) == 64 && offsetof(Material, dataTex) == 16 && offsetof(Material, restriction) == 32 &&
              offsetof(Material, hasTable) == 40 && offsetof(Material, shininess) == 48);

} // namespace vxrenderer
