#include "renderer/paint/paintcontext.h"

#include "renderer/frame/view.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/meshpainter.h"
#include "renderer/paint/symbolpainter.h"
#include "renderer/upload/mesh.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

/// The radius of the smallest spheres in pixels of the screen.
constexpr float c_leastRadius = 0.6f;

Material faded(Material material, float opacity)
{
    material.color[3] *= opacity;
    return material;
}

} // namespace

bool PaintContext::isDrawn(DrawKind kind, bool isTranslucent) const
{
    if ((kinds & kind) == 0) {
        return false;
    }
    const bool isLayer = isTranslucent || (areLinesLayers && kind == DrawLines);
    if (pass == Pass::opaque && isLayer && isSomethingLeft != nullptr) {
        *isSomethingLeft = true;
    }
    return pass == Pass::all || isLayer == (pass == Pass::translucent);
}

PartRows PaintContext::rowsDrawn(DrawKind kind, const PartRows& rows, const Material& material) const
{
    PartRows drawn = rows;
    for (PartRows::Row& row : drawn.rows) {
        const bool isTranslucent = material.isTranslucent() || row.color[3] < 1.0f;
        row.isVisible = row.isVisible != 0 && isDrawn(kind, isTranslucent) ? 1 : 0;
    }
    return drawn;
}

void PaintContext::drawMesh(const Mesh* mesh, const Look& look) const
{
    const Material material = faded(look.material, opacity);
    if (mesh != nullptr && isDrawn(DrawFaces, material.isTranslucent())) {
        meshes.draw(*mesh, look.toEye, material);
    }
}

void PaintContext::drawBody(const Mesh* mesh, const Look& look) const
{
    const Material material = faded(look.material, opacity);
    if (mesh != nullptr && isDrawn(DrawBodies, material.isTranslucent())) {
        meshes.draw(*mesh, look.toEye, material);
    }
    if (showFeatureEdges && mesh != nullptr && mesh->getFeatureEdges() != nullptr) {
        drawLines(mesh->getFeatureEdges(), {look.toEye, look.material.inColor(c_edgeColor)}, c_edgeWidth);
    }
}

void PaintContext::drawInstances(const Mesh* mesh, const InstanceBuffer* instances, const Look& look) const
{
    const Material material = faded(look.material, opacity);
    if (mesh != nullptr && instances != nullptr && isDrawn(DrawMarks, material.isTranslucent())) {
        meshes.draw(*mesh, *instances, look.toEye, material);
    }
}

void PaintContext::drawSpheres(const SphereBuffer* spheres, float radiusScale, const Look& look) const
{
    const Material material = faded(look.material, opacity);
    if (spheres != nullptr && isDrawn(DrawMarks, material.isTranslucent())) {
        meshes.draw(*spheres, {radiusScale, c_leastRadius * scale}, look.toEye, material);
    }
}

void PaintContext::drawLines(const LineMesh* mesh, const Look& look, float width, LineForm form) const
{
    const Material material = faded(look.material, opacity);
    if (mesh != nullptr && isDrawn(DrawLines, material.isTranslucent())) {
        lines.draw(*mesh,
                   {view.projection * look.toEye, view.area.width, view.area.height, width * scale,
                    view.aboveFaces(width * scale), form == LineForm::round, view.isFlat && form == LineForm::straight},
                   material);
    }
}

void PaintContext::drawSegments(std::span<const LineSegment> segments, const vxgraphics3d::Matrixf& toClip,
                                const vxgraphics3d::Color& color, float width, float over) const
{
    vxgraphics3d::Color faint = color;
    faint.alpha = static_cast<int>(std::lround(255.0f * opacity));
    if (isDrawn(DrawLines, faint.alpha < 255)) {
        lines.draw(segments,
                   {toClip, view.area.width, view.area.height, width * scale,
                    view.aboveFaces(std::max(width, 1.1f * over) * scale)},
                   faint);
    }
}

void PaintContext::drawSymbols(const InstanceBuffer* positions, const Look& look, RenderSymbol symbol, float size) const
{
    const Material material = faded(look.material, opacity);
    if (positions != nullptr && isDrawn(DrawLines, material.isTranslucent())) {
        symbols.draw(*positions, {view.projection * look.toEye, view.area.width, view.area.height, symbol, size * scale,
                                  material.color, view.aboveFaces(size * scale)});
    }
}

void PaintContext::drawBody(const Mesh* mesh, const PartLook& parts, const Look& look) const
{
    const Material material = faded(look.material, opacity);
    const PartRows rows = rowsDrawn(DrawBodies, parts.rows, material);
    if (mesh != nullptr && rows.hasVisible()) {
        meshes.draw(*mesh, {parts.table, rows, parts.ranges, parts.isTextured}, look.toEye, material);
    }
}

void PaintContext::drawLines(const LineMesh* mesh, const PartLook& parts, const Look& look) const
{
    const Material material = faded(look.material, opacity);
    const PartRows rows = rowsDrawn(DrawLines, parts.rows, material);
    if (mesh != nullptr && rows.hasVisible()) {
        lines.draw(*mesh, {parts.table, rows},
                   {.toClip = view.projection * look.toEye,
                    .width = view.area.width,
                    .height = view.area.height,
                    .lineWidth = 1.0f,
                    .isSnapped = view.isFlat},
                   material);
    }
}

void PaintContext::drawSymbols(const InstanceBuffer* positions, const PartLook& parts, RenderSymbol symbol,
                               const Look& look) const
{
    const Material material = faded(look.material, opacity);
    const PartRows rows = rowsDrawn(DrawLines, parts.rows, material);
    if (positions != nullptr && rows.hasVisible()) {
        symbols.draw(*positions, {parts.table, rows},
                     {view.projection * look.toEye, view.area.width, view.area.height, symbol, 1.0f, material.color});
    }
}

} // namespace vxrenderer
