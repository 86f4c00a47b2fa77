#include "renderer/upload/instancebuffer.h"

#include "renderer/upload/mesh.h"

#include <stdexcept>

namespace vxrenderer {
namespace {

struct Part {
    Attribute attribute;
    GLint numFloats;
    std::ptrdiff_t offset;
};
constexpr Part c_parts[] = {{Attribute::instancePosition, 3, offsetof(Instance, position)},
                            {Attribute::instanceAxis, 3, offsetof(Instance, axis)},
                            {Attribute::instanceTexture, 1, offsetof(Instance, u)},
                            {Attribute::instanceThickness, 1, offsetof(Instance, thickness)}};

} // namespace

void InstanceBuffer::load(std::span<const Instance> instances)
{
    m_size = 0;
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(instances.size_bytes()), instances.data(), GL_STATIC_DRAW);
    if (glGetError() == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has no memory for the instances of a mesh.");
    }
    m_size = static_cast<GLsizei>(instances.size());
}

void InstanceBuffer::bind() const
{
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    for (const Part& part : c_parts) {
        const auto location = static_cast<GLuint>(part.attribute);
        glEnableVertexAttribArray(location);
        glVertexAttribPointer(location, part.numFloats, GL_FLOAT, GL_FALSE, sizeof(Instance),
                              offsetPointer(part.offset));
        glVertexAttribDivisor(location, 1);
    }
}

void InstanceBuffer::release()
{
    for (const Part& part : c_parts) {
        glDisableVertexAttribArray(static_cast<GLuint>(part.attribute));
    }
}

} // namespace vxrenderer
