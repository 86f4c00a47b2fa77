#include "renderer/upload/mesh.h"

#include "graphics3d/buffers/indexbuffer.h"
#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexbuffernormal.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "renderer/upload/checkedindices.h"
#include "renderer/upload/creases.h"
#include "renderer/upload/drawntriangles.h"
#include "renderer/upload/instancebuffer.h"
#include "renderer/upload/sheetnormals.h"
#include "renderer/upload/vertexnumbers.h"
#include "renderer/upload/vertexrecords.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::IndexBuffer;
using vxgraphics3d::VertexBuffer;
using vxgraphics3d::VertexLayout;
using vxgraphics3d::VertexNormal;

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

void requireTriangles(const IndexBuffer& indices)
{
    if (indices.getType() != IndexBuffer::Triangles) {
        throw std::invalid_argument("Elements of type " + std::to_string(indices.getType()) +
                                    " cannot be drawn as triangles.");
    }
}

void requireMemory()
{
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for a mesh.");
    }
}

/// A vertex with the number of its part.
struct PartVertex {
    VertexNormal vertex;
    std::uint32_t part;
};
static_assert(sizeof(PartVertex) == 28);

} // namespace

void Mesh::load(const VertexBuffer& vertices, const IndexBuffer& indices)
{
    m_numIndices = 0;
    m_partEnds.clear();
    m_featureEdges.reset();
    requireTriangles(indices);
    const VertexLayout& layout = requireLayout(vertices);
    upload(vertices, layout, DrawnTriangles(CheckedIndices(indices, vertices), vertices, layout), {});
}

void Mesh::loadBody(const VertexBuffer& vertices, const IndexBuffer& indices, float creaseAngle)
{
    m_numIndices = 0;
    m_partEnds.clear();
    m_featureEdges.reset();
    requireTriangles(indices);
    const VertexLayout& layout = requireLayout(vertices);
    DrawnTriangles triangles(CheckedIndices(indices, vertices), vertices, layout);
    const VertexRecords records(vertices, layout);
    const Creases creases(records, static_cast<std::uint32_t>(vertices.getNumberOfVertices()), triangles.indices(),
                          creaseAngle);

    const auto size = static_cast<std::size_t>(layout.size);
    std::vector<std::byte> copies(size * creases.getVertices().size());
    for (std::byte* out = copies.data(); const Creases::Vertex& vertex : creases.getVertices()) {
        std::memcpy(out, records.record(vertex.source), size);
        if (layout.normal >= 0) {
            std::memcpy(out + layout.normal, &vertex.normal, sizeof vertex.normal);
        }
        out += size;
    }
    upload(vertices, layout, triangles, copies);

    std::vector<LineMesh::Piece> edges;
    std::vector<int> ends;
    VertexNumbers numbers(static_cast<std::size_t>(vertices.getNumberOfVertices()));
    edges.reserve(creases.getEdges().size());
    ends.reserve(2 * creases.getEdges().size());
    for (const auto& [from, to] : creases.getEdges()) {
        edges.push_back({records.position(from), records.position(to), records.u(from), records.u(to)});
        ends.push_back(static_cast<int>(numbers.of(from)));
        ends.push_back(static_cast<int>(numbers.of(to)));
    }
    m_featureEdges.emplace();
    m_featureEdges->load(edges, ends);
}

void Mesh::upload(const VertexBuffer& vertices, const VertexLayout& layout, const DrawnTriangles& triangles,
                  std::span<const std::byte> furtherVertices)
{
    const GLsizeiptr size = layout.size * vertices.getNumberOfVertices();
    const auto furtherSize = static_cast<GLsizeiptr>(furtherVertices.size());
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_vertices.name());
    if (furtherVertices.empty()) {
        glBufferData(GL_ARRAY_BUFFER, size, vertices.vertexPointer(), GL_STATIC_DRAW);
    } else {
        glBufferData(GL_ARRAY_BUFFER, size + furtherSize, nullptr, GL_STATIC_DRAW);
        glBufferSubData(GL_ARRAY_BUFFER, 0, size, vertices.vertexPointer());
        glBufferSubData(GL_ARRAY_BUFFER, size, furtherSize, furtherVertices.data());
    }
    describe(Attribute::position, 0, 3, GL_FLOAT, layout);
    describe(Attribute::normal, layout.normal, 3, GL_FLOAT, layout);
    describe(Attribute::color, layout.color, 4, GL_UNSIGNED_BYTE, layout);
    describe(Attribute::texture, layout.texture, 2, GL_FLOAT, layout);
    describe(Attribute::secondTexture, layout.secondTexture, 2, GL_FLOAT, layout);
    describe(Attribute::triple, layout.triple, 3, GL_FLOAT, layout);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, m_indices.name());
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, triangles.bytes(), triangles.data(), GL_STATIC_DRAW);
    glBindVertexArray(0);
    requireMemory();
    m_numIndices = triangles.size();
    m_hasNormals = triangles.haveNormals();
}

