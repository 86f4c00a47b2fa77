#include "renderer/objects/workplanepainter.h"

#include "base/ustring.h"
#include "graphics3d/construction/scenegraphfeatureobject.h"
#include "graphics3d/plots/vector/arrowdescription.h"
#include "renderer/frame/view.h"
#include "renderer/paint/paintcontext.h"
#include "renderer/plots/arrowshape.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Numbers of the uploads of a work plane.
enum Upload : int { UploadGrid, UploadBorder, UploadDisc, UploadSymbol, UploadHead, UploadAxis };

// Widths in pixels of the screen.
constexpr float c_gridWidth = 1.0f;
constexpr float c_borderWidth = 2.0f;
constexpr float c_axisWidth = 2.5f;
constexpr float c_symbolWidth = 3.0f;

// Lengths in sizes of the plane.
constexpr float c_headLength = 0.07f;
constexpr float c_axisHeadLength = 0.045f;
constexpr float c_turnRadius = 0.13f;

/// Part of an arrow that its head takes at most.
constexpr float c_longestHead = 0.5f;
/// The arrow around an axis of revolution, of a full turn and in pieces.
constexpr float c_turn = 0.8f;
constexpr int c_numTurnPieces = 48;

constexpr Color c_gridColor = Color::fromRgb(0x98a2b3);
constexpr Color c_borderColor = Color::fromRgb(0x5b6678);
constexpr Color c_symbolColor = Color::fromRgb(0xd9822b);
constexpr std::array<Color, 3> c_axisColors = {Color::fromRgb(0xd03030), Color::fromRgb(0x2f9e44),
                                               Color::fromRgb(0x2f5fd0)};
constexpr std::array<const char*, 3> c_axisNames = {"x", "y", "z"};

bool isShown(const SceneGraphFeatureObject& feature)
{
    return feature.isVisible() && feature.getPlane().isSetUp();
}

/// Lines and the heads of arrows in one colour.
struct Arrows {
    std::vector<LineMesh::Piece> pieces;
    std::vector<Instance> heads;

    /// An arrow whose head has a length, or less on short arrows.
    void add(const Vector3f& from, const Vector3f& to, float headLength)
    {
        const Vector3f arrow = to - from;
        const float length = arrow.length();
        if (length > 0.0f) {
            const Vector3f head = arrow * (std::min(headLength, c_longestHead * length) / length);
            // The line ends at the head, since lines are seen on faces around them.
            pieces.push_back({from, to - head});
            addHead(to, head);
        }
    }
    /// A head of some length; none is added for an arrow without direction.
    void addHead(const Vector3f& tip, const Vector3f& head)
    {
        if (head.lengthSquared() > 0.0f) {
            heads.push_back({tip - head, head, 0.0f});
        }
    }
};

/// An arrow to each height, from the disc.
Arrows extrusionOf(const WorkPlane& plane)
{
    Arrows arrows;
    for (const Vector3f& offset : plane.getOffsets().subspan(1)) {
        arrows.add(plane.getOrigin(), plane.getOrigin() + offset, c_headLength * plane.getSize());
    }
    return arrows;
}

/// The dashes of the axis with a head at its end, and an arrow around its middle.
Arrows revolutionOf(const WorkPlane& plane)
{
    const auto offsets = plane.getOffsets();
    const Vector3f axis = offsets[0];
    const Vector3f start = offsets[3];
    const float length = offsets.back().x;
    const float turnHead = c_headLength * plane.getSize();
    const float axisHead = std::min(turnHead, c_longestHead * length);
    Arrows arrows;
    for (const Vector3f& dash : offsets.subspan(4)) {
        const float end = std::min(dash.x, length - axisHead);
        if (dash.x - dash.y < end) {
            arrows.pieces.push_back({start + axis * (dash.x - dash.y), start + axis * end});
        }
    }
    arrows.addHead(start + axis * length, axis * axisHead);

    const Vector3f middle = start + axis * (0.5f * length);
    const float radius = c_turnRadius * plane.getSize();
    const auto around = [&](float part) {
        const float angle = 2.0f * std::numbers::pi_v<float> * c_turn * part;
        return middle + (offsets[1] * std::cos(angle) + offsets[2] * std::sin(angle)) * radius;
    };
    for (int i = 0; i < c_numTurnPieces; ++i) {
        arrows.pieces.push_back(
            {around(static_cast<float>(i) / c_numTurnPieces), around(static_cast<float>(i + 1) / c_numTurnPieces)});
    }
    // A straight head on a circle points a little inwards, so that its middle lies on the circle.
    const float lean = 0.5f * turnHead / (2.0f * std::numbers::pi_v<float> * c_turn * radius);
    const Vector3f along = (around(1.0f + lean) - around(1.0f - lean)).normalized() * turnHead;
    arrows.addHead(around(1.0f) + along, along);
    return arrows;
}

