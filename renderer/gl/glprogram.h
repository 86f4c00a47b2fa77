#pragma once

#include <epoxy/gl.h>

#include <cstddef>

namespace vxrenderer {

/// A pair of shaders, compiled and linked.
class GlProgram {
public:
    /// @param name what the program draws, for the message
    /// @param vertexSource,fragmentSource text of the shaders without the version line
    /// @throws std::runtime_error with the compiler's log if one does not compile or they do not link
    GlProgram(const char* name, const char* vertexSource, const char* fragmentSource);
    ~GlProgram();
    GlProgram(const GlProgram&) = delete;
    GlProgram& operator=(const GlProgram&) = delete;

    void use() const { glUseProgram(m_program); }

    /// Lets the program read a uniform block from a binding point.
    /// @param size bytes of the record that is written there
    /// @throws std::logic_error if the program has no such block, or one of another size
    void bindBlock(const char* block, GLuint binding, std::size_t size) const;

    /// Lets a sampler read from a texture unit; units are 0 where nothing else is set. Changes the program in use.
    void setSampler(const char* sampler, GLint unit) const;

private:
    GLuint m_program;
};

} // namespace vxrenderer
