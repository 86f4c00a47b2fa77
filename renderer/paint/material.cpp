#include "renderer/paint/material.h"

namespace vxrenderer {

const char* const Material::c_source = R"(
const int c_tableSize = 1024;

layout(std140) uniform Material {
    vec4 uniformColor;
    vec2 dataTex;
    vec2 legendTex;
    vec2 restriction;
    bool hasTable;
    bool isReversed;
    float shininess;
};
uniform sampler1D colorTable;

bool isHidden(float u)
{
    return u < restriction.x || u > restriction.y;
}

vec4 tableTexel(float u)
{
    float l = mix(dataTex.x, dataTex.y, u);
    float t = mix(legendTex.x, legendTex.y, clamp(l, 0.0, 1.0));
    t = isReversed ? 1.0 - t : t;
    return texelFetch(colorTable, clamp(int(t * float(c_tableSize)), 0, c_tableSize - 1), 0);
}

vec3 materialColor(float u)
{
    return hasTable ? tableTexel(u).rgb : uniformColor.rgb;
}

// By how many texels of the table values differ at most.
float inTexels(float difference)
{
    return abs(difference * (dataTex.y - dataTex.x) * (legendTex.y - legendTex.x)) * float(c_tableSize);
}
)";

std::array<float, 4> channelsOf(const vxgraphics3d::Color& color)
{
    const auto channel = [](int value) { return static_cast<float>(value) / 255.0f; };
    return {channel(color.red), channel(color.green), channel(color.blue), channel(color.alpha)};
}

Material Material::inColor(const vxgraphics3d::Color& newColor) const
{
    Material material = *this;
    material.color = channelsOf(newColor);
    material.color[3] = color[3];
    material.hasTable = 0;
    return material;
}

Material Material::of(const vxgraphics3d::Color& color)
{
    Material material;
    material.color = channelsOf(color);
    return material;
}

} // namespace vxrenderer
