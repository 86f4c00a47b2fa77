#pragma once

#include <string_view>

namespace vxrenderer {

/// The character that a command of the title markup represents, without its backslash: `alpha`, `times`, `infty`.
/// @return 0 for a name that represents none
char32_t symbolByName(std::u32string_view name);

} // namespace vxrenderer
