#include "renderer/plots/arrowpainter.h"

#include "graphics3d/plots/vector/scenegraphplotarrow2d.h"
#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"
#include "graphics3d/plots/vector/scenegraphplotprincipal.h"
#include "renderer/plots/arrowshape.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

namespace vxrenderer {
namespace {

using vxgraphics3d::ArrowDescription;
using vxgraphics3d::ChangeNumber;
using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotArrow;
using vxgraphics3d::SceneGraphPlotArrow2d;
using vxgraphics3d::SceneGraphPlotArrow3d;
using vxgraphics3d::SceneGraphPlotPrincipal;
using vxgraphics3d::Vector3f;
using PlotType = SceneGraphPlot::PlotType;
using ScalingType = ArrowDescription::ScalingType;

/// Numbers of the uploads of a plot.
constexpr int c_whole = 0;
constexpr int c_heads = 1;
constexpr int c_shafts = 2;

/// An arrow as it is drawn.
struct Arrow {
    Vector3f anchor;
    Vector3f direction; ///< of length 1
    float length;
    float u;
};

Vector3f directionOf(float azimuth, float polarAngle)
{
    const float across = std::sin(polarAngle);
    return {across * std::cos(azimuth), across * std::sin(azimuth), std::cos(polarAngle)};
}

/// Maps stored lengths to lengths in the scene.
class LengthScale {
public:
    /// @param longest the length in the scene of the longest arrow
    LengthScale(const SceneGraphPlotArrow& plot, float longest)
        : m_type(plot.getDescription().m_scalingType),
          m_max(plot.getMaxLength()),
          m_longest(longest),
          m_decades(plot.getLogRange() > 1.0f ? std::log(plot.getLogRange()) : 0.0f)
    {}

    /// 0 if nothing is drawn.
    float operator()(float length) const
    {
        const float part = length / m_max;
        if (!(part > 0.0f)) {
            return 0.0f;
        }
        switch (m_type) {
        case ScalingType::normalized:
            return m_longest;
        case ScalingType::logarithmic:
            return m_longest * (m_decades > 0.0f ? std::max(1.0f + std::log(part) / m_decades, 0.0f) : part);
        case ScalingType::squareRoot:
            return m_longest * std::sqrt(part);
        default:
            return m_longest * part;
        }
    }

private:
    ScalingType m_type;
    float m_max;
    float m_longest;
    float m_decades;
};

template <class Plot>
std::span<const typename Plot::Arrow> recordsOf(const Plot& plot)
{
    return {plot.getArrows(), static_cast<std::size_t>(plot.getNumArrows())};
}

template <class Take>
void forEachArrow(const SceneGraphPlotArrow2d& plot, const LengthScale& scale, Take take)
{
    for (const SceneGraphPlotArrow2d::Arrow& record : recordsOf(plot)) {
        const Vector3f direction(std::cos(record.angle), std::sin(record.angle), 0.0f);
        take(Arrow{Vector3f(record.x, record.y, 0.0f), direction, scale(record.length), record.u});
    }
}

template <class Take>
void forEachArrow(const SceneGraphPlotArrow3d& plot, const LengthScale& scale, Take take)
{
    for (const SceneGraphPlotArrow3d::Arrow& record : recordsOf(plot)) {
        take(Arrow{Vector3f(record.x, record.y, record.z), directionOf(record.azimuth, record.polarAngle),
                   scale(record.length), record.u});
    }
}

/// Coordinate systems have an arrow for each axis. Principal values have two: they point away from the point for
/// tension, and at it for compression. The three arrows of a point keep their proportions with every scaling. Without
/// data for colours, axes have colours at the start, in the middle and at the end of the table.
template <class Take>
void forEachArrow(const SceneGraphPlotPrincipal& plot, const LengthScale& scale, Take take)
{
    for (const SceneGraphPlotPrincipal::Arrow& record : recordsOf(plot)) {
        const Vector3f point(record.x, record.y, record.z);
        const float factor = scale(record.largestLength) / record.largestLength;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const float length = std::fabs(record.length[axis]) * factor;
            const float u = record.u + static_cast<float>(axis) * plot.getTextureShift();
            const Vector3f direction = directionOf(record.azimuth[axis], record.polarAngle[axis]);
            if (plot.isCoordSysPlot()) {
                take(Arrow{point, direction, length, u});
            } else {
                for (const Vector3f& out : {direction, -direction}) {
                    const bool isTension = record.length[axis] > 0.0f;
                    take(isTension ? Arrow{point, out, length, u} : Arrow{point + out * length, -out, length, u});
                }
            }
        }
    }
}

/// Calls a function with each arrow that has a length and nothing that is not finite.
template <class Take>
void forEachDrawn(const SceneGraphPlotArrow& plot, const LengthScale& scale, Take take)
{
    const auto takeDrawn = [&take](const Arrow& arrow) {
        const Vector3f tip = arrow.anchor + arrow.direction * arrow.length;
        if (arrow.length > 0.0f && std::isfinite(tip.x + tip.y + tip.z + arrow.u)) {
            take(arrow);
        }
    };
    switch (plot.getType()) {
    case PlotType::arrow2d:
        return forEachArrow(static_cast<const SceneGraphPlotArrow2d&>(plot), scale, takeDrawn);
    case PlotType::arrow3d:
        return forEachArrow(static_cast<const SceneGraphPlotArrow3d&>(plot), scale, takeDrawn);
    default:
        return forEachArrow(static_cast<const SceneGraphPlotPrincipal&>(plot), scale, takeDrawn);
    }
}

bool isPrincipal(PlotType type)
{
    return type != PlotType::arrow2d && type != PlotType::arrow3d;
}

ArrowForm formOf(PlotType type)
{
    return type == PlotType::arrow2d || type == PlotType::principal2d || type == PlotType::coordSys2d
               ? ArrowForm::flat
               : ArrowForm::round;
}

/// Shape and size of the arrows of a plot.
struct ArrowSizes {
    ArrowDescription shape;
    /// Length in the scene of the longest arrow.
    float longest;

