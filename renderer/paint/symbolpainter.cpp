#include "renderer/paint/symbolpainter.h"

#include "renderer/upload/instancebuffer.h"
#include "renderer/upload/mesh.h"
#include "renderer/upload/parttable.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace vxrenderer {
namespace {

constexpr const char* c_block = R"(
layout(std140) uniform Symbol {
    mat4 toClip;
    vec4 color;
    vec2 viewport;
    // What is added to z and w for each unit of w to bring a symbol nearer to the eye.
    vec2 towardsEye;
    // Half the size of a symbol in pixels.
    float radius;
    int shape;
};
)";

constexpr const char* c_position = "layout(location = 6) in vec3 position;\n";

// All symbols look alike.
constexpr const char* c_oneLook = R"(
flat out vec3 symbolColor;
#ifdef LAYERED
flat out float symbolOpacity;
#endif
flat out float symbolRadius;
vec2 shift;

bool takeLook()
{
    symbolColor = color.rgb;
#ifdef LAYERED
    symbolOpacity = 1.0;
#endif
    symbolRadius = radius;
    shift = towardsEye;
    return true;
}
)";

// The symbols are the points of an object, in the order of their numbers.
constexpr const char* c_partLook = R"(
flat out vec3 symbolColor;
#ifdef LAYERED
flat out float symbolOpacity;
#endif
flat out float symbolRadius;
vec2 shift;

bool takeLook()
{
    PartRow row = partRows[rowOfPart(gl_InstanceID)];
    symbolColor = row.color.rgb;
#ifdef LAYERED
    symbolOpacity = row.color.a;
#endif
    symbolRadius = 0.5 * row.size;
    shift = row.towardsEye;
    return row.isVisible && !any(isnan(position)) && !any(isinf(position));
}
)";

// One more pixel on each side is for the smooth border.
constexpr const char* c_vertexMain = R"(
out vec2 offset;

void main()
{
    bool isShown = takeLook();
    vec2 corner = vec2((gl_VertexID & 1) == 0 ? -1.0 : 1.0, gl_VertexID < 2 ? -1.0 : 1.0);
    offset = corner * (symbolRadius + 1.0);
    vec4 place = toClip * vec4(position, 1.0);
    place.xy += 2.0 * offset / viewport * place.w;
    place.z = max((place.z + shift.x * place.w) / (1.0 + shift.y), -place.w);
    gl_Position = isShown ? place : vec4(2.0, 2.0, 2.0, 1.0);
}
)";

// The distance of a pixel from the outline, inside below 0, decides how much of it is covered. Shapes are given in
// units of the radius, with areas that look alike.
constexpr const char* c_fragmentMain = R"(
in vec2 offset;
flat in vec3 symbolColor;
#ifdef LAYERED
flat in float symbolOpacity;
#define OPACITY symbolOpacity
#endif
flat in float symbolRadius;
OUTPUT vec4 result;

float bars(vec2 p)
{
    const float halfWidth = 0.2;
    vec2 a = abs(p);
    return min(max(a.x - halfWidth, a.y - 1.0), max(a.y - halfWidth, a.x - 1.0));
}

float triangle(vec2 p)
{
    p.y += 0.12;
    return max(-p.y - 0.57, 0.866 * abs(p.x) + 0.5 * p.y - 0.57);
}

float outline(vec2 p)
{
    vec2 turned = 0.70711 * vec2(p.x + p.y, p.y - p.x);
    switch (shape) {
    case 0:
        return length(p) - 0.9;
    case 1:
        return max(abs(p.x), abs(p.y)) - 0.8;
    case 2:
        return 0.70711 * (abs(p.x) + abs(p.y) - 1.1);
    case 3:
        return triangle(p);
    case 4:
        return triangle(vec2(p.x, -p.y));
    case 5:
        return bars(p);
    case 6:
        return bars(turned);
    default:
        return min(bars(p), bars(turned));
    }
}

void main()
{
    float covered = clamp(0.5 - outline(offset / symbolRadius) * symbolRadius, 0.0, 1.0);
    if (covered <= 0.0) {
        discard;
    }
    result = vec4(symbolColor, color.a * covered);
}
)";

} // namespace

