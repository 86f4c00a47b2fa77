#pragma once

#include <cstdint>
#include <vector>

namespace vxgraphics3d {
class VertexBuffer;
struct VertexLayout;
} // namespace vxgraphics3d

namespace vxrenderer {

class CheckedIndices;

/// The triangles of an index buffer in the form that the graphics hardware draws them in.
///
/// A triangle is left out if the position or the texture coordinate of one of its corners is not finite: no place and
/// no colour stands for it. The corners of all others run counter-clockwise for an eye on the side that their normals
/// point to, so that the hardware knows which side of a surface it shows: plots keep the order of their source, which
/// may be either.
struct DrawnTriangles {
    DrawnTriangles(const CheckedIndices& source, const vxgraphics3d::VertexBuffer& vertices,
                   const vxgraphics3d::VertexLayout& layout);

    std::vector<std::uint32_t> indices;
    /// Whether all corners have a normal.
    bool haveNormals = true;
};

} // namespace vxrenderer
