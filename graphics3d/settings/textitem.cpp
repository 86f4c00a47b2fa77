#include "graphics3d/settings/textitem.h"

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

std::size_t textItemIndex(TextItem item)
{
    const auto index = static_cast<int>(item);
    if (index < 0 || index >= c_numTextItems) {
        throw std::out_of_range("There is no text item " + std::to_string(index) + '.');
    }
    return static_cast<std::size_t>(index);
}

} // namespace vxgraphics3d
