#include "graphics3d/plots/vector/scenegraphplotprincipal.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/plotinput.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <tuple>

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataRole;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr int c_numAxes = 3;
constexpr float c_halfPi = 1.5707964f;

constexpr std::array<PostDataRole, c_numAxes> c_lengths{{
    {PostDataObject::PrincipalLengths, "DataRole.principalLength(0)"},
    {PostDataObject::PrincipalLengths + 1, "DataRole.principalLength(1)"},
    {PostDataObject::PrincipalLengths + 2, "DataRole.principalLength(2)"},
}};
/// By component, then by axis.
constexpr std::array<std::array<PostDataRole, c_numAxes>, 3> c_directions{{
    {{{PostDataObject::PrincipalX, "DataRole.principalDirection(0, 0)"},
      {PostDataObject::PrincipalX + 1, "DataRole.principalDirection(1, 0)"},
      {PostDataObject::PrincipalX + 2, "DataRole.principalDirection(2, 0)"}}},
    {{{PostDataObject::PrincipalY, "DataRole.principalDirection(0, 1)"},
      {PostDataObject::PrincipalY + 1, "DataRole.principalDirection(1, 1)"},
      {PostDataObject::PrincipalY + 2, "DataRole.principalDirection(2, 1)"}}},
    {{{PostDataObject::PrincipalZ, "DataRole.principalDirection(0, 2)"},
      {PostDataObject::PrincipalZ + 1, "DataRole.principalDirection(1, 2)"},
      {PostDataObject::PrincipalZ + 2, "DataRole.principalDirection(2, 2)"}}},
}};

int dimensionOf(const PostDataView& record)
{
    const int kind = record.plotKind();
    return kind == PostDataObject::Principal2d || kind == PostDataObject::PrincipalAxes2d ? 2 : 3;
}

/// A little less than the distance between points, if as many were spread evenly over a cube with half of the sum of
/// the extents as its edge.
float targetLengthOf(const PostDataView::DoubleArrays& bounds, int dimension, int numPoints)
{
    double sum = 0.0;
    for (std::size_t axis = 0; axis < static_cast<std::size_t>(dimension); ++axis) {
        sum += (bounds[axis][1] - bounds[axis][0]) / 2.0;
    }
    const float length = static_cast<float>(sum) / std::pow(static_cast<float>(numPoints), 0.33333334f) * 0.85f;
    return length == 0.0f ? 1.0f : length;
}

} // namespace

struct SceneGraphPlotPrincipal::Input {
    Input(const PostDataView& record, bool readsLengths)
        : dimension(dimensionOf(record)),
          bounds(record.bounds(dimension)),
          targetLength(targetLengthOf(bounds, dimension, record.numPoints(0))),
          positions(record, 0, dimension),
          hasColors(record.hasRole(c_colorData)),
          colors(hasColors ? PointColors(record, 0, c_colorData, ValueScale::ofRecord(record, c_colorData))
                           : PointColors(0.0f))
    {
        for (std::size_t axis = 0; axis < c_numAxes; ++axis) {
            axes[axis].lengths = readsLengths ? record.data(0, c_lengths[axis]).data() : nullptr;
            for (std::size_t component = 0; component < static_cast<std::size_t>(dimension); ++component) {
                axes[axis].direction[component] = record.data(0, c_directions[component][axis]).data();
            }
        }
    }

    /// The box of the bounds on the plot's axes, larger by `margin` on each side.
    BoundingBox boxWith(double margin) const
    {
        const auto low = [&](std::size_t axis) { return bounds[axis][0] - margin; };
        const auto high = [&](std::size_t axis) { return bounds[axis][1] + margin; };
        return {low(0), high(0), low(1), high(1), dimension == 3 ? low(2) : 0.0, dimension == 3 ? high(2) : 0.0};
    }

    struct Axis {
        const double* lengths = nullptr; ///< null for 1
        std::array<const double*, 3> direction{};
    };

    int dimension;
    const PostDataView::DoubleArrays& bounds;
    float targetLength;
    PointPositions positions;
    bool hasColors;
    PointColors colors;
    std::array<Axis, c_numAxes> axes;
};

SceneGraphPlotPrincipal::SceneGraphPlotPrincipal(int dimension, bool showsPrincipalValues, int id)
    : ArrowRecords(getType(dimension, showsPrincipalValues), id)
{}

SceneGraphPlotPrincipal::~SceneGraphPlotPrincipal() = default;

SceneGraphPlot::PlotType SceneGraphPlotPrincipal::getType(int dimension, bool showsPrincipalValues)
{
    if (dimension == 2) {
        return showsPrincipalValues ? PlotType::principal2d : PlotType::coordSys2d;
    }
    return showsPrincipalValues ? PlotType::principal3d : PlotType::coordSys3d;
}

bool SceneGraphPlotPrincipal::isCoordSysPlot() const
{
    return getType() == PlotType::coordSys2d || getType() == PlotType::coordSys3d;
}

SceneGraphPlot::Fill SceneGraphPlotPrincipal::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record, !isCoordSysPlot())] { fillPlotImpl(input); };
}

void SceneGraphPlotPrincipal::fillPlotImpl(const Input& input)
{
    const auto count = static_cast<std::size_t>(input.positions.count);
    Arrow* const records = replaceArrows(input.positions.count);
    m_textureShift = input.hasColors ? 0.0f : 0.5f;

    float maxLength = 0.0f;
    for (std::size_t i = 0; i < count; ++i) {
        Arrow record;
        record.x = static_cast<float>(input.positions.x[i]);
        record.y = static_cast<float>(input.positions.y[i]);
        record.z = input.positions.z != nullptr ? static_cast<float>(input.positions.z[i]) : 0.0f;
        record.u = input.hasColors ? input.colors.scale(input.colors.values[i]) : 0.0f;
        record.largestLength = 0.0f;
        for (std::size_t k = 0; k < c_numAxes; ++k) {
            const Input::Axis& axis = input.axes[k];
            record.length[k] = axis.lengths != nullptr ? static_cast<float>(axis.lengths[i]) : 1.0f;
            const double z = input.dimension == 3 ? axis.direction[2][i] : 0.0;
            const Vector3f direction(axis.direction[0][i], axis.direction[1][i], z);
            if (input.dimension == 3) {
                std::tie(record.azimuth[k], record.polarAngle[k]) = direction.toSpherical();
            } else {
                record.azimuth[k] = std::atan2(direction.y, direction.x);
                record.polarAngle[k] = c_halfPi;
                record.length[k] *= std::sqrt(direction.x * direction.x + direction.y * direction.y);
            }
            record.largestLength = std::max(record.largestLength, std::fabs(record.length[k]));
        }
        maxLength = std::max(maxLength, record.largestLength);
        records[i] = record;
    }

    const float factor = maxLength > 0.0f ? input.targetLength / maxLength : 1.0f;
    maxLength *= factor;
    for (std::size_t i = 0; i < count; ++i) {
        float largest = 0.0f;
        for (float& length : records[i].length) {
            length *= factor;
            largest = std::max(largest, std::fabs(length));
        }
        records[i].largestLength = largest == 0.0f ? 1.0f : largest;
    }
    noteAllAppended(maxLength);

    const float reach = maxLength * getDescription().m_commonArrowScale * c_lengthScale;
    setScalingType(ScalingType::proportional);
    setBoundingBox(input.boxWith(static_cast<double>(reach)));
    markArrowsChanged();
}

} // namespace vxgraphics3d
