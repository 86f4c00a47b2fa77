#include "renderer/gl/glprogram.h"

#include <stdexcept>
#include <string>

namespace vxrenderer {
namespace {

constexpr const char* c_version = "#version 330 core\n";

std::string failureText(const char* name, const char* step, const char* log)
{
    return std::string("the shader of ") + name + " does not " + step + ": " + log;
}

class Shader {
public:
    Shader(GLenum type, const char* name, const char* source) : m_shader(glCreateShader(type))
    {
        const char* const sources[] = {c_version, source};
        glShaderSource(m_shader, 2, sources, nullptr);
        glCompileShader(m_shader);
        GLint isCompiled = GL_FALSE;
        glGetShaderiv(m_shader, GL_COMPILE_STATUS, &isCompiled);
        if (isCompiled == GL_FALSE) {
            char log[1024] = "";
            glGetShaderInfoLog(m_shader, sizeof log, nullptr, log);
            glDeleteShader(m_shader);
            throw std::runtime_error(failureText(name, "compile", log));
        }
    }
    ~Shader() { glDeleteShader(m_shader); }
    Shader(const Shader&) = delete;
    Shader& operator=(const Shader&) = delete;

    GLuint name() const { return m_shader; }

private:
    GLuint m_shader;
};

} // namespace

GlProgram::GlProgram(const char* name, const char* vertexSource, const char* fragmentSource) : m_program(0)
{
    const Shader vertexShader(GL_VERTEX_SHADER, name, vertexSource);
    const Shader fragmentShader(GL_FRAGMENT_SHADER, name, fragmentSource);
    m_program = glCreateProgram();
    glAttachShader(m_program, vertexShader.name());
    glAttachShader(m_program, fragmentShader.name());
    glLinkProgram(m_program);
    GLint isLinked = GL_FALSE;
    glGetProgramiv(m_program, GL_LINK_STATUS, &isLinked);
    if (isLinked == GL_FALSE) {
        char log[1024] = "";
        glGetProgramInfoLog(m_program, sizeof log, nullptr, log);
        glDeleteProgram(m_program);
        throw std::runtime_error(failureText(name, "link", log));
    }
    glDetachShader(m_program, vertexShader.name());
    glDetachShader(m_program, fragmentShader.name());
}

GlProgram::~GlProgram()
{
    glDeleteProgram(m_program);
}

void GlProgram::bindBlock(const char* block, GLuint binding, std::size_t size) const
{
    const GLuint index = glGetUniformBlockIndex(m_program, block);
    GLint present = -1;
    if (index != GL_INVALID_INDEX) {
        glGetActiveUniformBlockiv(m_program, index, GL_UNIFORM_BLOCK_DATA_SIZE, &present);
    }
    // Drivers may leave out what the last value does not fill.
    if (present < 0 || (static_cast<std::size_t>(present) + 15) / 16 * 16 != size) {
        throw std::logic_error("The block " + std::string(block) + " takes " + std::to_string(present) +
                               " bytes in the shader and " + std::to_string(size) + " in its record.");
    }
    glUniformBlockBinding(m_program, index, binding);
}

void GlProgram::setSampler(const char* sampler, GLint unit) const
{
    use();
    glUniform1i(glGetUniformLocation(m_program, sampler), unit);
}

} // namespace vxrenderer
