#pragma once

#include <epoxy/gl.h>

#include <bit>
#include <cstddef>
#include <utility>

namespace vxrenderer {

namespace detail {

inline void makeBuffer(GLuint* name)
{
    glGenBuffers(1, name);
}
inline void deleteBuffer(GLuint name)
{
    glDeleteBuffers(1, &name);
}
inline void makeVertexArray(GLuint* name)
{
    glGenVertexArrays(1, name);
}
inline void deleteVertexArray(GLuint name)
{
    glDeleteVertexArrays(1, &name);
}
inline void makeTexture(GLuint* name)
{
    glGenTextures(1, name);
}
inline void deleteTexture(GLuint name)
{
    glDeleteTextures(1, &name);
}
inline void makeFramebuffer(GLuint* name)
{
    glGenFramebuffers(1, name);
}
inline void deleteFramebuffer(GLuint name)
{
    glDeleteFramebuffers(1, &name);
}
inline void makeRenderbuffer(GLuint* name)
{
    glGenRenderbuffers(1, name);
}
inline void deleteRenderbuffer(GLuint name)
{
    glDeleteRenderbuffers(1, &name);
}

inline void makeQuery(GLuint* name)
{
    glGenQueries(1, name);
}
inline void deleteQuery(GLuint name)
{
    glDeleteQueries(1, &name);
}

} // namespace detail

/// Owner of one object of the graphics interface. It is made and destroyed while the context is current.
template <void (*Make)(GLuint*), void (*Delete)(GLuint)>
class GlObject {
public:
    GlObject() { Make(&m_name); }
    ~GlObject()
    {
        if (m_name != 0) {
            Delete(m_name);
        }
    }
    GlObject(GlObject&& other) noexcept : m_name(std::exchange(other.m_name, 0)) {}
    GlObject& operator=(GlObject&& other) noexcept
    {
        std::swap(m_name, other.m_name);
        return *this;
    }

    GLuint name() const { return m_name; }

private:
    GLuint m_name = 0;
};

/// An offset in a bound buffer, in bytes, in the form that the graphics interface takes.
inline const void* offsetPointer(std::ptrdiff_t bytes)
{
    return std::bit_cast<const void*>(bytes);
}

using GlBuffer = GlObject<detail::makeBuffer, detail::deleteBuffer>;
using GlVertexArray = GlObject<detail::makeVertexArray, detail::deleteVertexArray>;
using GlTexture = GlObject<detail::makeTexture, detail::deleteTexture>;
using GlFramebuffer = GlObject<detail::makeFramebuffer, detail::deleteFramebuffer>;
using GlQuery = GlObject<detail::makeQuery, detail::deleteQuery>;
using GlRenderbuffer = GlObject<detail::makeRenderbuffer, detail::deleteRenderbuffer>;

} // namespace vxrenderer
