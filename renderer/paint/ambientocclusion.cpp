#include "renderer/paint/ambientocclusion.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace vxrenderer {
namespace {

/// The radius in the picture is at most this part of its smaller side, so that the pixels that are looked at stay close
/// enough to each other.
constexpr float c_widestRadius = 0.12f;
/// Each takes 32 bytes; larger pictures have fewer for each pixel.
constexpr std::int64_t c_mostTexels = 2000000;

constexpr const char* c_vertexMain = R"(
void main()
{
    vec2 place = vec2(gl_VertexID & 1, gl_VertexID >> 1);
    gl_Position = vec4(4.0 * place - 1.0, 0.0, 1.0);
}
)";

constexpr const char* c_common = R"(
layout(std140) uniform Occlusion {
    // What x, y, depth and w of clip space are made of: of the coordinate itself, of depth, and a constant.
    vec4 rowX;
    vec4 rowY;
    vec4 rowZ;
    vec4 rowW;
    // Within which surfaces hide light from each other; how many pixels it is at most; the size of a pixel for each unit
    // of w.
    float radius;
    float widest;
    float pixelSize;
};
uniform sampler2D normals;
uniform sampler2D depths;
uniform sampler2D distances;
uniform sampler2D found;
const float c_nothing = 1e30;

float wOf(float z)
{
    return rowW.y * z + rowW.z;
}

// A point in the eye's coordinates.
vec3 pointAt(ivec2 pixel, float z)
{
    vec2 clip = wOf(z) * (2.0 * (vec2(pixel) + 0.5) / vec2(textureSize(distances, 0)) - 1.0);
    return vec3((clip - vec2(rowX.y, rowY.y) * z - vec2(rowX.z, rowY.z)) / vec2(rowX.x, rowY.x), z);
}
)";

constexpr const char* c_measureMain = R"(
out float result;

void main()
{
    float depth = texelFetch(depths, ivec2(gl_FragCoord.xy), 0).r;
    float z = 2.0 * depth - 1.0;
    result = depth < 1.0 ? (rowZ.z - z * rowW.z) / (z * rowW.y - rowZ.y) : c_nothing;
}
)";

constexpr const char* c_findMain = R"(
out vec2 result;
const int c_numTaps = 12;
const float c_turn = 6.2831853;
// Surfaces that rise at a smaller angle, of which this is the sine, count as one surface that is not quite even.
const float c_slant = 0.12;
const float c_strength = 2.1;

void main()
{
    ivec2 pixel = ivec2(gl_FragCoord.xy);
    float z = texelFetch(distances, pixel, 0).r;
    result = vec2(0.0, z);
    float pixelHere = pixelSize * wOf(z);
    float inPixels = min(radius / pixelHere, widest);
    if (z == c_nothing || !(inPixels >= 1.0)) {
        return;
    }
    float reach = inPixels * pixelHere;
    vec3 point = pointAt(pixel, z);
    vec3 n = texelFetch(normals, pixel, 0).xyz;
    ivec2 size = textureSize(distances, 0);
    // Pixels side by side differ by about half a turn.
    int phase = (pixel.x & 1) * 8 + (pixel.y & 1) * 4 + (pixel.x & 2) + ((pixel.y & 2) >> 1);
    float start = float(phase) / 16.0;
    float sum = 0.0;
    for (int i = 0; i < c_numTaps; ++i) {
        float part = (float(i) + start) / float(c_numTaps);
        float angle = c_turn * (7.0 * part + start);
        ivec2 other = pixel + ivec2(round(inPixels * part * vec2(cos(angle), sin(angle))));
        if (any(lessThan(other, ivec2(0))) || any(greaterThanEqual(other, size))) {
            continue;
        }
        float otherZ = texelFetch(distances, other, 0).r;
        vec3 way = pointAt(other, otherZ) - point;
        float square = dot(way, way) / (reach * reach);
        if (otherZ == c_nothing || square >= 1.0) {
            continue;
        }
        float rising = dot(way, n) / reach - c_slant * sqrt(square);
        float near = 1.0 - square;
        sum += near * near * max(rising, 0.0) / (square + 0.01);
    }
    result.x = 1.0 - exp(-c_strength * sum / float(c_numTaps));
}
)";

// The mean of four neighbours in one direction, and of four such means. The pattern has four pixels in each direction.
constexpr const char* c_blurMain = R"(
out vec2 result;

void main()
{
    ivec2 pixel = ivec2(gl_FragCoord.xy);
    result = texelFetch(found, pixel, 0).xy;
    if (result.y == c_nothing) {
        return;
    }
    vec3 point = pointAt(pixel, result.y);
    vec3 n = texelFetch(normals, pixel, 0).xyz;
    float tolerance = 3.0 * pixelSize * wOf(result.y);
    float sum = 4.0 * result.x;
    float weights = 4.0;
    ivec2 last = textureSize(found, 0) - 1;
    for (int i = -3; i <= 3; ++i) {
        ivec2 other = pixel + i * c_step;
        if (i == 0 || any(lessThan(other, ivec2(0))) || any(greaterThan(other, last))) {
            continue;
        }
        vec2 its = texelFetch(found, other, 0).xy;
        if (its.y == c_nothing) {
            continue;
        }
        // How far it is from the plane of this surface.
        float away = abs(dot(pointAt(other, its.y) - point, n)) / tolerance;
        float weight = max(1.0 - away, 0.0) * float(4 - abs(i));
        sum += weight * its.x;
        weights += weight;
    }
    result.x = sum / weights;
}
)";

