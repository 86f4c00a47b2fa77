#include "renderer/objects/projectionpainter.h"

#include "graphics3d/construction/scenegraphdrawproj.h"
#include "graphics3d/parts/markingmodesetup.h"
#include "renderer/frame/view.h"
#include "renderer/objects/partpainting.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>

namespace vxrenderer {

using namespace vxgraphics3d;

bool ProjectionPainter::draws(SceneGraphObject::ObjectType type) const
{
    return type == SceneGraphObject::ObjectDrawProj;
}

void ProjectionPainter::draw(const ObjectItem& object, const PaintContext& context) const
{
    const auto& projection = static_cast<const SceneGraphDrawProj&>(*object);
    const int changeId = projection.getGeometryChangeId();
    /// @param number of the uploads of a class
    const auto drawClass = [&](int number, MarkingType row, const LineCollection& lines, const PointCollection& points,
                               bool isInObjectColor) {
        const Marking& marking = context.objects.markings.getMarking(row);
        if (!marking.isVisible()) {
            return;
        }
        const auto lookIn = [&](const Color& color) {
            return Look{context.view.sceneToEye, Material::of(isInObjectColor ? object->getObjectColor() : color)};
        };
        if (lines.getNumVertices() > 0) {
            context.drawLines(context.uploads.lines(object, number, changeId, [&] { return piecesOf(lines); }),
                              lookIn(marking.getLineColor()), std::max(marking.getLineWidth(), 1.0f));
        }
        if (points.getNumParts() > 0) {
            context.drawSymbols(
                context.uploads.instances(object, number, changeId, [&] { return instancesOf(points); }),
                lookIn(marking.getPointColor()), RenderSymbol::circle, std::max(marking.getPointSize(), 1.0f));
        }
    };
    // What belongs to the plane lies over what is only projected to it.
    drawClass(1, RowSecondary, projection.getSecondaryLines(), projection.getSecondaryPoints(), false);
    drawClass(0, RowPrimary, projection.getPrimaryLines(), projection.getPrimaryPoints(), object->isObjectColorUsed());
}

} // namespace vxrenderer
