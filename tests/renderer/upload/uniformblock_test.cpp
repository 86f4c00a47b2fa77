#include "renderer/upload/uniformblock.h"

#include "renderer/gl/eglcontext.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

namespace vxrenderer {
namespace {

template <std::size_t Floats>
struct Record {
    static constexpr const char* c_block = "Values";
    static constexpr GLuint c_binding = 0;

    std::array<float, Floats> values;
};

struct Missing : Record<8> {
    static constexpr const char* c_block = "Missing";
};

TEST(UniformBlock, takesOnlyRecordsOfTheSizeThatTheShaderDeclares)
{
    const EglContext context;
    const EglContext::Current current(context);
    // Five floats fill two of the blocks' vectors of four.
    const GlProgram program("a test", R"(
layout(std140) uniform Values { vec4 first; float last; };
void main() { gl_Position = first + vec4(last); }
)",
                            "out vec4 result; void main() { result = vec4(1.0); }");
    EXPECT_NO_THROW(UniformBlock<Record<8>>().attach(program));
    EXPECT_THROW(UniformBlock<Record<4>>().attach(program), std::logic_error);
    EXPECT_THROW(UniformBlock<Record<12>>().attach(program), std::logic_error);
    EXPECT_THROW(UniformBlock<Missing>().attach(program), std::logic_error);
}

} // namespace
} // namespace vxrenderer
