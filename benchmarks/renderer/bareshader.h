#pragma once

namespace vxrenderer {

/// Fragments in one colour: the least that a program can ask of the driver.
inline constexpr const char* c_bareFragmentSource = R"(
out vec4 result;

void main()
{
    result = vec4(0.2, 0.4, 0.8, 1.0);
}
)";

} // namespace vxrenderer
