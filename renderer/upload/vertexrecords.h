#pragma once

#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "graphics3d/foundation/vector3f.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vxrenderer {

/// Reads vertices of any layout.
class VertexRecords {
public:
    VertexRecords(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::VertexLayout& layout)
        : m_first(static_cast<const std::byte*>(vertices.vertexPointer())), m_layout(layout)
    {}

    vxgraphics3d::Vector3f position(std::uint32_t index) const { return vectorAt(index, 0); }
    vxgraphics3d::Vector3f normal(std::uint32_t index) const { return vectorAt(index, m_layout.normal); }
    /// Whether position and texture coordinate are finite.
    bool isFinite(std::uint32_t index) const
    {
        const vxgraphics3d::Vector3f point = position(index);
        return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z) && std::isfinite(u(index));
    }
    /// Whether the layout has normals.
    bool hasNormals() const { return m_layout.normal >= 0; }
    /// Whether there is a normal that points somewhere.
    bool hasNormal(std::uint32_t index) const
    {
        const float size = m_layout.normal >= 0 ? normal(index).lengthSquared() : 0.0f;
        return size > 0.0f && std::isfinite(size);
    }

    /// The texture coordinate; 0 in a layout without.
    float u(std::uint32_t index) const { return m_layout.texture >= 0 ? at(index, m_layout.texture) : 0.0f; }
    const std::byte* record(std::uint32_t index) const { return m_first + index * m_layout.size; }

private:
    float at(std::uint32_t index, std::ptrdiff_t offset) const
    {
        float value;
        std::memcpy(&value, record(index) + offset, sizeof value);
        return value;
    }
    vxgraphics3d::Vector3f vectorAt(std::uint32_t index, std::ptrdiff_t offset) const
    {
        constexpr std::ptrdiff_t step = sizeof(float);
        return {at(index, offset), at(index, offset + step), at(index, offset + 2 * step)};
    }

    const std::byte* m_first;
    vxgraphics3d::VertexLayout m_layout;
};

} // namespace vxrenderer