std::vector<LineMesh::Piece> borderOf(const WorkPlane& plane)
{
    const std::array<Vector3f, 4>& corners = plane.getCorners();
    return {{corners[0], corners[1]}, {corners[1], corners[3]}, {corners[3], corners[2]}, {corners[2], corners[0]}};
}

/// Draws what one plane consists of.
class PlanePainting {
public:
    PlanePainting(const ObjectItem& object, const SceneGraphFeatureObject& feature, const PaintContext& context)
        : m_object(object), m_plane(feature.getPlane()), m_changeId(feature.getGeometryChangeId()), m_context(context)
    {}

    void drawGrid() const
    {
        const auto colorOr = [this](const Color& color) {
            return m_object->isObjectColorUsed() ? m_object->getObjectColor() : color;
        };
        UploadCache& uploads = m_context.uploads;
        m_context.drawLines(
            uploads.lines(m_object, UploadGrid, m_changeId, m_plane.getGridVertices(), m_plane.getGridLines()),
            lookIn(colorOr(c_gridColor)), c_gridWidth, LineForm::straight);
        m_context.drawLines(uploads.lines(m_object, UploadBorder, m_changeId, [this] { return borderOf(m_plane); }),
                            lookIn(colorOr(c_borderColor)), c_borderWidth, LineForm::straight);
    }

    void drawAxes() const
    {
        const std::array<Vector3f, 4>& triad = m_plane.getTriad();
        for (std::size_t axis = 0; axis < c_axisColors.size(); ++axis) {
            const Vector3f& tip = triad[axis + 1];
            const auto make = [&] {
                Arrows arrow;
                arrow.add(triad[0], tip, c_axisHeadLength * m_plane.getSize());
                return arrow;
            };
            draw(UploadAxis + static_cast<int>(axis), make, c_axisColors[axis], c_axisWidth);
        }
    }

    void drawSymbol() const
    {
        switch (m_plane.getOperation()) {
        case WorkPlane::OperationExtrude:
            m_context.drawMesh(m_context.uploads.mesh(m_object, UploadDisc, m_changeId, m_plane.getSymbolVertices(),
                                                      m_plane.getSymbolTriangles()),
                               lookIn(c_symbolColor));
            draw(
                UploadSymbol, [this] { return extrusionOf(m_plane); }, c_symbolColor, c_symbolWidth);
            break;
        case WorkPlane::OperationRevolve:
            draw(
                UploadSymbol, [this] { return revolutionOf(m_plane); }, c_symbolColor, c_symbolWidth);
            break;
        default:
            break;
        }
    }

private:
    Look lookIn(const Color& color) const
    {
        Look look = {m_context.view.sceneToEye, Material::of(color)};
        look.material.shininess = m_object->getShininess();
        return look;
    }

    template <class Make>
    void draw(int number, const Make& make, const Color& color, float width) const
    {
        UploadCache& uploads = m_context.uploads;
        const Look look = lookIn(color);
        m_context.drawLines(uploads.lines(m_object, number, m_changeId, [&] { return make().pieces; }), look, width);
        m_context.drawInstances(
            uploads.mesh(m_object, UploadHead, 0, [] { return headMesh(ArrowDescription(), ArrowForm::round); }),
            uploads.instances(m_object, number, m_changeId, [&] { return make().heads; }), look);
    }

    const ObjectItem& m_object;
    const WorkPlane& m_plane;
    int m_changeId;
    const PaintContext& m_context;
};

} // namespace

void visitLabels(const SceneGraphFeatureObject& feature, const TakeLabel& take)
{
    const WorkPlane& plane = feature.getPlane();
    for (std::size_t axis = 0; axis < c_axisNames.size() && isShown(feature) && plane.getSize() > 0.0f; ++axis) {
        take({.point = plane.getTriad()[axis + 1],
              .text = vxbase::UString(std::string(c_axisNames[axis])),
              .color = c_axisColors[axis],
              .isBeside = true});
    }
}

bool WorkPlanePainter::draws(SceneGraphObject::ObjectType type) const
{
    return type == SceneGraphObject::ObjectFeature;
}

void WorkPlanePainter::draw(const ObjectItem& object, const PaintContext& context) const
{
    const auto& feature = static_cast<const SceneGraphFeatureObject&>(*object);
    if (!isShown(feature)) {
        return;
    }
    const PlanePainting painting(object, feature, context);
    painting.drawGrid();
    painting.drawAxes();
    painting.drawSymbol();
    if (context.objects.showLabels) {
        visitLabels(feature, [&context](const SceneLabel& label) { context.drawLabel(label); });
    }
}

} // namespace vxrenderer
