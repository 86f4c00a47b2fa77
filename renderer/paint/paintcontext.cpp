#include "renderer/paint/paintcontext.h"

#include "renderer/frame/view.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/meshpainter.h"

namespace vxrenderer {
namespace {

Material faded(Material material, float opacity)
{
    material.color[3] *= opacity;
    return material;
}

} // namespace

void PaintContext::drawMesh(const Mesh* mesh, const Look& look) const
{
    if (mesh != nullptr) {
        meshes.draw(*mesh, look.toEye, faded(look.material, opacity));
    }
}

void PaintContext::drawInstances(const Mesh* mesh, const InstanceBuffer* instances, const Look& look) const
{
    if (mesh != nullptr && instances != nullptr) {
        meshes.draw(*mesh, *instances, look.toEye, faded(look.material, opacity));
    }
}

void PaintContext::drawSpheres(const SphereBuffer* spheres, float radiusScale, const Look& look) const
{
    if (spheres != nullptr) {
        meshes.draw(*spheres, radiusScale, look.toEye, faded(look.material, opacity));
    }
}

void PaintContext::drawLines(const LineMesh* mesh, const Look& look, float width) const
{
    if (mesh != nullptr) {
        lines.draw(*mesh,
                   {view.projection * look.toEye, view.area.width, view.area.height, width * scale,
                    view.aboveFaces(width * scale)},
                   faded(look.material, opacity));
    }
}

} // namespace vxrenderer
