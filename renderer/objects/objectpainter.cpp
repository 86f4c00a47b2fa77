#include "renderer/objects/objectpainter.h"

#include "renderer/objects/ballboxpainter.h"
#include "renderer/objects/drawobjectpainter.h"
#include "renderer/objects/physicspainter.h"
#include "renderer/objects/probepainter.h"
#include "renderer/objects/projectionpainter.h"
#include "renderer/objects/workplanepainter.h"

namespace vxrenderer {

ObjectPainters makeObjectPainters()
{
    ObjectPainters painters;
    painters.push_back(std::make_unique<DrawObjectPainter>());
    painters.push_back(std::make_unique<WorkPlanePainter>());
    painters.push_back(std::make_unique<ProjectionPainter>());
    painters.push_back(std::make_unique<ProbePainter>());
    painters.push_back(std::make_unique<BallBoxPainter>());
    painters.push_back(std::make_unique<PhysicsPainter>());
    return painters;
}

} // namespace vxrenderer
