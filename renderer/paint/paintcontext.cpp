#include "renderer/paint/paintcontext.h"

#include "renderer/frame/view.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/meshpainter.h"
#include "renderer/paint/symbolpainter.h"

#include <algorithm>
#include <cmath>

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
    if (mesh != nullptr && hasFaces()) {
        meshes.draw(*mesh, look.toEye, faded(look.material, opacity));
    }
}

void PaintContext::drawInstances(const Mesh* mesh, const InstanceBuffer* instances, const Look& look) const
{
    if (mesh != nullptr && instances != nullptr && hasFaces()) {
        meshes.draw(*mesh, *instances, look.toEye, faded(look.material, opacity));
    }
}

void PaintContext::drawSpheres(const SphereBuffer* spheres, float radiusScale, const Look& look) const
{
    if (spheres != nullptr && hasFaces()) {
        meshes.draw(*spheres, radiusScale, look.toEye, faded(look.material, opacity));
    }
}

void PaintContext::drawLines(const LineMesh* mesh, const Look& look, float width, bool isRound) const
{
    if (mesh != nullptr && hasLines()) {
        lines.draw(*mesh,
                   {view.projection * look.toEye, view.area.width, view.area.height, width * scale,
                    view.aboveFaces(width * scale), isRound},
                   faded(look.material, opacity));
    }
}

void PaintContext::drawSegments(std::span<const LineSegment> segments, const vxgraphics3d::Matrixf& toClip,
                                const vxgraphics3d::Color& color, float width, float over) const
{
    if (!hasLines()) {
        return;
    }
    vxgraphics3d::Color faint = color;
    faint.alpha = static_cast<int>(std::lround(255.0f * opacity));
    lines.draw(segments,
               {toClip, view.area.width, view.area.height, width * scale,
                view.aboveFaces(std::max(width, 1.1f * over) * scale)},
               faint);
}

void PaintContext::drawSymbols(const InstanceBuffer* positions, const Look& look, RenderSymbol symbol, float size) const
{
    if (positions != nullptr && hasLines()) {
        symbols.draw(*positions, {view.projection * look.toEye, view.area.width, view.area.height, symbol, size * scale,
                                  faded(look.material, opacity).color, view.aboveFaces(size * scale)});
    }
}

void PaintContext::drawMesh(const Mesh* mesh, const PartLook& parts, const Look& look) const
{
    if (mesh != nullptr && hasFaces()) {
        meshes.draw(*mesh, parts, look.toEye, faded(look.material, opacity));
    }
}

void PaintContext::drawLines(const LineMesh* mesh, const PartLook& parts, const Look& look) const
{
    if (mesh != nullptr && hasLines()) {
        lines.draw(*mesh, parts, {view.projection * look.toEye, view.area.width, view.area.height, 1.0f},
                   faded(look.material, opacity));
    }
}

void PaintContext::drawSymbols(const InstanceBuffer* positions, const PartLook& parts, RenderSymbol symbol,
                               const Look& look) const
{
    if (positions != nullptr && hasLines()) {
        symbols.draw(*positions, parts,
                     {view.projection * look.toEye, view.area.width, view.area.height, symbol, 1.0f,
                      faded(look.material, opacity).color});
    }
}

} // namespace vxrenderer
