#include "renderer/upload/spherebuffer.h"

#include <algorithm>
#include <stdexcept>

namespace vxrenderer {

void SphereBuffer::load(std::span<const float> records, bool areDiscs)
{
    m_size = 0;
    m_areDiscs = areDiscs;
    const GLint numAxes = areDiscs ? 2 : 3;
    const auto size = static_cast<GLsizei>(static_cast<std::size_t>(numAxes + 2) * sizeof(float));
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(records.size_bytes()), records.data(), GL_STATIC_DRAW);
    const auto describe = [&](GLuint location, GLint numFloats, std::ptrdiff_t first) {
        glEnableVertexAttribArray(location);
        glVertexAttribPointer(location, numFloats, GL_FLOAT, GL_FALSE, size,
                              offsetPointer(first * static_cast<std::ptrdiff_t>(sizeof(float))));
    };
    describe(0, numAxes, 0);
    describe(1, 2, numAxes);
    glBindVertexArray(0);
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for spheres.");
    }
    measure(records, static_cast<std::size_t>(numAxes));
    m_size = static_cast<GLsizei>(records.size_bytes() / static_cast<std::size_t>(size));
}

void SphereBuffer::measure(std::span<const float> records, std::size_t numAxes)
{
    m_largestRadius = 0.0f;
    vxgraphics3d::Vector3f low;
    vxgraphics3d::Vector3f high;
    for (std::size_t i = 0; i < records.size(); i += numAxes + 2) {
        const vxgraphics3d::Vector3f p(records[i], records[i + 1], numAxes == 3 ? records[i + 2] : 0.0f);
        low = i == 0 ? p : vxgraphics3d::Vector3f(std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z));
        high = i == 0 ? p : vxgraphics3d::Vector3f(std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z));
        m_largestRadius = std::max(m_largestRadius, records[i + numAxes + 1]);
    }
    m_box.init(low.x, high.x, low.y, high.y, low.z, high.z);
}

void SphereBuffer::draw(bool asPoints) const
{
    glBindVertexArray(m_array.name());
    for (const GLuint location : {0u, 1u}) {
        glVertexAttribDivisor(location, asPoints ? 0 : 1);
    }
    if (asPoints) {
        glDrawArrays(GL_POINTS, 0, m_size);
    } else {
        glDrawArraysInstanced(GL_TRIANGLES, 0, 3, m_size);
    }
}

} // namespace vxrenderer
