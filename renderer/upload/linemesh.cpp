#include "renderer/upload/linemesh.h"

#include "graphics3d/buffers/indexbuffer.h"
#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "renderer/upload/checkedindices.h"

#include <cmath>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::IndexBuffer;
using vxgraphics3d::VertexBuffer;

/// Calls `add` with the two index positions of each piece.
template <class Add>
void forEachPiece(const IndexBuffer& indices, Add&& add)
{
    const std::vector<int>& starts = indices.getSegmentStarts();
    const int step = indices.getType() == IndexBuffer::Lines ? 2 : 1;
    for (std::size_t s = 0; s + 1 < starts.size(); ++s) {
        for (int i = starts[s]; i + 1 < starts[s + 1]; i += step) {
            add(i, i + 1);
        }
    }
}

bool isFinite(const LinePiece& piece)
{
    const auto isPoint = [](const vxgraphics3d::Vector3f& point, float u) {
        return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z) && std::isfinite(u);
    };
    return isPoint(piece.from, piece.uFrom) && isPoint(piece.to, piece.uTo);
}

} // namespace

LineMesh::LineMesh()
{
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_pieces.name());
    JointedPiece::describe();
    glBindVertexArray(0);
}

void LineMesh::load(const VertexBuffer& vertices, const IndexBuffer& indices)
{
    m_numPieces = 0;
    if (indices.getType() != IndexBuffer::Lines && indices.getType() != IndexBuffer::LineStrips) {
        throw std::invalid_argument("Elements of type " + std::to_string(indices.getType()) +
                                    " cannot be drawn as lines.");
    }
    const vxgraphics3d::VertexLayout& layout = requireLayout(vertices);
    const CheckedIndices checked(indices, vertices);
    const auto* records = static_cast<const std::byte*>(vertices.vertexPointer());
    const auto read = [&](int position, vxgraphics3d::Vector3f& point, float& u) {
        const std::byte* record = records + checked[position] * layout.size;
        std::memcpy(&point, record, sizeof point);
        if (layout.texture >= 0) {
            std::memcpy(&u, record + layout.texture, sizeof u);
        }
    };
    std::vector<Piece> pieces;
    std::vector<int> corners;
    pieces.reserve(static_cast<std::size_t>(checked.size()));
    forEachPiece(indices, [&](int from, int to) {
        Piece piece;
        read(from, piece.from, piece.uFrom);
        read(to, piece.to, piece.uTo);
        if (isFinite(piece)) {
            pieces.push_back(piece);
            corners.push_back(static_cast<int>(checked[from]));
            corners.push_back(static_cast<int>(checked[to]));
        }
    });
    load(indices.getType() == IndexBuffer::Lines ? joinPairs(pieces, corners) : joinRuns(pieces));
}

void LineMesh::load(std::vector<Piece> pieces)
{
    m_numPieces = 0;
    std::erase_if(pieces, [](const Piece& piece) { return !isFinite(piece); });
    load(joinRuns(pieces));
}

void LineMesh::load(std::span<const Piece> pieces, std::span<const int> vertices)
{
    m_numPieces = 0;
    load(joinPairs(pieces, vertices));
}

void LineMesh::load(const std::vector<JointedPiece>& pieces)
{
    glBindBuffer(GL_ARRAY_BUFFER, m_pieces.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(pieces.size() * sizeof(JointedPiece)), pieces.data(),
                 GL_STATIC_DRAW);
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for lines.");
    }
    m_numPieces = static_cast<GLsizei>(pieces.size());
}

void LineMesh::draw() const
{
    glBindVertexArray(m_array.name());
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, m_numPieces);
}

} // namespace vxrenderer
