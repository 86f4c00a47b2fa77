#include "renderer/paint/linepainter.h"

#include "renderer/upload/linemesh.h"
#include "renderer/upload/parttable.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace vxrenderer {
namespace {

constexpr const char* c_vertexInputs = R"(
layout(std140) uniform Line {
    mat4 toClip;
    vec2 viewport;
    float lineWidth;
    // How far the ends reach beyond the points, in units of half the width.
    float reach;
    // What is added to z and w for each unit of w to bring a point nearer to the eye.
    vec2 towardsEye;
    float roundness;
};
layout(location = 0) in vec3 from;
layout(location = 1) in vec3 to;
layout(location = 2) in vec2 texturePlaces;
centroid out float u;
// In units of half the width: the distance from the start along the line, its length, and the distance from its middle.
// Only round ends need it.
out vec3 cap;
)";

// All lines look alike, except for the colour, which may be that of their data.
constexpr const char* c_linesStart = R"(
void main()
{
)";

// Lines are parts of an object, with their numbers instead of texture coordinates. Their rows say what the block says
// of other lines, under the same names. The shader of other lines is not touched by that: drivers round a shader's
// numbers in another way when its text differs.
constexpr const char* c_renamed = R"(
#define lineWidth commonWidth
#define towardsEye commonTowardsEye
)";
constexpr const char* c_namedAgain = R"(
#undef lineWidth
#undef towardsEye
)";
constexpr const char* c_partsStart = R"(
flat out vec3 partColor;

void main()
{
    PartRow row = partRows[rowOfPart(int(texturePlaces.x))];
    float lineWidth = row.size;
    vec2 towardsEye = row.towardsEye;
    partColor = row.color.rgb;
    if (!row.isVisible) {
        u = 0.0;
        cap = vec3(0.0);
        gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
        return;
    }
)";

// The part of a line in front of the near plane is cut off here: its ends are moved aside by pixels, and what lies
// behind the eye has no position on the screen.
constexpr const char* c_vertexMain = R"(
    vec4 a = toClip * vec4(from, 1.0);
    vec4 b = toClip * vec4(to, 1.0);
    float depthA = a.z + a.w;
    float depthB = b.z + b.w;
    vec2 places = texturePlaces;
    if (depthA < 0.0 && depthB < 0.0) {
        u = 0.0;
        cap = vec3(0.0);
        gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
        return;
    }
    if (depthA < 0.0) {
        float part = depthA / (depthA - depthB);
        a = mix(a, b, part);
        places.x = mix(places.x, places.y, part);
    } else if (depthB < 0.0) {
        float part = depthB / (depthB - depthA);
        b = mix(b, a, part);
        places.y = mix(places.y, places.x, part);
    }
    vec2 along = (b.xy / b.w - a.xy / a.w) * viewport;
    float size = length(along);
    along = size > 0.0 ? along / size : vec2(1.0, 0.0);
    vec2 side = vec2(-along.y, along.x);
    bool isEnd = gl_VertexID > 1;
    vec4 place = isEnd ? b : a;
    vec2 offset = (gl_VertexID & 1) == 0 ? side : -side;
    offset += reach * (isEnd ? along : -along);
    u = isEnd ? places.y : places.x;
    cap = roundness * vec3((isEnd ? size / lineWidth + reach : -reach), size / lineWidth,
                           (gl_VertexID & 1) == 0 ? 1.0 : -1.0);
    place.xy += lineWidth * offset / viewport * place.w;
    // The near plane cuts lines off only where it cuts off what they lie on.
    place.z = max((place.z + towardsEye.x * place.w) / (1.0 + towardsEye.y), -place.w);
    gl_Position = place;
}
)";

constexpr const char* c_partColor = R"(
flat in vec3 partColor;
#define materialColor(u) partColor
)";

constexpr const char* c_fragmentMain = R"(
centroid in float u;
in vec3 cap;
OUTPUT vec4 result;

void main()
{
    float beyond = max(max(-cap.x, cap.x - cap.y), 0.0);
    bool isRoundedOff = beyond > 0.0 && beyond * beyond + cap.z * cap.z > 1.0;
    if (isHidden(u) || isRoundedOff) {
        discard;
    }
    result = vec4(materialColor(u), uniformColor.a);
}
)";

} // namespace

