#pragma once

#include <cstddef>

namespace vxgraphics3d {

/// The kinds of text in a picture, each with its own font.
enum class TextItem : int {
    TextLabel = 0,           ///< labels of points and parts
    TextAxisTitle = 1,       ///< titles of axes
    TextAxisTick = 2,        ///< numbers along axes and grid boxes
    TextLegendTitle = 3,     ///< titles of legends, names in line legends
    TextLegendTick = 4,      ///< numbers next to legends
    TextTitle = 5,           ///< the title of the scene
    TextAxisOrientation = 6, ///< letters of the axis orientation indicator
};

/// The number of kinds of text.
inline constexpr int c_numTextItems = 7;

/// The index of a kind of text in a table of all kinds.
/// @throws std::out_of_range if there is no such kind
std::size_t textItemIndex(TextItem item);

} // namespace vxgraphics3d
