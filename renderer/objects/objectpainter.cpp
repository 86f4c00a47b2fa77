#include "renderer/objects/objectpainter.h"

namespace vxrenderer {

ObjectPainters makeObjectPainters()
{
    return {};
}

} // namespace vxrenderer
