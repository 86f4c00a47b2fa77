#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vxrenderer {

/// Numbers from 0 on for those vertices of a mesh that something is about, in the order in which they are asked for. So
/// what is known about them can be in arrays as short as there are such vertices.
class VertexNumbers {
public:
    explicit VertexNumbers(std::size_t numVertices) : m_numbers(numVertices) {}

    std::uint32_t of(std::uint32_t vertex)
    {
        std::uint32_t& number = m_numbers[vertex];
        if (number == 0) {
            m_vertices.push_back(vertex);
            number = static_cast<std::uint32_t>(m_vertices.size());
        }
        return number - 1;
    }
    /// The vertices by their numbers.
    const std::vector<std::uint32_t>& getVertices() const { return m_vertices; }

private:
    /// Each number plus one; 0 where there is none.
    std::vector<std::uint32_t> m_numbers;
    std::vector<std::uint32_t> m_vertices;
};

} // namespace vxrenderer
