#include "renderer/objects/objectpainter.h"

#include "renderer/objects/drawobjectpainter.h"
#include "renderer/objects/physicspainter.h"

namespace vxrenderer {

ObjectPainters makeObjectPainters()
{
    ObjectPainters painters;
    painters.push_back(std::make_unique<DrawObjectPainter>());
    painters.push_back(std::make_unique<PhysicsPainter>());
    return painters;
}

} // namespace vxrenderer
