#include "renderer/paint/paintcontext.h"

#include "renderer/frame/view.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/meshpainter.h"

namespace vxrenderer {

void PaintContext::drawMesh(const Mesh* mesh, const Look& look) const
{
    if (mesh != nullptr) {
        meshes.draw(*mesh, look.toEye, look.material);
    }
}

void PaintContext::drawInstances(const Mesh* mesh, const InstanceBuffer* instances, const Look& look) const
{
    if (mesh != nullptr && instances != nullptr) {
        meshes.draw(*mesh, *instances, look.toEye, look.material);
    }
}

void PaintContext::drawLines(const LineMesh* mesh, const Look& look, float width) const
{
    if (mesh != nullptr) {
        lines.draw(*mesh, {view.projection * look.toEye, view.area.width, view.area.height, width * scale},
                   look.material);
    }
}

} // namespace vxrenderer
