#include "renderer/plots/heightfactor.h"

#include "graphics3d/plots/scalar/scenegraphplotsurface.h"
#include "graphics3d/plots/vector/scenegraphplotedge.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

constexpr int c_numSamples = 500;
/// The largest deviation of a height, as a part of the largest one.
constexpr double c_tolerance = 1e-4;

struct Sample {
    double value;
    double height;
};

template <class Vertices>
std::vector<Sample> samplesOf(const Vertices& vertices, const SceneGraphPlot& plot)
{
    const double low = plot.getValueMin();
    const double range = plot.getValueMax() - low;
    const int count = vertices.getNumberOfVertices();
    const int step = std::max(1, count / c_numSamples);
    std::vector<Sample> samples;
    for (int i = 0; i < count; i += step) {
        const auto& vertex = vertices.vertices()[i];
        const Sample sample = {low + static_cast<double>(vertex.u) * range, static_cast<double>(vertex.z)};
        if (std::isfinite(sample.value) && std::isfinite(sample.height)) {
            samples.push_back(sample);
        }
    }
    return samples;
}

} // namespace

std::optional<double> heightFactorOf(const SceneGraphPlot& plot)
{
    std::vector<Sample> samples;
    if (!plot.hasHeightData() || plot.isConstantData()) {
        return std::nullopt;
    }
    if (plot.getType() == PlotType::surface2d) {
        samples = samplesOf(static_cast<const SceneGraphPlotSurface&>(plot).getVertices(), plot);
    } else if (plot.getType() == PlotType::edge2d) {
        samples = samplesOf(static_cast<const SceneGraphPlotEdge&>(plot).getVertices(), plot);
    }
    double products = 0.0;
    double squares = 0.0;
    double highest = 0.0;
    for (const Sample& sample : samples) {
        products += sample.value * sample.height;
        squares += sample.value * sample.value;
        highest = std::max(highest, std::abs(sample.height));
    }
    const double factor = products / squares;
    const auto isOn = [&](const Sample& sample) {
        return std::abs(sample.height - factor * sample.value) <= c_tolerance * highest;
    };
    const bool isProportional = factor > 0.0 && std::isfinite(factor) && std::ranges::all_of(samples, isOn);
    return isProportional ? std::optional(factor) : std::nullopt;
}

} // namespace vxrenderer
