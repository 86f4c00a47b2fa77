#include "renderer/objects/objectpainter.h"

#include "renderer/objects/drawobjectpainter.h"

namespace vxrenderer {

ObjectPainters makeObjectPainters()
{
    ObjectPainters painters;
    painters.push_back(std::make_unique<DrawObjectPainter>());
    return painters;
}

} // namespace vxrenderer
