#include "renderer/objects/probepainter.h"

#include "graphics3d/construction/scenegraphprobeobject.h"
#include "renderer/frame/view.h"
#include "renderer/objects/partpainting.h"
#include "renderer/upload/uploadcache.h"

#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Numbers of the uploads of a probe.
enum Upload : int { UploadDashes, UploadEnds, UploadMark, UploadProbe };

// In pixels of the screen.
constexpr float c_lineWidth = 2.0f;
constexpr float c_endSize = 8.0f;
constexpr float c_markSize = 12.0f;
constexpr float c_probeSize = 12.0f;

constexpr Color c_lineColor = Color::fromRgb(0x2b2f38);
constexpr Color c_markColor = Color::fromRgb(0xd9822b);
constexpr Color c_probeColor = Color::fromRgb(0xc02f6f);

// Indices of the dash points: the start of the line and the mark come before the dashes.
constexpr int c_firstDash = 2;
constexpr int c_mark = 1;

std::vector<LineMesh::Piece> dashesOf(const PointCollection& points)
{
    std::vector<LineMesh::Piece> pieces;
    for (int i = c_firstDash; i + 1 < points.getNumParts(); i += 2) {
        pieces.push_back({points.getPart(i).getPosition(), points.getPart(i + 1).getPosition()});
    }
    return pieces;
}

} // namespace

bool ProbePainter::draws(SceneGraphObject::ObjectType type) const
{
    return type == SceneGraphObject::ObjectProbe;
}

void ProbePainter::draw(const ObjectItem& object, const PaintContext& context) const
{
    const auto& probe = static_cast<const SceneGraphProbeObject&>(*object);
    const int changeId = probe.getGeometryChangeId();
    const auto lookIn = [&](const Color& color) {
        return Look{context.view.sceneToEye,
                    Material::of(object->isObjectColorUsed() ? object->getObjectColor() : color)};
    };
    const auto drawSymbols = [&](int number, RenderSymbol symbol, const Color& color, float size, const auto& make) {
        context.drawSymbols(context.uploads.instances(object, number, changeId, make), lookIn(color), symbol, size);
    };
    const PointCollection& dashes = probe.getDashPoints();
    if (dashes.getNumParts() > c_firstDash) {
        context.drawLines(context.uploads.lines(object, UploadDashes, changeId, [&] { return dashesOf(dashes); }),
                          lookIn(c_lineColor), c_lineWidth);
        drawSymbols(UploadEnds, RenderSymbol::circle, c_lineColor, c_endSize,
                    [&] { return instancesOf(probe.getEndPoints()); });
        drawSymbols(UploadMark, RenderSymbol::diamond, c_markColor, c_markSize, [&] {
            return std::vector{Instance{.position = dashes.getPart(c_mark).getPosition(), .axis = {}, .u = 0.0f}};
        });
    }
    if (probe.getProbePoints().getNumParts() > 0) {
        drawSymbols(UploadProbe, RenderSymbol::circle, c_probeColor, c_probeSize,
                    [&] { return instancesOf(probe.getProbePoints()); });
    }
}

} // namespace vxrenderer
