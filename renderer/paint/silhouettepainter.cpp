#include "renderer/paint/silhouettepainter.h"

#include "renderer/gl/target.h"
#include "renderer/paint/material.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

/// What counts as a step, in pixels of the scale of the picture at the depth of the sample.
constexpr float c_leastStep = 7.0f;

constexpr const char* c_vertexMain = R"(
void main()
{
    vec2 place = vec2(gl_VertexID & 1, gl_VertexID >> 1);
    gl_Position = vec4(4.0 * place - 1.0, 0.0, 1.0);
}
)";

// Depths as they are in the buffer change evenly over a flat face, also in perspective.
constexpr const char* c_fragmentStart = R"(
layout(std140) uniform Silhouettes {
    vec4 color;
    // What depth and w of clip space are made of: of depth in the eye's coordinates, and a constant.
    vec2 rowZ;
    vec2 rowW;
    // The first and the last pixel of the scene.
    ivec2 first;
    ivec2 last;
    // A step at w = 1.
    float leastStep;
};
out vec4 result;
// Where nothing was drawn there is a step to everything.
const float c_nothing = 1e3;

float known(float depth)
{
    return depth < 1.0 ? depth : c_nothing;
}

float wOf(float depth)
{
    float clip = 2.0 * depth - 1.0;
    return rowW.x * (rowZ.y - clip * rowW.y) / (clip * rowW.x - rowZ.x) + rowW.y;
}

const float c_farSteeper = 3.0;

const float c_fullStep = 3.0;

// How much of a step there is to one of two opposite neighbours. A line fades where the step gets low.
float stepAt(float here, float one, float other, float least)
{
    float to = c_isOneSided ? one - here : abs(one - here);
    float back = c_isOneSided ? other - here : abs(other - here);
    float height = max(to - c_farSteeper * abs(back), back - c_farSteeper * abs(to));
    return clamp((height / least - 1.0) / (c_fullStep - 1.0), 0.0, 1.0);
}
)";

constexpr const char* c_singleDepth = R"(
uniform sampler2D depths;

float depthAt(ivec2 pixel, int which)
{
    return known(texelFetch(depths, clamp(pixel, first, last), 0).r);
}
)";

constexpr const char* c_sampledDepth = R"(
uniform sampler2DMS depths;

float depthAt(ivec2 pixel, int which)
{
    return known(texelFetch(depths, clamp(pixel, first, last), which).r);
}
)";

struct Place {
    float x;
    float y;
};

/// Where the samples of a pixel are, from its lower left corner, in the buffer in use.
std::vector<Place> samplePlaces(int numSamples)
{
    std::vector<Place> places(static_cast<std::size_t>(numSamples), {0.5f, 0.5f});
    for (GLuint i = 0; numSamples > 1 && i < places.size(); ++i) {
        std::array<float, 2> place{};
        glGetMultisamplefv(GL_SAMPLE_POSITION, i, place.data());
        places[i] = {place[0], place[1]};
    }
    return places;
}

/// A sample of a pixel near this one.
struct Sample {
    int dx;
    int dy;
    int which;
    auto operator<=>(const Sample&) const = default;
};

/// The sample closest to a position, other than the one that is compared.
Sample closestTo(Place wanted, const Sample& own, const std::vector<Place>& places)
{
    Sample best{};
    float least = 1e9f;
    const auto pixelX = static_cast<int>(std::floor(wanted.x));
    const auto pixelY = static_cast<int>(std::floor(wanted.y));
    for (int dy = pixelY - 1; dy <= pixelY + 1; ++dy) {
        for (int dx = pixelX - 1; dx <= pixelX + 1; ++dx) {
            for (int which = 0; which < static_cast<int>(places.size()); ++which) {
                const Place& its = places[static_cast<std::size_t>(which)];
                const float distance =
                    std::hypot(static_cast<float>(dx) + its.x - wanted.x, static_cast<float>(dy) + its.y - wanted.y);
                if (distance < least - 1e-4f && Sample{dx, dy, which} != own) {
                    least = distance;
                    best = {dx, dy, which};
                }
            }
        }
    }
    return best;
}

