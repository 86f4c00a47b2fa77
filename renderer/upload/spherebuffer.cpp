#include "renderer/upload/spherebuffer.h"

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
        glVertexAttribDivisor(location, 1);
    };
    describe(0, numAxes, 0);
    describe(1, 2, numAxes);
    glBindVertexArray(0);
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for spheres.");
    }
    m_size = static_cast<GLsizei>(records.size_bytes() / static_cast<std::size_t>(size));
}

void SphereBuffer::draw() const
{
    glBindVertexArray(m_array.name());
    glDrawArraysInstanced(GL_TRIANGLES, 0, 3, m_size);
}

} // namespace vxrenderer