    explicit ArrowSizes(const SceneGraphPlotArrow& plot)
        : shape(plot.getDescription()), longest(plot.getMaxLength() * shape.m_commonArrowScale)
    {
        if (isPrincipal(plot.getType())) {
            shape.m_anchorPoint = ArrowDescription::AnchorPoint::tail;
            longest *= SceneGraphPlotPrincipal::getLengthScale();
        }
    }
};

/// A number that rises with the geometry and with the shape of arrows.
int bothChangeIds(const SceneGraphPlotArrow& plot)
{
    return static_cast<int>(static_cast<unsigned>(plot.getGeometryChangeId()) +
                            static_cast<unsigned>(plot.getArrowChangeId()));
}

} // namespace

void forEachDrawnArrow(const SceneGraphPlotArrow& plot, const TakeArrow& take)
{
    const ArrowSizes sizes(plot);
    const float anchor = anchorOf(sizes.shape);
    const bool hasEqualHeads = sizes.shape.m_scalingType == ScalingType::proportionalEqualHeads;
    forEachDrawn(plot, LengthScale(plot, sizes.longest), [&](const Arrow& arrow) {
        const Vector3f tail = arrow.anchor - arrow.direction * (anchor * arrow.length);
        const Vector3f tip = tail + arrow.direction * arrow.length;
        const float unit =
            hasEqualHeads ? std::min(sizes.longest, arrow.length / sizes.shape.m_headLength) : arrow.length;
        take(tail, tip, std::min(sizes.shape.m_headLength * unit / arrow.length, 1.0f),
             sizes.shape.m_headRadius * unit);
    });
}

bool ArrowPainter::draws(PlotType type) const
{
    return type == PlotType::arrow2d || type == PlotType::arrow3d || type == PlotType::coordSys2d ||
           type == PlotType::coordSys3d || type == PlotType::principal2d || type == PlotType::principal3d;
}

void ArrowPainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const std::optional<Look> look = lookOf(item, context);
    if (!look) {
        return;
    }
    const auto& plot = static_cast<const SceneGraphPlotArrow&>(*item.plot);
    const ArrowForm form = formOf(plot.getType());
    const ArrowSizes sizes(plot);
    const ArrowDescription& shape = sizes.shape;
    const float longest = sizes.longest;
    const LengthScale scale(plot, longest);
    UploadCache& uploads = context.uploads;

    if (shape.m_scalingType != ScalingType::proportionalEqualHeads) {
        const auto makeInstances = [&] {
            std::vector<Instance> instances;
            instances.reserve(static_cast<std::size_t>(plot.getNumArrows()));
            forEachDrawn(plot, scale, [&](const Arrow& arrow) {
                instances.push_back({arrow.anchor, arrow.direction * arrow.length, arrow.u});
            });
            return instances;
        };
        context.drawInstances(
            uploads.mesh(item.plot, c_whole, plot.getArrowChangeId(), [&] { return arrowMesh(shape, form); }),
            uploads.instances(item.plot, c_whole, plot.getGeometryChangeId(), makeInstances), *look);
        return;
    }

    const float anchor = anchorOf(shape);
    const float headLength = std::clamp(shape.m_headLength, 0.0f, 1.0f) * longest;
    const auto makeHeads = [&] {
        std::vector<Instance> heads;
        forEachDrawn(plot, scale, [&](const Arrow& arrow) {
            const float length = std::min(headLength, arrow.length);
            const float start = (1.0f - anchor) * arrow.length - length;
            heads.push_back({arrow.anchor + arrow.direction * start, arrow.direction * length, arrow.u});
        });
        return heads;
    };
    const auto makeShafts = [&] {
        std::vector<Instance> shafts;
        forEachDrawn(plot, scale, [&](const Arrow& arrow) {
            const float length = arrow.length - headLength;
            if (length > 0.0f) {
                shafts.push_back({arrow.anchor - arrow.direction * (anchor * arrow.length), arrow.direction * length,
                                  arrow.u, shape.m_shaftRadius * longest / length});
            }
        });
        return shafts;
    };
    if (headLength > 0.0f) {
        context.drawInstances(
            uploads.mesh(item.plot, c_heads, plot.getArrowChangeId(), [&] { return headMesh(shape, form); }),
            uploads.instances(item.plot, c_heads, bothChangeIds(plot), makeHeads), *look);
    }
    context.drawInstances(uploads.mesh(item.plot, c_shafts, plot.getArrowChangeId(), [&] { return shaftMesh(form); }),
                          uploads.instances(item.plot, c_shafts, bothChangeIds(plot), makeShafts), *look);
}

} // namespace vxrenderer