/// The text that compares all samples of a pixel.
std::string mainOf(const std::vector<Place>& places, float reach)
{
    std::vector<Sample> read;
    const auto nameOf = [&read](const Sample& sample) {
        const auto found = std::ranges::find(read, sample);
        const auto position = found - read.begin();
        if (found == read.end()) {
            read.push_back(sample);
        }
        return std::string("d").append(std::to_string(position));
    };
    std::string comparisons;
    for (int which = 0; which < static_cast<int>(places.size()); ++which) {
        const Sample own = {0, 0, which};
        const Place& here = places[static_cast<std::size_t>(which)];
        const std::string name = nameOf(own);
        // The directions in which the samples of a pixel usually lie, so that they are next to each other.
        const auto neighbour = [&](float x, float y) {
            return nameOf(closestTo({here.x + reach * x, here.y + reach * y}, own, places));
        };
        const float x = places.size() > 1 ? 0.8944272f : 1.0f;
        const float y = places.size() > 1 ? 0.4472136f : 0.0f;
        comparisons += "    count += max(stepAt(" + name + ", " + neighbour(x, y) + ", " + neighbour(-x, -y) +
                       ", least), stepAt(" + name + ", " + neighbour(-y, x) + ", " + neighbour(y, -x) + ", least));\n";
    }
    std::string text = "void main()\n{\n    ivec2 pixel = ivec2(gl_FragCoord.xy);\n    float nearest = c_nothing;\n";
    for (std::size_t i = 0; i < read.size(); ++i) {
        const std::string name = std::string("d").append(std::to_string(i));
        text += "    float " + name + " = depthAt(pixel + ivec2(" + std::to_string(read[i].dx) + ", " +
                std::to_string(read[i].dy) + "), " + std::to_string(read[i].which) + ");\n    nearest = min(nearest, " +
                name + ");\n";
    }
    return text +
           "    if (nearest == c_nothing) {\n        discard;\n    }\n    float w = wOf(nearest);\n"
           "    float least = leastStep / w;\n    float count = 0.0;\n" +
           comparisons +
           "    if (count == 0.0) {\n        discard;\n    }\n    result = vec4(color.rgb, color.a * count / " +
           std::to_string(places.size()) + ".0);\n}\n";
}

} // namespace

struct SilhouettePainter::Block {
    static constexpr const char* c_block = "Silhouettes";
    static constexpr GLuint c_binding = 11;

    std::array<float, 4> color;
    std::array<float, 2> rowZ;
    std::array<float, 2> rowW;
    std::array<GLint, 2> first;
    std::array<GLint, 2> last;
    float leastStep;
    std::array<float, 3> unused{};
};

const GlProgram& SilhouettePainter::program(int numSamples, int reach)
{
    auto known = m_programs.find({numSamples, reach});
    if (known == m_programs.end()) {
        const std::string text = std::string("const bool c_isOneSided = ") + (numSamples > 1 ? "false" : "true") +
                                 ";\n" + c_fragmentStart + (numSamples > 1 ? c_sampledDepth : c_singleDepth) +
                                 mainOf(samplePlaces(numSamples), 0.25f * static_cast<float>(reach));
        known = m_programs.try_emplace({numSamples, reach}, "silhouettes", c_vertexMain, text.c_str()).first;
        m_block.attach(known->second);
    }
    return known->second;
}

void SilhouettePainter::draw(const Target& target, const View& view, float width, const vxgraphics3d::Color& color)
{
    // Two steps of the distance are the width of a line; those of four samples are a bit more than half a pixel.
    const int reach = std::max(2, static_cast<int>(std::lround(2.0f * width)));
    const int numSamples = target.getSamples();
    const GlProgram& its = program(numSamples, reach);
    target.bindSceneColors();
    const vxgraphics3d::Matrixf& p = view.projection;
    const float pixel = view.pixelSize();
    const float slope = 0.5f * std::abs(p.get(3, 3) * p.get(4, 4) - p.get(3, 4) * p.get(4, 3));
    GLint viewport[4];
    glGetIntegerv(GL_VIEWPORT, viewport);
    m_block.set({channelsOf(color),
                 {p.get(3, 3), p.get(3, 4)},
                 {p.get(4, 3), p.get(4, 4)},
                 {viewport[0], viewport[1]},
                 {viewport[0] + viewport[2] - 1, viewport[1] + viewport[3] - 1},
                 c_leastStep * 0.25f * static_cast<float>(reach) * pixel * slope});
    its.use();
    glActiveTexture(GL_TEXTURE0);
    const GLenum kind = numSamples > 1 ? GL_TEXTURE_2D_MULTISAMPLE : GL_TEXTURE_2D;
    glBindTexture(kind, target.getDepths().name());
    glDisable(GL_DEPTH_TEST);
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glBindVertexArray(m_array.name());
    glDrawArrays(GL_TRIANGLES, 0, 3);
    glDisable(GL_BLEND);
    glEnable(GL_DEPTH_TEST);
    glBindTexture(kind, 0);
    target.bindScene();
}

} // namespace vxrenderer
