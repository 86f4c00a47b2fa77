#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/gl/globject.h"

#include <cstddef>
#include <vector>

namespace vxgraphics3d {
class IndexBuffer;
class VertexBuffer;
} // namespace vxgraphics3d

namespace vxrenderer {

/// Lines on the graphics hardware, which are drawn as rectangles of any width: each piece is one instance of a
/// rectangle and carries both of its ends.
class LineMesh {
public:
    /// A straight piece, with the texture coordinates of its ends.
    struct Piece {
        vxgraphics3d::Vector3f from;
        vxgraphics3d::Vector3f to;
        float uFrom = 0.0f;
        float uTo = 0.0f;
    };

    /// Locations of the attributes in shaders of lines.
    enum class Attribute : GLuint { from = 0, to = 1, texture = 2 };

    LineMesh();

    /// Copies the pieces of single lines or line strips, whose vertices need a position only, without pieces that have
    /// something not finite.
    /// @throws std::invalid_argument for vertices of an unknown type, or indices that form no lines
    /// @throws std::out_of_range if an index points beyond the vertices
    /// @throws std::runtime_error if the driver has no memory for it
    void load(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);

    /// Copies pieces, without those that have something not finite.
    /// @throws std::runtime_error if the driver has no memory for it
    void load(std::vector<Piece> pieces);

    /// Draws all pieces with the program in use, each as a strip of four vertices.
    void draw() const;

private:
    GlVertexArray m_array;
    GlBuffer m_pieces;
    GLsizei m_numPieces = 0;
};
static_assert(sizeof(LineMesh::Piece) == 32 && offsetof(LineMesh::Piece, uFrom) == 24);

} // namespace vxrenderer
