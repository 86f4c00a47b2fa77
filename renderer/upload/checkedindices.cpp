#include "renderer/upload/checkedindices.h"

#include "graphics3d/buffers/indexbuffer.h"
#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexlayout.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace vxrenderer {
namespace {

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

const vxgraphics3d::VertexLayout& requireLayout(const vxgraphics3d::VertexBuffer& vertices)
{
    const vxgraphics3d::VertexLayout* layout = vxgraphics3d::findVertexLayout(vertices.getVertexType());
    if (layout == nullptr) {
        throw std::invalid_argument("Vertices of type " + std::to_string(vertices.getVertexType()) +
                                    " cannot be drawn.");
    }
    return *layout;
}

CheckedIndices::CheckedIndices(const vxgraphics3d::IndexBuffer& indices, const vxgraphics3d::VertexBuffer& vertices)
    : m_size(indices.getSegmentStarts().empty() ? 0 : indices.getSegmentStarts().back())
{
    if (indices.uses32BitIndices()) {
        m_wide = indices.getIndices32();
        requireWithin(m_wide, m_size, vertices.getNumberOfVertices());
    } else {
        m_narrow = indices.getIndices16();
        requireWithin(m_narrow, m_size, vertices.getNumberOfVertices());
    }
}

} // namespace vxrenderer