struct LinePainter::LineBlock {
    static constexpr const char* c_block = "Line";
    static constexpr GLuint c_binding = 4;

    std::array<float, 16> toClip;
    std::array<float, 2> viewport;
    float lineWidth;
    float reach;
    std::array<float, 2> towardsEye;
    float roundness;
    float unused = 0.0f;
};

LinePainter::Programs::Programs(FragmentOutput output)
    : lines("lines", (std::string(c_vertexInputs) + c_linesStart + c_vertexMain).c_str(),
            withOutput(output, std::string(Material::c_source) + c_fragmentMain).c_str()),
      parts("the lines of objects",
            (std::string(c_renamed) + c_vertexInputs + c_namedAgain + PartRows::c_source + c_partsStart + c_vertexMain)
                .c_str(),
            withOutput(output, std::string(Material::c_source) + c_partColor + c_fragmentMain).c_str())
{
    if (output == FragmentOutput::layers) {
        attachLayers(lines);
        attachLayers(parts);
    }
}

void LinePainter::attach(const Programs& programs) const
{
    for (const GlProgram* program : {&programs.lines, &programs.parts}) {
        m_line.attach(*program);
        m_material.attach(*program);
    }
    m_rows.attach(programs.parts);
    PartRows::attachTextures(programs.parts);
}

void LinePainter::setOutput(FragmentOutput output)
{
    m_output = output;
    if (output == FragmentOutput::layers && !m_layerPrograms) {
        m_layerPrograms = std::make_unique<Programs>(output);
        attach(*m_layerPrograms);
    }
}

LinePainter::LinePainter()
{
    attach(m_programs);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    const auto describe = [](LineMesh::Attribute attribute, std::ptrdiff_t offset) {
        const auto location = static_cast<GLuint>(attribute);
        glEnableVertexAttribArray(location);
        glVertexAttribPointer(location, 3, GL_FLOAT, GL_FALSE, sizeof(LineSegment), offsetPointer(offset));
        glVertexAttribDivisor(location, 1);
    };
    describe(LineMesh::Attribute::from, offsetof(LineSegment, from));
    describe(LineMesh::Attribute::to, offsetof(LineSegment, to));
    glBindVertexArray(0);
}

void LinePainter::setUp(const GlProgram& program, const Frame& frame, const Material& material, bool isClosed) const
{
    LineBlock block{};
    std::copy_n(frame.toClip.data(), block.toClip.size(), block.toClip.begin());
    block.viewport = {static_cast<float>(frame.width), static_cast<float>(frame.height)};
    block.lineWidth = frame.lineWidth;
    block.reach = isClosed ? 1.0f : 0.0f;
    block.towardsEye = {frame.towardsEye.z, frame.towardsEye.w};
    block.roundness = frame.isRound ? 1.0f : 0.0f;
    program.use();
    m_line.set(block);
    m_material.set(material);
}

void LinePainter::draw(std::span<const LineSegment> lines, const Frame& frame, const vxgraphics3d::Color& color) const
{
    if (lines.empty()) {
        return;
    }
    const Material material = Material::of(color);
    setUp(programs().lines, frame, material, !material.isTranslucent());
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(lines.size_bytes()), lines.data(), GL_STREAM_DRAW);
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(lines.size()));
}

void LinePainter::draw(const LineMesh& lines, const Frame& frame, const Material& material) const
{
    setUp(programs().lines, frame, material, !material.isTranslucent());
    lines.draw();
}

void LinePainter::draw(const LineMesh& lines, const PartLook& parts, const Frame& frame, const Material& material) const
{
    setUp(programs().parts, frame, material, !material.isTranslucent());
    m_rows.set(parts.rows);
    parts.table.bind();
    lines.draw();
}

vxgraphics3d::Matrixf pixelsToClip(int width, int height)
{
    vxgraphics3d::Matrixf matrix(vxgraphics3d::Matrixf::MatrixIdentity);
    matrix.translate(-1.0f, 1.0f, 0.0f)
        .scale(2.0f / static_cast<float>(width), -2.0f / static_cast<float>(height), 1.0f);
    return matrix;
}

} // namespace vxrenderer
