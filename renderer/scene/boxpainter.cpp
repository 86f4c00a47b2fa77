#include "renderer/scene/boxpainter.h"

#include "graphics3d/foundation/boundingbox.h"
#include "renderer/scene/mesh.h"
#include "renderer/scene/view.h"

#include <array>

namespace vxrenderer {
namespace {

constexpr const char* c_vertexSource = R"(
uniform mat4 matrix;
layout(location = 0) in vec3 position;

void main()
{
    gl_Position = matrix * vec4(position, 1.0);
}
)";

constexpr const char* c_fragmentSource = R"(
out vec4 result;

void main()
{
    result = vec4(0.45, 0.45, 0.45, 1.0);
}
)";

/// The corners of the unit cube, from -1 to 1, at both ends of its 12 edges.
constexpr std::array<std::array<float, 3>, 24> edgeCorners()
{
    std::array<std::array<float, 3>, 24> corners{};
    std::size_t next = 0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (int i = 0; i < 4; ++i) {
            for (int end = 0; end < 2; ++end) {
                std::array<float, 3>& corner = corners[next++];
                corner[axis] = end == 0 ? -1.0f : 1.0f;
                corner[(axis + 1) % 3] = (i & 1) != 0 ? 1.0f : -1.0f;
                corner[(axis + 2) % 3] = (i & 2) != 0 ? 1.0f : -1.0f;
            }
        }
    }
    return corners;
}

constexpr auto c_edgeCorners = edgeCorners();

} // namespace

BoxPainter::BoxPainter() : m_program("the box", c_vertexSource, c_fragmentSource), m_matrix(m_program.place("matrix"))
{
    const auto place = static_cast<GLuint>(Attribute::position);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_corners.name());
    glBufferData(GL_ARRAY_BUFFER, sizeof c_edgeCorners, c_edgeCorners.data(), GL_STATIC_DRAW);
    glEnableVertexAttribArray(place);
    glVertexAttribPointer(place, 3, GL_FLOAT, GL_FALSE, 0, nullptr);
    glBindVertexArray(0);
}

void BoxPainter::draw(const vxgraphics3d::BoundingBox& box, const View& view) const
{
    vxgraphics3d::Matrixf matrix = view.projection * view.view;
    matrix.translate(box.getCenter()).scale(box.getHalfSizeX(), box.getHalfSizeY(), box.getHalfSizeZ());
    m_program.use();
    GlProgram::set(m_matrix, matrix);
    glBindVertexArray(m_array.name());
    glDrawArrays(GL_LINES, 0, static_cast<GLsizei>(c_edgeCorners.size()));
}

} // namespace vxrenderer
