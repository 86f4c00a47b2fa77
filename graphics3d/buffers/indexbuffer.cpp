#include "graphics3d/buffers/indexbuffer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {

namespace {

struct IndexCounts {
    int perElem;
    int perSegment;
};

/// Indexed by IndexBuffer::Type.
constexpr IndexCounts c_indexCounts[] = {{2, 0}, {1, 1}, {3, 0}, {4, 0}};

constexpr int c_largestNarrowCapacity = 65535;

constexpr IndexCounts countsOf(IndexBuffer::Type type)
{
    const auto number = static_cast<std::size_t>(type);
    return number < std::size(c_indexCounts) ? c_indexCounts[number] : IndexCounts{0, 0};
}

bool needs32Bit(const VertexBuffer& vertexBuffer)
{
    return vertexBuffer.getCapacity() > c_largestNarrowCapacity;
}

} // namespace

int IndexBuffer::indicesPerElem(Type type)
{
    return countsOf(type).perElem;
}

int IndexBuffer::indicesPerSegment(Type type)
{
    return countsOf(type).perSegment;
}

IndexBuffer::IndexBuffer(Type type, const VertexBuffer& vertexBuffer)
    : m_type(type),
      m_indicesPerElem(indicesPerElem(type)),
      m_indicesPerSegment(indicesPerSegment(type)),
      m_vertexBuffer(vertexBuffer)
{}

IndexBuffer::~IndexBuffer() = default;

void IndexBuffer::internalAllocate(int numElements, int numSegments)
{
    const bool hasIndices = numElements >= 1 && numSegments >= 1;
    const std::int64_t total =
        std::int64_t{m_indicesPerElem} * numElements + std::int64_t{m_indicesPerSegment} * numSegments;
    if (hasIndices && total > std::numeric_limits<int>::max()) {
        throw std::invalid_argument("An index buffer cannot hold " + std::to_string(total) + " indices.");
    }
    if (m_numElements > 0) {
        deallocate();
    }
    // One entry more than there are segments. Reserved first, so that a failure leaves no indices.
    m_segmentStarts.reserve(hasIndices ? static_cast<std::size_t>(numSegments) + 1 : 1);
    if (hasIndices) {
        m_use32BitIndices = needs32Bit(m_vertexBuffer);
        const auto size = static_cast<std::size_t>(total);
        if (m_use32BitIndices) {
            m_indices32.reset(new unsigned int[size]);
        } else {
            m_indices16.reset(new unsigned short[size]);
        }
        m_numIndices = static_cast<int>(total);
        m_numElements = numElements;
        m_numSegments = numSegments;
    }
    m_segmentStarts.assign(1, 0);
}

void IndexBuffer::deallocate()
{
    m_indices16.reset();
    m_indices32.reset();
    m_numIndices = 0;
    m_numElements = 0;
    m_numSegments = 0;
    m_segmentStarts.clear();
}

void IndexBuffer::newSegment()
{
    if (m_numSegments > 0 && m_numElements > 0) {
        m_segmentStarts.push_back(m_segmentStarts.back());
    }
}

int IndexBuffer::getVertexIndex(int segment, int position) const
{
    return indexAt((m_segmentStarts.empty() ? 0 : m_segmentStarts[static_cast<std::size_t>(segment)]) + position);
}

Vector3f IndexBuffer::getVertex(int segment, int position) const
{
    return m_vertexBuffer.getCoord(getVertexIndex(segment, position));
}

void IndexBuffer::import(const IndexBuffer& source)
{
    if (&source == this) {
        return;
    }
    const int segments = static_cast<int>(source.m_segmentStarts.size()) - 1;
    const int elements =
        source.m_segmentStarts.empty()
            ? 0
            : (source.m_segmentStarts.back() - source.m_indicesPerSegment * segments) / source.m_indicesPerElem;
    if (source.m_type != m_type) {
        throw std::invalid_argument("An index buffer takes the indices of another type of elements.");
    }
    if (elements >= 1 && source.m_use32BitIndices != needs32Bit(m_vertexBuffer)) {
        throw std::invalid_argument("An index buffer takes indices of another width than its vertex buffer needs.");
    }
    internalAllocate(elements, segments);
    const int count = segments * m_indicesPerSegment + elements * m_indicesPerElem;
    // Strips that were opened but have no line pieces contain indices, but nothing was allocated for them here.
    if (count > m_numIndices) {
        return;
    }
    m_segmentStarts = source.m_segmentStarts;
    if (count > 0) {
        if (m_use32BitIndices) {
            std::copy_n(source.m_indices32.get(), count, m_indices32.get());
        } else {
            std::copy_n(source.m_indices16.get(), count, m_indices16.get());
        }
    }
}

int IndexBuffer::getNumElements(int segment) const
{
    const auto first = static_cast<std::size_t>(segment);
    if (segment < 0 || first + 1 >= m_segmentStarts.size()) {
        return 0;
    }
    return (m_segmentStarts[first + 1] - m_segmentStarts[first] - m_indicesPerSegment) / m_indicesPerElem;
}

void IndexBuffer::requireSpace(int count, int indicesEach) const
{
    const int used = m_segmentStarts.empty() ? 0 : m_segmentStarts.back();
    if (m_segmentStarts.empty() || count < 0 || std::int64_t{count} * indicesEach > m_numIndices - used) {
        throw std::out_of_range("An index buffer of " + std::to_string(m_numIndices) + " indices holds " +
                                std::to_string(used) + " and cannot take " + std::to_string(count) + " elements more.");
    }
}

int IndexBuffer::indexAt(int position) const
{
    const auto at = static_cast<std::size_t>(position);
    return m_use32BitIndices ? static_cast<int>(m_indices32[at]) : m_indices16[at];
}

} // namespace vxgraphics3d
