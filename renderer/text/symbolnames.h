#pragma once

#include <string_view>

namespace vxrenderer {

/// The character that a command of the title markup stands for, without its backslash: `alpha`, `times`, `infty`.
/// @return 0 for a name that stands for none
char32_t symbolByName(std::u32string_view name);

} // namespace vxrenderer
