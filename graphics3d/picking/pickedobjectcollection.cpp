#include "graphics3d/picking/pickedobjectcollection.h"

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

const PickedObject& PickedObjectCollection::getPickedObject(int index) const
{
    if (index < 0 || index >= getNumberOfPickedObjects()) {
        throw std::out_of_range("There is no picked object " + std::to_string(index) + " among " +
                                std::to_string(getNumberOfPickedObjects()) + ".");
    }
    return m_pickedObjects[static_cast<std::size_t>(index)];
}

} // namespace vxgraphics3d
