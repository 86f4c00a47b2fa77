#pragma once

#include "renderer/gl/globject.h"
#include "renderer/upload/linemesh.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vxgraphics3d {
class IndexBuffer;
class VertexBuffer;
class VertexBufferNormal;
struct VertexLayout;
} // namespace vxgraphics3d

namespace vxrenderer {

class DrawnTriangles;
class InstanceBuffer;

/// Locations of the vertex attributes, the same in all shaders of meshes.
enum class Attribute : GLuint {
    position = 0,
    normal = 1,
    color = 2,
    texture = 3,
    secondTexture = 4,
    triple = 5,
    instancePosition = 6,
    instanceAxis = 7,
    instanceTexture = 8,
    instanceThickness = 9,
    part = 10
};

/// One of several meshes that are drawn together.
struct MeshPart {
    const vxgraphics3d::VertexBufferNormal& vertices;
    const vxgraphics3d::IndexBuffer& triangles;
};

/// Parts of a mesh with consecutive numbers.
struct PartRange {
    std::size_t first;
    std::size_t count;
};

/// Triangles on the graphics hardware: a vertex buffer and an index buffer.
class Mesh {
public:
    /// Copies both buffers, as far as they have been filled, without triangles that have something not finite. The
    /// layout of the vertices follows from their type.
    /// @throws std::invalid_argument for vertices of an unknown type, or indices that form no triangles
    /// @throws std::out_of_range if an index points beyond the vertices
    /// @throws std::runtime_error if the driver has no memory for it
    void load(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);
    /// The same for a surface of a body, which is shaded with the normal of each side at its creases.
    /// @param creaseAngle in radians, from which triangles that meet make a crease
    void loadBody(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices,
                  float creaseAngle);
    /// Copies the triangles of several sheets in the same way, with normals that are their own. Each vertex has the
    /// number of its sheet.
    void load(std::span<const MeshPart> parts);

    /// Whether all vertices that are drawn have a normal. Others are lit by the slope of their triangle.
    bool hasNormals() const { return m_hasNormals; }

    /// The creases and borders of a body; null for other meshes.
    const LineMesh* getFeatureEdges() const { return m_featureEdges ? &*m_featureEdges : nullptr; }

    /// Draws all segments with the program in use.
    void draw() const;
    /// Draws the mesh once for each instance.
    void draw(const InstanceBuffer& instances) const;
    /// Draws some of the parts that the mesh was loaded with.
    void draw(std::span<const PartRange> ranges) const;

private:
    void upload(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::VertexLayout& layout,
                const DrawnTriangles& triangles, std::span<const std::byte> furtherVertices);

    GlVertexArray m_array;
    GlBuffer m_vertices;
    GlBuffer m_indices;
    GLsizei m_numIndices = 0;
    /// Where the indices of each part end; empty for a mesh without parts.
    std::vector<std::uint32_t> m_partEnds;
    bool m_hasNormals = false;
    std::optional<LineMesh> m_featureEdges;
};

} // namespace vxrenderer
