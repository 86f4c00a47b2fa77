#include "renderer/paint/linepainter.h"

#include "graphics3d/foundation/matrixf.h"

#include <cstddef>

namespace vxrenderer {
namespace {

// The part of a line before the near plane is cut off here: its ends are moved aside by pixels, and what lies behind
// the eye has no place on the screen.
constexpr const char* c_vertexSource = R"(
uniform mat4 toClip;
uniform vec2 viewport;
uniform float lineWidth;
layout(location = 0) in vec3 from;
layout(location = 1) in vec3 to;

void main()
{
    vec4 a = toClip * vec4(from, 1.0);
    vec4 b = toClip * vec4(to, 1.0);
    float depthA = a.z + a.w;
    float depthB = b.z + b.w;
    if (depthA < 0.0 && depthB < 0.0) {
        gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
        return;
    }
    if (depthA < 0.0) {
        a = mix(a, b, depthA / (depthA - depthB));
    } else if (depthB < 0.0) {
        b = mix(b, a, depthB / (depthB - depthA));
    }
    vec2 along = (b.xy / b.w - a.xy / a.w) * viewport;
    float reach = length(along);
    along = reach > 0.0 ? along / reach : vec2(1.0, 0.0);
    vec2 side = vec2(-along.y, along.x);
    bool isEnd = gl_VertexID > 1;
    vec4 place = isEnd ? b : a;
    vec2 offset = (gl_VertexID & 1) == 0 ? side : -side;
    offset += isEnd ? along : -along;
    place.xy += lineWidth * offset / viewport * place.w;
    gl_Position = place;
}
)";

constexpr const char* c_fragmentSource = R"(
uniform vec4 color;
out vec4 result;

void main()
{
    result = color;
}
)";

} // namespace

LinePainter::LinePainter()
    : m_program("lines", c_vertexSource, c_fragmentSource),
      m_toClip(m_program.place("toClip")),
      m_viewport(m_program.place("viewport")),
      m_lineWidth(m_program.place("lineWidth")),
      m_color(m_program.place("color"))
{
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    constexpr std::ptrdiff_t offsets[] = {offsetof(LineSegment, from), offsetof(LineSegment, to)};
    for (GLuint place = 0; place < 2; ++place) {
        glEnableVertexAttribArray(place);
        glVertexAttribPointer(place, 3, GL_FLOAT, GL_FALSE, sizeof(LineSegment), offsetPointer(offsets[place]));
        glVertexAttribDivisor(place, 1);
    }
    glBindVertexArray(0);
}

void LinePainter::draw(std::span<const LineSegment> lines, const vxgraphics3d::Matrixf& toClip, int width, int height,
                       float lineWidth, const vxgraphics3d::Color& color)
{
    if (lines.empty()) {
        return;
    }
    m_program.use();
    GlProgram::set(m_toClip, toClip);
    GlProgram::set(m_viewport, static_cast<float>(width), static_cast<float>(height));
    GlProgram::set(m_lineWidth, lineWidth);
    GlProgram::set(m_color, color);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(lines.size_bytes()), lines.data(), GL_STREAM_DRAW);
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(lines.size()));
}

vxgraphics3d::Matrixf pixelsToClip(int width, int height)
{
    vxgraphics3d::Matrixf matrix(vxgraphics3d::Matrixf::MatrixIdentity);
    matrix.translate(-1.0f, 1.0f, 0.0f)
        .scale(2.0f / static_cast<float>(width), -2.0f / static_cast<float>(height), 1.0f);
    return matrix;
}

} // namespace vxrenderer
