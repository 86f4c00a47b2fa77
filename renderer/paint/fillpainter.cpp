#include "renderer/paint/fillpainter.h"

#include "renderer/paint/material.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

constexpr const char* c_block = R"(
layout(std140) uniform Fill {
    mat4 toClip;
    vec4 color;
};
)";

constexpr const char* c_vertexMain = R"(
layout(location = 0) in vec3 position;

void main()
{
    gl_Position = toClip * vec4(position, 1.0);
}
)";

constexpr const char* c_fragmentMain = R"(
out vec4 result;

void main()
{
    result = color;
}
)";

} // namespace

struct FillPainter::FillBlock {
    static constexpr const char* c_block = "Fill";
    static constexpr GLuint c_binding = 7;

    std::array<float, 16> toClip;
    std::array<float, 4> color;
};

FillPainter::FillPainter()
    : m_program("fills", (std::string(c_block) + c_vertexMain).c_str(), (std::string(c_block) + c_fragmentMain).c_str())
{
    m_block.attach(m_program);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glEnableVertexAttribArray(0);
    glVertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, sizeof(Vector3f), nullptr);
    glBindVertexArray(0);
}

void FillPainter::fill(std::span<const Vector3f> lines, const vxgraphics3d::Matrixf& toClip,
                       const vxgraphics3d::Color& color) const
{
    if (lines.size() < 4) {
        return;
    }
    // A triangle from one point to each line: the triangles cover a point inside an odd number of times, in whichever
    // direction and order the lines run.
    std::vector<Vector3f> triangles;
    triangles.reserve(lines.size() / 2 * 3);
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        triangles.insert(triangles.end(), {lines.front(), lines[i], lines[i + 1]});
    }
    FillBlock block{};
    std::copy_n(toClip.data(), block.toClip.size(), block.toClip.begin());
    block.color = channelsOf(color);
    m_program.use();
    m_block.set(block);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(triangles.size() * sizeof(Vector3f)), triangles.data(),
                 GL_STREAM_DRAW);
    const auto count = static_cast<GLsizei>(triangles.size());
    glEnable(GL_STENCIL_TEST);
    glStencilMask(1);
    glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    glStencilFunc(GL_ALWAYS, 0, 1);
    glStencilOp(GL_INVERT, GL_INVERT, GL_INVERT);
    glDrawArrays(GL_TRIANGLES, 0, count);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    // The first triangle over a pixel colours it and clears its mark.
    glStencilFunc(GL_NOTEQUAL, 0, 1);
    glStencilOp(GL_ZERO, GL_ZERO, GL_ZERO);
    glDrawArrays(GL_TRIANGLES, 0, count);
    glDisable(GL_STENCIL_TEST);
}

} // namespace vxrenderer