void Mesh::load(std::span<const MeshPart> parts)
{
    m_numIndices = 0;
    m_featureEdges.reset();
    m_hasNormals = true;
    m_partEnds.clear();
    std::size_t numVertices = 0;
    std::size_t numIndices = 0;
    for (const MeshPart& part : parts) {
        requireTriangles(part.triangles);
        numVertices += static_cast<std::size_t>(part.vertices.getNumberOfVertices());
        numIndices += static_cast<std::size_t>(CheckedIndices(part.triangles, part.vertices).size());
    }
    std::vector<PartVertex> vertices;
    std::vector<std::uint32_t> indices;
    std::vector<VertexNormal> sheet;
    vertices.reserve(numVertices);
    indices.reserve(numIndices);
    for (std::uint32_t number = 0; const MeshPart& part : parts) {
        const DrawnTriangles triangles(CheckedIndices(part.triangles, part.vertices), part.vertices,
                                       requireLayout(part.vertices));
        m_hasNormals = m_hasNormals && triangles.haveNormals();
        const auto first = static_cast<std::uint32_t>(vertices.size());
        for (int i = 0; i < triangles.size(); ++i) {
            indices.push_back(first + triangles.data()[i]);
        }
        const auto* records = static_cast<const VertexNormal*>(part.vertices.vertexPointer());
        sheet.assign(records, records + part.vertices.getNumberOfVertices());
        correctNormals(sheet, {triangles.data(), static_cast<std::size_t>(triangles.size())});
        for (const VertexNormal& vertex : sheet) {
            vertices.push_back({vertex, number});
        }
        m_partEnds.push_back(static_cast<std::uint32_t>(indices.size()));
        ++number;
    }

    constexpr VertexLayout layout = {.vertexType = 0, .size = sizeof(PartVertex), .normal = sizeof(float[3])};
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_vertices.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(vertices.size() * sizeof(PartVertex)), vertices.data(),
                 GL_STATIC_DRAW);
    describe(Attribute::position, 0, 3, GL_FLOAT, layout);
    describe(Attribute::normal, layout.normal, 3, GL_FLOAT, layout);
    glEnableVertexAttribArray(static_cast<GLuint>(Attribute::part));
    glVertexAttribIPointer(static_cast<GLuint>(Attribute::part), 1, GL_UNSIGNED_INT, sizeof(PartVertex),
                           offsetPointer(offsetof(PartVertex, part)));
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, m_indices.name());
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLsizeiptr>(indices.size() * sizeof(std::uint32_t)),
                 indices.data(), GL_STATIC_DRAW);
    glBindVertexArray(0);
    requireMemory();
    m_numIndices = static_cast<GLsizei>(indices.size());
}

void Mesh::draw() const
{
    // Segments follow each other without gaps, and triangles may cross their borders.
    glBindVertexArray(m_array.name());
    glDrawElements(GL_TRIANGLES, m_numIndices, GL_UNSIGNED_INT, nullptr);
}

void Mesh::draw(std::span<const PartRange> ranges) const
{
    std::vector<GLsizei> counts;
    std::vector<const void*> starts;
    for (const PartRange& range : ranges) {
        const std::uint32_t start = range.first > 0 ? m_partEnds[range.first - 1] : 0;
        counts.push_back(static_cast<GLsizei>(m_partEnds[range.first + range.count - 1] - start));
        starts.push_back(offsetPointer(static_cast<std::ptrdiff_t>(start * sizeof(std::uint32_t))));
    }
    glBindVertexArray(m_array.name());
    glMultiDrawElements(GL_TRIANGLES, counts.data(), GL_UNSIGNED_INT, starts.data(),
                        static_cast<GLsizei>(counts.size()));
}

void Mesh::draw(const InstanceBuffer& instances) const
{
    glBindVertexArray(m_array.name());
    instances.bind();
    glDrawElementsInstanced(GL_TRIANGLES, m_numIndices, GL_UNSIGNED_INT, nullptr, instances.size());
    InstanceBuffer::release();
}

} // namespace vxrenderer
