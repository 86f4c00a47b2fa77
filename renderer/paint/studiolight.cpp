#include "renderer/paint/studiolight.h"

#include <algorithm>

namespace vxrenderer {
namespace {

/// What becomes of the light of lamps.
constexpr float c_ambientPart = 0.54f;
constexpr float c_fillPart = 0.13f;
constexpr float c_lampPart = 1.0f - c_ambientPart - c_fillPart;
/// Ambient light from below, as a part of that from above.
constexpr float c_ground = 0.8f;
/// How bright a face is that faces the eye, in a scene with this much light or more. It is a little more than the
/// colours of data, since most faces look elsewhere.
constexpr float c_exposure = 1.06f;
constexpr float c_leastLight = 0.5f;

/// What the light of a scene is multiplied by.
float exposureOf(const StudioLight& studio, const Lighting& scene)
{
    float strongest = c_leastLight;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const float sky = 0.5f + 0.5f * studio.up[2];
        float light = sky * studio.sky[channel] + (1.0f - sky) * studio.ground[channel] + studio.fill[channel];
        for (std::size_t i = 0; i < scene.numLights; ++i) {
            // Light with a position comes from different sides, and counts as if it came from the eye.
            const float falling = scene.places[i][3] > 0.0f ? 1.0f : std::max(scene.places[i][2], 0.0f);
            light += c_lampPart * falling * scene.diffuse[i][channel];
        }
        strongest = std::max(strongest, light);
    }
    return c_exposure / strongest;
}

} // namespace

const char* const StudioLight::c_source = R"(
layout(std140) uniform Studio {
    vec4 sky;
    vec4 ground;
    vec4 fill;
    vec4 up;
    vec4 occlusionArea;
    vec4 pixelSizes;
    vec2 highlights;
    float lamps;
};
// Occlusion and depth.
uniform sampler2D occlusion;

// The ambient light that does not reach a point, from the texels around it: those at its own depth count.
float occlusionAt(float depth)
{
    vec2 place = (gl_FragCoord.xy - occlusionArea.xy) * occlusionArea.zw - 0.5;
    vec2 first = floor(place);
    vec2 part = place - first;
    ivec2 last = textureSize(occlusion, 0) - 1;
    float tolerance = pixelSizes.x * (pixelSizes.y * depth + pixelSizes.z);
    float sum = 0.0;
    float weights = 0.0;
    for (int i = 0; i < 4; ++i) {
        ivec2 corner = ivec2(i & 1, i >> 1);
        vec2 texel = texelFetch(occlusion, clamp(ivec2(first) + corner, ivec2(0), last), 0).xy;
        vec2 near = mix(1.0 - part, part, vec2(corner));
        float weight = (near.x * near.y + 1e-3) / (tolerance + abs(texel.y - depth));
        sum += weight * texel.x;
        weights += weight;
    }
    return sum / weights;
}

vec3 softLight(vec3 n, vec3 toEye, vec3 point)
{
    vec3 ambient = mix(ground.rgb, sky.rgb, 0.5 + 0.5 * dot(n, up.xyz));
    if (c_hasOcclusion) {
        ambient *= 1.0 - occlusionAt(point.z);
    }
    return ambient + fill.rgb * max(dot(n, toEye), 0.0);
}

// From c_shoulder on, the strongest channel approaches c_brightest; the others stay in proportion.
const float c_shoulder = 0.88;
const float c_brightest = 0.985;

vec3 limited(vec3 color)
{
    float strongest = max(max(color.r, color.g), color.b);
    if (strongest <= c_shoulder) {
        return color;
    }
    const float space = c_brightest - c_shoulder;
    return color * ((c_shoulder + space * (1.0 - exp((c_shoulder - strongest) / space))) / strongest);
}
)";

StudioLight StudioLight::of(const Lighting& scene)
{
    StudioLight studio;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        float lamps = 0.0f;
        for (std::size_t i = 0; i < scene.numLights; ++i) {
            lamps += scene.diffuse[i][channel];
        }
        studio.sky[channel] = scene.ambient[channel] + c_ambientPart * lamps;
        studio.ground[channel] = c_ground * studio.sky[channel];
        studio.fill[channel] = c_fillPart * lamps;
    }
    const float exposure = exposureOf(studio, scene);
    for (std::size_t channel = 0; channel < 3; ++channel) {
        studio.sky[channel] *= exposure;
        studio.ground[channel] *= exposure;
        studio.fill[channel] *= exposure;
    }
    studio.highlights = {0.2f, 0.7f};
    studio.lamps = c_lampPart * exposure;
    return studio;
}

} // namespace vxrenderer
