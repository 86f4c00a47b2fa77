#pragma once

namespace vxgraphics3d {
class IndexBuffer;
class VertexBuffer;
struct VertexLayout;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The layout of the vertices. Throws std::invalid_argument for a type of vertices that is not known.
const vxgraphics3d::VertexLayout& requireLayout(const vxgraphics3d::VertexBuffer& vertices);

/// The indices that were appended to an index buffer, in either width, found to lie within the vertices: graphics
/// hardware would read the memory beyond them.
class CheckedIndices {
public:
    /// @throws std::out_of_range if an index points beyond the vertices
    CheckedIndices(const vxgraphics3d::IndexBuffer& indices, const vxgraphics3d::VertexBuffer& vertices);

    int size() const { return m_size; }
    unsigned operator[](int position) const { return m_wide != nullptr ? m_wide[position] : m_narrow[position]; }

private:
    const unsigned short* m_narrow = nullptr;
    const unsigned int* m_wide = nullptr;
    int m_size;
};

} // namespace vxrenderer
