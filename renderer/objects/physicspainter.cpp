#include "renderer/objects/physicspainter.h"

#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/parts/markingmodesetup.h"
#include "renderer/frame/view.h"
#include "renderer/objects/arrowhead.h"
#include "renderer/objects/partpainting.h"
#include "renderer/paint/linepainter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

// In pixels of the screen.
constexpr float c_directionLength = 42.0f;
constexpr float c_directionWidth = 2.0f;
constexpr float c_headLength = 9.0f;
constexpr float c_connectorWidth = 1.5f;
constexpr float c_connectorEnd = 5.0f;

/// Of the three axes of a marker's frame, and of a direction alone.
constexpr std::array<int, 3> c_axisColors = {0xd62828, 0x2a9d3a, 0x1f5fd0};
constexpr int c_directionColor = 0x303030;
constexpr int c_connectorColor = 0x606060;

/// Lines of one colour each, in the eye's coordinates.
struct DirectionLines {
    std::array<std::vector<LineSegment>, c_axisColors.size()> axes;
    std::vector<LineSegment> alone;
};

/// Adds the directions of a marker as arrows, all of one length unless they are seen at an angle.
void addDirections(const PhysicsMarker& marker, const PaintContext& context, DirectionLines& lines)
{
    const View& view = context.view;
    const std::vector<Vector3f>& directions = *marker.getDirections();
    const Vector3f origin = view.sceneToEye * marker.getPosition();
    const float pixel = context.scale * view.pixelSizeAt(origin);
    for (std::size_t i = 0; i < directions.size(); ++i) {
        // Axes of other scales and flat views turn and shorten directions.
        const Vector3f along = (view.sceneToEye * (marker.getPosition() + directions[i]) - origin).normalized();
        const Vector3f tip = origin + c_directionLength * pixel * along;
        std::vector<LineSegment>& segments =
            directions.size() > 1 ? lines.axes[std::min(i, lines.axes.size() - 1)] : lines.alone;
        if (along.lengthSquared() > 0.0f) {
            segments.push_back({origin, tip});
            addArrowHead(segments, tip, along, c_headLength * pixel);
        }
    }
}

/// The size of the largest points, or width of the widest lines, of all rows.
float widestOf(const MarkingModeSetup& markings)
{
    float widest = 0.0f;
    for (std::size_t i = 0; i < PartRows::c_numRows; ++i) {
        const Marking& row = markings.getMarking(static_cast<MarkingType>(i));
        widest = std::max({widest, row.getLineWidth(), row.getPointSize()});
    }
    return widest;
}

/// Icons of markers on the same part lie side by side.
void drawMarkers(const SceneGraphPhysicsObject& object, const PaintContext& context)
{
    DirectionLines lines;
    const float over = widestOf(context.objects.markings);
    for (int level = PartPoint; level <= PartSolid; ++level) {
        const SceneGraphPhysicsObject::Markers& markers = object.getMarkers(level);
        for (auto first = markers.begin(); first != markers.end(); first = markers.upper_bound(first->first)) {
            const auto count = static_cast<float>(markers.count(first->first));
            float number = 0.0f;
            for (auto marker = first; marker != markers.upper_bound(first->first); ++marker, ++number) {
                addDirections(*marker->second, context, lines);
                context.drawIcon(
                    {marker->second->getPosition(), marker->second->getImage(), number - 0.5f * (count - 1.0f), over});
            }
        }
    }
    const auto draw = [&](const std::vector<LineSegment>& segments, int color) {
        context.drawSegments(segments, context.view.projection, Color::fromRgb(color), c_directionWidth, over);
    };
    for (std::size_t i = 0; i < lines.axes.size(); ++i) {
        draw(lines.axes[i], c_axisColors[i]);
    }
    draw(lines.alone, c_directionColor);
}

void drawConnectors(const SceneGraphPhysicsObject& object, const PaintContext& context)
{
    std::vector<LineSegment> lines;
    // Lines without length are squares as wide as the line.
    std::vector<LineSegment> ends;
    const float over = widestOf(context.objects.markings);
    for (const auto& connector : object.getConnectors()) {
        for (const Vector3f& point : connector->getPoints()) {
            lines.push_back({connector->getPosition(), point});
            ends.push_back({point, point});
        }
        context.drawIcon({connector->getPosition(), connector->getImage(), 0.0f, over});
    }
    const Matrixf toClip = context.view.projection * context.view.sceneToEye;
    context.drawSegments(lines, toClip, Color::fromRgb(c_connectorColor), c_connectorWidth, over);
    context.drawSegments(ends, toClip, Color::fromRgb(c_connectorColor), c_connectorEnd, over);
}

} // namespace

bool PhysicsPainter::draws(SceneGraphObject::ObjectType type) const
{
    return type == SceneGraphObject::ObjectPhysics;
}

void PhysicsPainter::draw(const ObjectItem& item, const PaintContext& context) const
{
    const auto& object = static_cast<const SceneGraphPhysicsObject&>(*item);
    const PartPainting painting(item, context);
    painting.drawAll(object.getParts(), object.getImages());
    painting.drawMeshes(object.getSheets(), object.getLines(), object.getParts().getChangeId());
    if (context.objects.showPhysicsMarkers && object.isShowPhysicsMarkers()) {
        drawConnectors(object, context);
        drawMarkers(object, context);
    }
}

} // namespace vxrenderer
