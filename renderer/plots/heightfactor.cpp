#include "renderer/plots/heightfactor.h"

#include "graphics3d/plots/scalar/scenegraphplotsurface.h"
#include "graphics3d/plots/vector/scenegraphplotedge.h"
#include "graphics3d/plots/vector/scenegraphplottube.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

constexpr std::size_t c_numSamples = 500;
/// The largest deviation of a height, as a part of the largest one.
constexpr double c_tolerance = 1e-4;

/// One of the points that a plot was filled with.
struct Sample {
    float x;
    float y;
    /// Raised, without the height scale.
    float z;
    /// Texture coordinate.
    float u;
};

/// Points at equal distances in their order.
struct Samples {
    std::size_t numPoints = 0;
    std::vector<Sample> samples;
};

template <class Points, class MakeSample>
Samples samplesOf(const Points& points, std::size_t count, const MakeSample& make)
{
    Samples result = {count, {}};
    for (std::size_t i = 0; i < count; i += std::max<std::size_t>(1, count / c_numSamples)) {
        result.samples.push_back(make(points[i]));
    }
    return result;
}

template <class Vertices>
Samples samplesOf(const Vertices& vertices)
{
    return samplesOf(vertices.vertices(), static_cast<std::size_t>(vertices.getNumberOfVertices()),
                     [](const auto& vertex) {
                         return Sample{vertex.x, vertex.y, vertex.z, vertex.u};
                     });
}

/// None for plots that heights do not raise.
Samples samplesOf(const SceneGraphPlot& plot)
{
    if (!plot.hasHeightData()) {
        return {};
    }
    switch (plot.getType()) {
    case PlotType::surface2d:
        return samplesOf(static_cast<const SceneGraphPlotSurface&>(plot).getVertices());
    case PlotType::edge2d:
        return samplesOf(static_cast<const SceneGraphPlotEdge&>(plot).getVertices());
    case PlotType::tube2d: {
        const auto& points = static_cast<const SceneGraphPlotTube&>(plot).getPoints();
        return samplesOf(points, points.size(), [](const SceneGraphPlotTube::Point& point) {
            return Sample{point.x, point.y, point.z, point.texCoord};
        });
    }
    default:
        return {};
    }
}

} // namespace

std::optional<double> heightFactorOf(const SceneGraphPlot& plot)
{
    if (plot.isConstantData()) {
        return std::nullopt;
    }
    const double low = plot.getValueMin();
    const double range = plot.getValueMax() - low;
    const auto valueOf = [&](const Sample& sample) { return low + static_cast<double>(sample.u) * range; };
    const auto heightOf = [](const Sample& sample) { return static_cast<double>(sample.z); };
    std::vector<Sample> samples = samplesOf(plot).samples;
    std::erase_if(samples, [](const Sample& sample) { return !std::isfinite(sample.u) || !std::isfinite(sample.z); });
    double products = 0.0;
    double squares = 0.0;
    double highest = 0.0;
    for (const Sample& sample : samples) {
        products += valueOf(sample) * heightOf(sample);
        squares += valueOf(sample) * valueOf(sample);
        highest = std::max(highest, std::abs(heightOf(sample)));
    }
    const double factor = products / squares;
    const auto isOn = [&](const Sample& sample) {
        return std::abs(heightOf(sample) - factor * valueOf(sample)) <= c_tolerance * highest;
    };
    const bool isProportional = factor > 0.0 && std::isfinite(factor) && std::ranges::all_of(samples, isOn);
    return isProportional ? std::optional(factor) : std::nullopt;
}

bool haveSameHeights(const SceneGraphPlot& plot, const SceneGraphPlot& other)
{
    const Samples first = samplesOf(plot);
    const Samples second = samplesOf(other);
    const auto isSame = [](const Sample& a, const Sample& b) {
        const auto isEqual = [](float one, float two) { return one == two || (std::isnan(one) && std::isnan(two)); };
        return isEqual(a.x, b.x) && isEqual(a.y, b.y) && isEqual(a.z, b.z);
    };
    return first.numPoints == second.numPoints && std::ranges::equal(first.samples, second.samples, isSame);
}

} // namespace vxrenderer
