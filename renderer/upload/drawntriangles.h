#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace vxgraphics3d {
class VertexBuffer;
struct VertexLayout;
} // namespace vxgraphics3d

namespace vxrenderer {

class CheckedIndices;

/// The triangles of an index buffer in the form that the graphics hardware draws them in.
///
/// A triangle is left out if the position or the texture coordinate of one of its corners is not finite: it has no
/// position or no colour. The corners of all others run counter-clockwise for an eye on the side that their normals
/// point to, so that the hardware knows which side of a surface it shows: plots keep the order of their source, which
/// may be either. A mesh whose triangles have one order is turned as a whole, as single normals of a rough surface may
/// point to the wrong side of a triangle. Otherwise each triangle follows its own normals.
class DrawnTriangles {
public:
    DrawnTriangles(const CheckedIndices& source, const vxgraphics3d::VertexBuffer& vertices,
                   const vxgraphics3d::VertexLayout& layout);

    const std::uint32_t* data() const { return m_indices.get(); }
    /// Three for each triangle.
    std::span<std::uint32_t> indices() { return {m_indices.get(), static_cast<std::size_t>(m_size)}; }
    /// Number of indices.
    int size() const { return m_size; }
    std::ptrdiff_t bytes() const { return m_size * static_cast<std::ptrdiff_t>(sizeof(std::uint32_t)); }
    /// Whether all vertices have a normal.
    bool haveNormals() const { return m_haveNormals; }

private:
    std::unique_ptr<std::uint32_t[]> m_indices;
    int m_size = 0;
    bool m_haveNormals;
};

} // namespace vxrenderer
