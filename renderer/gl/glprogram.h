#pragma once

#include "graphics3d/foundation/color.h"

#include <epoxy/gl.h>

#include <array>
#include <cstddef>
#include <span>

namespace vxgraphics3d {
class Matrixf;
}

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

    /// Values of uniforms, by their place; -1, the place of one that the compiler has dropped, does nothing.
    GLint place(const char* uniform) const { return glGetUniformLocation(m_program, uniform); }
    static void set(GLint place, int value) { glUniform1i(place, value); }
    static void set(GLint place, float value) { glUniform1f(place, value); }
    static void set(GLint place, float x, float y) { glUniform2f(place, x, y); }
    static void set(GLint place, float x, float y, float z) { glUniform3f(place, x, y, z); }
    static void set(GLint place, float x, float y, float z, float w) { glUniform4f(place, x, y, z, w); }
    static void set(GLint place, const vxgraphics3d::Matrixf& matrix);
    /// Channels from 0 to 1.
    static void set(GLint place, const vxgraphics3d::Color& color);
    /// The elements of an array, from its first one on.
    static void set(GLint place, std::span<const std::array<float, 4>> values);

private:
    GLuint m_program;
};

} // namespace vxrenderer
