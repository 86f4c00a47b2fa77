#include "renderer/upload/mesh.h"

#include "graphics3d/buffers/indexbuffer.h"
#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexlayout.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace vxrenderer {
namespace {

using vxgraphics3d::IndexBuffer;
using vxgraphics3d::VertexBuffer;
using vxgraphics3d::VertexLayout;

void describe(Attribute attribute, std::ptrdiff_t offset, GLint size, GLenum type, const VertexLayout& layout)
{
    const auto place = static_cast<GLuint>(attribute);
    if (offset < 0) {
        glDisableVertexAttribArray(place);
        return;
    }
    const GLboolean isNormalized = type == GL_UNSIGNED_BYTE ? GL_TRUE : GL_FALSE;
    glEnableVertexAttribArray(place);
    glVertexAttribPointer(place, size, type, isNormalized, static_cast<GLsizei>(layout.size), offsetPointer(offset));
}

GLenum modeOf(IndexBuffer::Type type)
{
    switch (type) {
    case IndexBuffer::Lines:
        return GL_LINES;
    case IndexBuffer::LineStrips:
        return GL_LINE_STRIP;
    default:
        return GL_TRIANGLES;
    }
}

template <class Index>
void requireWithin(const Index* indices, int count, int numVertices)
{
    const Index largest = count > 0 ? *std::max_element(indices, indices + count) : Index(0);
    if (count > 0 && largest >= static_cast<unsigned>(numVertices)) {
        throw std::out_of_range("The index " + std::to_string(largest) + " points beyond the " +
                                std::to_string(numVertices) + " vertices.");
    }
}

} // namespace

void Mesh::load(const VertexBuffer& vertices, const IndexBuffer& indices)
{
    m_counts.clear();
    m_starts.clear();
    const VertexLayout* layout = vxgraphics3d::findVertexLayout(vertices.getVertexType());
    if (layout == nullptr) {
        throw std::invalid_argument("Vertices of type " + std::to_string(vertices.getVertexType()) +
                                    " cannot be drawn.");
    }
    const std::vector<int>& starts = indices.getSegmentStarts();
    const int numIndices = starts.empty() ? 0 : starts.back();
    const bool isWide = indices.uses32BitIndices();
    const void* indexData = nullptr;
    if (isWide) {
        requireWithin(indices.getIndices32(), numIndices, vertices.getNumberOfVertices());
        indexData = indices.getIndices32();
    } else {
        requireWithin(indices.getIndices16(), numIndices, vertices.getNumberOfVertices());
        indexData = indices.getIndices16();
    }

    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_vertices.name());
    glBufferData(GL_ARRAY_BUFFER, layout->size * vertices.getNumberOfVertices(), vertices.vertexPointer(),
                 GL_STATIC_DRAW);
    describe(Attribute::position, 0, 3, GL_FLOAT, *layout);
    describe(Attribute::normal, layout->normal, 3, GL_FLOAT, *layout);
    describe(Attribute::color, layout->color, 4, GL_UNSIGNED_BYTE, *layout);
    describe(Attribute::texture, layout->texture, 2, GL_FLOAT, *layout);
    describe(Attribute::secondTexture, layout->secondTexture, 2, GL_FLOAT, *layout);
    describe(Attribute::triple, layout->triple, 3, GL_FLOAT, *layout);

    const std::ptrdiff_t indexSize = isWide ? sizeof(std::uint32_t) : sizeof(std::uint16_t);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, m_indices.name());
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, indexSize * numIndices, indexData, GL_STATIC_DRAW);
    glBindVertexArray(0);
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for a mesh.");
    }

    m_mode = modeOf(indices.getType());
    m_indexType = isWide ? GL_UNSIGNED_INT : GL_UNSIGNED_SHORT;
    if (m_mode != GL_LINE_STRIP) {
        // Segments follow each other without gaps, and separate triangles and lines do not mind the borders.
        m_counts.push_back(numIndices);
        m_starts.push_back(offsetPointer(0));
        return;
    }
    for (std::size_t s = 0; s + 1 < starts.size(); ++s) {
        m_counts.push_back(starts[s + 1] - starts[s]);
        m_starts.push_back(offsetPointer(indexSize * starts[s]));
    }
}

void Mesh::draw() const
{
    glBindVertexArray(m_array.name());
    glMultiDrawElements(m_mode, m_counts.data(), m_indexType, m_starts.data(), static_cast<GLsizei>(m_counts.size()));
}

} // namespace vxrenderer
