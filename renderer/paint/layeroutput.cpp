#include "renderer/paint/layeroutput.h"

#include "renderer/paint/transparency.h"

namespace vxrenderer {
namespace {

// The colour of a fragment goes into the sums of the layer that is added up, its depth into the search for the next
// layer, if it belongs to them. Depths count towards the eye, so that the nearest is the largest, and 0 is none.
constexpr const char* c_layersMain = R"(
#undef main
#ifndef OPACITY
#define OPACITY 1.0
#endif
layout(std140) uniform Layers {
    vec4 depthRows;
    vec2 depthPlanes;
    ivec2 layersOrigin;
    int layersSample;
    int layersStep;
};
uniform sampler2D formerLayer;
uniform sampler2D layerLimits;
// The sums of weighted colours, and the depth of the next layer.
layout(location = 0) out vec4 layerColor;
// The sums of weights, and the number of fragments or the logarithm of what they let through together.
layout(location = 1) out vec2 layerCover;

const float c_sameDepth = 1.0 / 1048576.0;

// Sums of such numbers are exact as long as they are below 2^24 times the step.
float inSteps(float value, float steps)
{
    return floor(value * steps + 0.5) / steps;
}

// What is nearer counts more where everything is mixed at once: 64 times as much at the near plane as at the far one.
float weightOf(float nearness)
{
    float z = 1.0 - 2.0 * nearness;
    float eye = (depthRows.y - z * depthRows.w) / (z * depthRows.z - depthRows.x);
    return exp2(4.0 - 6.0 * clamp((eye - depthPlanes.x) / (depthPlanes.y - depthPlanes.x), 0.0, 1.0));
}

void main()
{
    paintFragment();
    float nearness = 1.0 - c_depth;
    float limit = texelFetch(layerLimits, ivec2(gl_FragCoord.xy), 0).r;
    bool isFirst = layersStep == 0;
    bool isTail = layersStep >= 2;
    float former = isFirst || layersStep == 3 ? 2.0 : texelFetch(formerLayer, ivec2(gl_FragCoord.xy), 0).a;
    bool isNext = !isTail && nearness < former - (isFirst ? 0.0 : c_sameDepth);
    bool isIn = !isFirst && nearness <= former && (isTail || !isNext);
    float alpha = clamp(OPACITY * result.a, 0.0, 1.0);
    if (!(isNext || isIn) || nearness < limit || !(alpha > 0.0)) {
        discard;
    }
    float steps = isTail ? 16384.0 : 65536.0;
    float weight = isIn ? inSteps(alpha * (isTail ? weightOf(nearness) : 1.0), steps) : 0.0;
    float through = isTail ? inSteps(min(-log2(1.0 - min(alpha, 0.9999)), 24.0), 4096.0) : 1.0;
    layerColor = vec4(inSteps(weight * result.r, steps), inSteps(weight * result.g, steps),
                      inSteps(weight * result.b, steps), isNext ? nearness : 0.0);
    layerCover = vec2(weight, isIn ? through : 0.0);
}
)";

} // namespace

std::string withOutput(FragmentOutput output, const std::string& source, bool writesDepth)
{
    if (output == FragmentOutput::picture) {
        return "#define OUTPUT out\n" + source;
    }
    // Definitions may precede extensions, which have to be named before everything else.
    return layersDefinition(output) + "#define OUTPUT\n#define main paintFragment\n" + source + "\n#define c_depth " +
           (writesDepth ? "gl_FragDepth" : "gl_FragCoord.z") + c_layersMain;
}

std::string layersDefinition(FragmentOutput output)
{
    return output == FragmentOutput::layers ? "#define LAYERED\n" : "";
}

void attachLayers(const GlProgram& program)
{
    program.bindBlock(LayersBlock::c_block, LayersBlock::c_binding, sizeof(LayersBlock));
    program.setSampler("formerLayer", LayersBlock::c_layerUnit);
    program.setSampler("layerLimits", LayersBlock::c_limitUnit);
}

} // namespace vxrenderer