struct SymbolPainter::SymbolBlock {
    static constexpr const char* c_block = "Symbol";
    static constexpr GLuint c_binding = 6;

    std::array<float, 16> toClip;
    std::array<float, 4> color;
    std::array<float, 2> viewport;
    std::array<float, 2> towardsEye;
    float radius;
    std::int32_t shape;
    std::array<float, 2> unused{};
};

SymbolPainter::Programs::Programs(FragmentOutput output)
    : symbols("symbols", (layersDefinition(output) + c_block + c_position + c_oneLook + c_vertexMain).c_str(),
              withOutput(output, std::string(c_block) + c_fragmentMain).c_str()),
      parts("the points of objects",
            (layersDefinition(output) + c_block + c_position + PartRows::c_source + c_partLook + c_vertexMain).c_str(),
            withOutput(output, std::string(c_block) + c_fragmentMain).c_str())
{
    if (output == FragmentOutput::layers) {
        attachLayers(symbols);
        attachLayers(parts);
    }
}

void SymbolPainter::attach(const Programs& programs) const
{
    m_block.attach(programs.symbols);
    m_block.attach(programs.parts);
    m_rows.attach(programs.parts);
    PartRows::attachTextures(programs.parts);
}

SymbolPainter::SymbolPainter()
{
    attach(m_programs);
}

void SymbolPainter::setOutput(FragmentOutput output)
{
    m_output = output;
    if (output == FragmentOutput::layers && !m_layerPrograms) {
        m_layerPrograms = std::make_unique<Programs>(output);
        attach(*m_layerPrograms);
    }
}

void SymbolPainter::draw(const InstanceBuffer& instances, const Frame& frame) const
{
    glBindVertexArray(m_array.name());
    instances.bind();
    draw(programs().symbols, frame, instances.size());
    InstanceBuffer::release();
}

void SymbolPainter::draw(const InstanceBuffer& instances, const PartLook& parts, const Frame& frame) const
{
    m_rows.set(parts.rows);
    parts.table.bind();
    glBindVertexArray(m_array.name());
    instances.bind();
    draw(programs().parts, frame, instances.size());
    InstanceBuffer::release();
}

void SymbolPainter::draw(const vxgraphics3d::Vector3f& position, const Frame& frame) const
{
    glBindVertexArray(m_array.name());
    glVertexAttrib3f(static_cast<GLuint>(Attribute::instancePosition), position.x, position.y, position.z);
    draw(programs().symbols, frame, 1);
}

void SymbolPainter::draw(std::span<const vxgraphics3d::Vector3f> positions, const Frame& frame) const
{
    if (positions.empty()) {
        return;
    }
    const auto location = static_cast<GLuint>(Attribute::instancePosition);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_positions.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(positions.size_bytes()), positions.data(), GL_STREAM_DRAW);
    glEnableVertexAttribArray(location);
    glVertexAttribPointer(location, 3, GL_FLOAT, GL_FALSE, sizeof(vxgraphics3d::Vector3f), nullptr);
    glVertexAttribDivisor(location, 1);
    draw(programs().symbols, frame, static_cast<GLsizei>(positions.size()));
    glDisableVertexAttribArray(location);
}

void SymbolPainter::draw(const GlProgram& program, const Frame& frame, GLsizei count) const
{
    if (frame.symbol == RenderSymbol::none || count < 1) {
        return;
    }
    SymbolBlock block{};
    std::copy_n(frame.toClip.data(), block.toClip.size(), block.toClip.begin());
    block.color = frame.color;
    block.viewport = {static_cast<float>(frame.width), static_cast<float>(frame.height)};
    block.towardsEye = {frame.towardsEye.z, frame.towardsEye.w};
    block.radius = std::max(0.5f * frame.size, 0.5f);
    block.shape = static_cast<int>(frame.symbol);
    program.use();
    m_block.set(block);
    const bool isBlending = glIsEnabled(GL_BLEND) == GL_TRUE;
    if (m_output == FragmentOutput::picture) {
        glEnable(GL_BLEND);
        glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    }
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, count);
    if (!isBlending) {
        glDisable(GL_BLEND);
    }
}

} // namespace vxrenderer
