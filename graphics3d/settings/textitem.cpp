#include "graphics3d/settings/textitem.h"

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

std::size_t textItemIndex(TextItem item)
{
    if (item < 0 || item >= c_numTextItems) {
        throw std::out_of_range("There is no text item " + std::to_string(static_cast<int>(item)) + '.');
    }
    return static_cast<std::size_t>(item);
}

} // namespace vxgraphics3d
