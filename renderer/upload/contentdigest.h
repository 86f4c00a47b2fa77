#pragma once

#include <cstdint>
#include <span>

namespace vxgraphics3d {
class IndexBuffer;
class VertexBuffer;
} // namespace vxgraphics3d

namespace vxrenderer {

/// A number for everything that is drawn of a vertex buffer and an index buffer, by which the renderer recognises
/// buffers that have not changed. It takes one pass over their memory.
///
/// Contents that differ in a single word of 8 bytes never have the same digest; others do by chance alone, once in
/// 2^64.
std::uint64_t contentDigest(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);
/// The same for records of floats.
std::uint64_t contentDigest(std::span<const float> records);
/// The same for pixels in rows of a length.
std::uint64_t contentDigest(std::span<const std::uint32_t> pixels, int width);

} // namespace vxrenderer
