#include "graphics3d/plots/vector/scenegraphplotinteractive.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotinput.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr float c_periods = 30.0f;

/// A number of points that a collection can count.
int requireCount(std::int64_t count)
{
    if (count > std::numeric_limits<int>::max()) {
        throw std::invalid_argument("SceneGraphPlotInteractive: " + std::to_string(count) +
                                    " points are more than it can count.");
    }
    return static_cast<int>(count);
}

/// The number of points, that of their x coordinates.
std::size_t requireCoordinates(const SceneGraphPlotInteractive::Coordinates& points)
{
    if (points.size() < 3) {
        throw std::invalid_argument("SceneGraphPlotInteractive: points have " + std::to_string(points.size()) +
                                    " coordinate arrays, not 3.");
    }
    for (const std::size_t axis : {std::size_t{1}, std::size_t{2}}) {
        if (points[axis].size() < points[0].size()) {
            throw std::invalid_argument("SceneGraphPlotInteractive: coordinate array " + std::to_string(axis) +
                                        " has " + std::to_string(points[axis].size()) + " values for " +
                                        std::to_string(points[0].size()) + " points.");
        }
    }
    return points[0].size();
}

} // namespace

struct SceneGraphPlotInteractive::Input {
    struct Group {
        PointPositions positions;
        LineEnds lines;
    };

    explicit Input(const PostDataView& record)
    {
        std::int64_t count = 0;
        groups.reserve(static_cast<std::size_t>(record.numGroups()));
        for (int group = 0; group < record.numGroups(); ++group) {
            groups.push_back({PointPositions(record, group, 3), LineEnds::ofElements(record, group)});
            count += 2 * std::int64_t{groups.back().lines.count};
        }
        numPoints = requireCount(count);
    }

    std::vector<Group> groups;
    int numPoints;
};

SceneGraphPlotInteractive::SceneGraphPlotInteractive(int id) : SceneGraphSingleTexturePlot(PlotType::interactive, id) {}

SceneGraphPlotInteractive::~SceneGraphPlotInteractive() = default;

void SceneGraphPlotInteractive::setSolidFraction(float fraction)
{
    m_solidFraction = fraction > 0.0f ? std::min(fraction, 1.0f) : 0.0f;
}

void SceneGraphPlotInteractive::setPoints(const Coordinates& points)
{
    const std::size_t count = requireCoordinates(points);
    PointCollection made;
    made.allocateParts(requireCount(static_cast<std::int64_t>(count)));
    for (std::size_t i = 0; i < count; ++i) {
        made.addPart(Vector3f(points[0][i], points[1][i], points[2][i]));
    }
    std::swap(m_interactivePoints, made);
    markGeometryChanged();
}

void SceneGraphPlotInteractive::setLinePoints(const Coordinates& points)
{
    const std::size_t numLines = requireCoordinates(points) / 2;
    const float f = m_solidFraction;
    const int numDashes = static_cast<int>(std::ceil((1.0f - f) * c_periods));
    PointCollection made;
    made.allocateParts(requireCount(static_cast<std::int64_t>(numLines) * (2 * numDashes + 2)));
    const auto point = [&points](std::size_t i) { return Vector3f(points[0][i], points[1][i], points[2][i]); };
    for (std::size_t line = 0; line < numLines; ++line) {
        const Vector3f p = point(2 * line);
        const Vector3f q = point(2 * line + 1);
        made.addPart(p);
        made.addPart(p * (1.0f - f) + q * f);
        for (int k = 0; k < numDashes; ++k) {
            for (const float end : {0.3f, 0.7f}) {
                const float t = (end + static_cast<float>(k)) / c_periods;
                made.addPart(q * (1.0f - t) + p * t);
            }
        }
    }
    std::swap(m_dashPoints, made);
    markGeometryChanged();
}

void SceneGraphPlotInteractive::clear()
{
    resetPlotData();
    markGeometryChanged();
}

void SceneGraphPlotInteractive::resetPlotData()
{
    m_interactivePoints.resetParts();
    m_dashPoints.resetParts();
    m_linePoints.resetParts();
}

bool SceneGraphPlotInteractive::isValid() const
{
    return m_interactivePoints.getNumParts() > 0 || m_dashPoints.getNumParts() > 0 || m_linePoints.getNumParts() > 0;
}

SceneGraphPlot::Fill SceneGraphPlotInteractive::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotInteractive::fillPlotImpl(const Input& input)
{
    m_linePoints.resetParts();
    PointCollection made;
    made.allocateParts(input.numPoints);
    for (const Input::Group& group : input.groups) {
        for (int i = 0; i < group.lines.count; ++i) {
            for (const int* ends : {group.lines.from, group.lines.to}) {
                made.addPart(group.positions.at(static_cast<std::size_t>(ends[i])));
            }
        }
    }
    std::swap(m_linePoints, made);
}

} // namespace vxgraphics3d
