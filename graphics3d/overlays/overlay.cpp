#include "graphics3d/overlays/overlay.h"

#include "graphics3d/overlays/overlayobject.h"

#include <stdexcept>
#include <utility>

namespace vxgraphics3d {

Overlay::~Overlay() = default;

void Overlay::addOverlayObject(boost::shared_ptr<OverlayObject> object, int pickId)
{
    if (!object) {
        throw std::invalid_argument("There is no object to add to the overlay.");
    }
    m_objects.push_back(std::move(object));
    m_objects.back()->setObjectPickID(pickId);
    m_changeId.raise();
}

// By value: the argument may be an element of the list.
void Overlay::removeOverlayObject(boost::shared_ptr<OverlayObject> object)
{
    std::erase(m_objects, object);
    m_changeId.raise();
}

} // namespace vxgraphics3d
