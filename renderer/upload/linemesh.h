#pragma once

#include "renderer/gl/globject.h"
#include "renderer/upload/linejoints.h"

#include <span>
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
    using Piece = LinePiece;

    LineMesh();

    /// Copies the pieces of single lines or line strips, whose vertices need a position only, without pieces that have
    /// something not finite.
    /// @throws std::invalid_argument for vertices of an unknown type, or indices that form no lines
    /// @throws std::out_of_range if an index points beyond the vertices
    /// @throws std::runtime_error if the driver has no memory for it
    void load(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);

    /// Copies pieces, without those that have something not finite. Pieces that follow each other are joined, see
    /// `joinRuns`.
    /// @throws std::runtime_error if the driver has no memory for it
    void load(std::vector<Piece> pieces);

    /// Copies pieces in any order, which are finite. They are joined where two of them meet, see `joinPairs`.
    /// @param vertices two for each piece
    /// @throws std::runtime_error if the driver has no memory for it
    void load(std::span<const Piece> pieces, std::span<const int> vertices);

    /// Draws all pieces with the program in use, each as a strip of four vertices.
    void draw() const;

private:
    void load(const std::vector<JointedPiece>& pieces);

    GlVertexArray m_array;
    GlBuffer m_pieces;
    GLsizei m_numPieces = 0;
};

} // namespace vxrenderer
