#include "renderer/upload/mesh.h"

#include "graphics3d/buffers/indexbuffer.h"
#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "renderer/upload/checkedindices.h"
#include "renderer/upload/drawntriangles.h"
#include "renderer/upload/instancebuffer.h"

#include <cstddef>
#include <stdexcept>
#include <string>

namespace vxrenderer {
namespace {

using vxgraphics3d::IndexBuffer;
using vxgraphics3d::VertexBuffer;
using vxgraphics3d::VertexLayout;

void describe(Attribute attribute, std::ptrdiff_t offset, GLint size, GLenum type, const VertexLayout& layout)
{
    const auto location = static_cast<GLuint>(attribute);
    if (offset < 0) {
        glDisableVertexAttribArray(location);
        return;
    }
    const GLboolean isNormalized = type == GL_UNSIGNED_BYTE ? GL_TRUE : GL_FALSE;
    glEnableVertexAttribArray(location);
    glVertexAttribPointer(location, size, type, isNormalized, static_cast<GLsizei>(layout.size), offsetPointer(offset));
}

} // namespace

void Mesh::load(const VertexBuffer& vertices, const IndexBuffer& indices)
{
    m_numIndices = 0;
    if (indices.getType() != IndexBuffer::Triangles) {
        throw std::invalid_argument("Elements of type " + std::to_string(indices.getType()) +
                                    " cannot be drawn as triangles.");
    }
    const VertexLayout& layout = requireLayout(vertices);
    const DrawnTriangles triangles(CheckedIndices(indices, vertices), vertices, layout);

    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_vertices.name());
    glBufferData(GL_ARRAY_BUFFER, layout.size * vertices.getNumberOfVertices(), vertices.vertexPointer(),
                 GL_STATIC_DRAW);
    describe(Attribute::position, 0, 3, GL_FLOAT, layout);
    describe(Attribute::normal, layout.normal, 3, GL_FLOAT, layout);
    describe(Attribute::color, layout.color, 4, GL_UNSIGNED_BYTE, layout);
    describe(Attribute::texture, layout.texture, 2, GL_FLOAT, layout);
    describe(Attribute::secondTexture, layout.secondTexture, 2, GL_FLOAT, layout);
    describe(Attribute::triple, layout.triple, 3, GL_FLOAT, layout);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, m_indices.name());
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, triangles.bytes(), triangles.data(), GL_STATIC_DRAW);
    glBindVertexArray(0);
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for a mesh.");
    }
    m_numIndices = triangles.size();
    m_hasNormals = triangles.haveNormals();
}

void Mesh::draw() const
{
    // Segments follow each other without gaps, and triangles may cross their borders.
    glBindVertexArray(m_array.name());
    glDrawElements(GL_TRIANGLES, m_numIndices, GL_UNSIGNED_INT, nullptr);
}

void Mesh::draw(const InstanceBuffer& instances) const
{
    glBindVertexArray(m_array.name());
    instances.bind();
    glDrawElementsInstanced(GL_TRIANGLES, m_numIndices, GL_UNSIGNED_INT, nullptr, instances.size());
    InstanceBuffer::release();
}

} // namespace vxrenderer