void makeTexture(const GlTexture& texture, GLenum inside, GLenum format, GLenum type, int width, int height)
{
    glBindTexture(GL_TEXTURE_2D, texture.name());
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(inside), width, height, 0, format, type, nullptr);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
}

void attach(const GlFramebuffer& buffer, const GlTexture& color)
{
    glBindFramebuffer(GL_FRAMEBUFFER, buffer.name());
    glFramebufferTexture(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, color.name(), 0);
}

std::string across(bool isAcross)
{
    return isAcross ? "const ivec2 c_step = ivec2(1, 0);\n" : "const ivec2 c_step = ivec2(0, 1);\n";
}

} // namespace

struct AmbientOcclusion::Block {
    static constexpr const char* c_block = "Occlusion";
    static constexpr GLuint c_binding = 10;

    std::array<float, 4> rowX;
    std::array<float, 4> rowY;
    std::array<float, 4> rowZ;
    std::array<float, 4> rowW;
    float radius;
    float widest;
    float pixelSize;
    float unused = 0.0f;
};

AmbientOcclusion::AmbientOcclusion()
    : m_measure("distances", c_vertexMain, (std::string(c_common) + c_measureMain).c_str()),
      m_find("ambient occlusion", c_vertexMain, (std::string(c_common) + c_findMain).c_str()),
      m_blurAcross("ambient occlusion", c_vertexMain, (c_common + across(true) + c_blurMain).c_str()),
      m_blurDown("ambient occlusion", c_vertexMain, (c_common + across(false) + c_blurMain).c_str())
{
    for (const GlProgram* program : {&m_measure, &m_find, &m_blurAcross, &m_blurDown}) {
        m_block.attach(*program);
        program->use();
        program->setSampler("normals", c_unit);
        program->setSampler("depths", c_unit + 1);
        program->setSampler("distances", c_unit + 2);
        program->setSampler("found", c_unit + 3);
    }
}

void AmbientOcclusion::resize(int width, int height)
{
    if (width == m_width && height == m_height) {
        return;
    }
    m_width = width;
    m_height = height;
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(c_unit));
    makeTexture(m_normals.texture, GL_RGBA16F, GL_RGBA, GL_FLOAT, width, height);
    makeTexture(m_depths, GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_UNSIGNED_INT, width, height);
    makeTexture(m_distances.texture, GL_R32F, GL_RED, GL_FLOAT, width, height);
    for (const Layer& result : m_results) {
        makeTexture(result.texture, GL_RG32F, GL_RG, GL_FLOAT, width, height);
        attach(result.buffer, result.texture);
    }
    attach(m_distances.buffer, m_distances.texture);
    attach(m_normals.buffer, m_normals.texture);
    glFramebufferTexture(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, m_depths.name(), 0);
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE) {
        throw std::runtime_error("The driver does not give the buffers for ambient occlusion.");
    }
}

View AmbientOcclusion::beginShapes(const View& view)
{
    int step = 2;
    const auto texels = [&step](int pixels) { return (pixels + step - 1) / step; };
    while (std::int64_t(texels(view.area.width)) * texels(view.area.height) > c_mostTexels) {
        ++step;
    }
    resize(texels(view.area.width), texels(view.area.height));
    m_view = view;
    m_view.area = {0, 0, m_width, m_height};
    glBindFramebuffer(GL_FRAMEBUFFER, m_normals.buffer.name());
    glDisable(GL_SCISSOR_TEST);
    glViewport(0, 0, m_width, m_height);
    glDepthMask(GL_TRUE);
    glClear(GL_DEPTH_BUFFER_BIT);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    return m_view;
}

void AmbientOcclusion::run(const GlProgram& program, const Layer& layer) const
{
    glBindFramebuffer(GL_FRAMEBUFFER, layer.buffer.name());
    program.use();
    glDrawArrays(GL_TRIANGLES, 0, 3);
}

void AmbientOcclusion::finish(float radius)
{
    const vxgraphics3d::Matrixf& p = m_view.projection;
    const auto row = [&](int i, int own) -> std::array<float, 4> {
        return {p.get(i, own), p.get(i, 3), p.get(i, 4), 0.0f};
    };
    m_block.set({row(1, 1), row(2, 2), row(3, 3), row(4, 3), radius,
                 c_widestRadius * static_cast<float>(std::min(m_width, m_height)), m_view.pixelSize()});
    const auto bind = [](GLint unit, const GlTexture& texture) {
        glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
        glBindTexture(GL_TEXTURE_2D, texture.name());
    };
    glDisable(GL_DEPTH_TEST);
    glBindVertexArray(m_array.name());
    bind(c_unit, m_normals.texture);
    bind(c_unit + 1, m_depths);
    run(m_measure, m_distances);
    bind(c_unit + 2, m_distances.texture);
    run(m_find, m_results[0]);
    bind(c_unit + 3, m_results[0].texture);
    run(m_blurAcross, m_results[1]);
    bind(c_unit + 3, m_results[1].texture);
    run(m_blurDown, m_results[0]);
    bind(c_unit, m_results[0].texture);
    glEnable(GL_DEPTH_TEST);
}

} // namespace vxrenderer
