#include "renderer/decoration/legendscale.h"

#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "graphics3d/plots/scenegraphplot.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotIso;

/// Factors differ by less than this part of them if they are meant to be equal.
constexpr double c_rounding = 1e-4;
/// Steps of the logarithm that differ more are not even. Those of 1, 2, 5, 10 differ by 1.32.
constexpr double c_mostUneven = 1.4;
constexpr double c_decade = 10.0 * (1.0 - c_rounding);

/// The levels by which a plot is coloured, sorted. None of a plot whose levels vary or that is coloured by other data.
std::vector<double> levelsOf(const SceneGraphPlot& plot)
{
    const auto* iso = dynamic_cast<const SceneGraphPlotIso*>(&plot);
    if (iso == nullptr || iso->hasColorData()) {
        return {};
    }
    std::vector<double> levels;
    for (int i = 0; i < iso->getNumberOfLevels(); ++i) {
        const std::vector<double>& data = iso->getSurface(i)->m_levelData;
        if (data.empty()) {
            continue;
        }
        if (data.front() != data.back()) {
            return {};
        }
        levels.push_back(data.front());
    }
    std::ranges::sort(levels);
    return levels;
}

/// Makes a scale logarithmic if the levels of the plot call for it.
void followLevels(LegendScale& scale, const SceneGraphPlot& plot)
{
    if (!(scale.lowerValue > 0.0) || !(scale.upperValue > scale.lowerValue) || !std::isfinite(scale.upperValue)) {
        return;
    }
    std::vector<double> levels = levelsOf(plot);
    if (!areLogarithmic(levels)) {
        return;
    }
    std::erase_if(levels, [&](double level) { return level < scale.lowerValue || level > scale.upperValue; });
    if (levels.size() > 1) {
        scale.logarithmicLevels = std::move(levels);
    }
}

} // namespace

bool areLogarithmic(const std::vector<double>& levels)
{
    if (levels.size() < 3 || !(levels.front() > 0.0) || !std::isfinite(levels.back())) {
        return false;
    }
    double least = std::numeric_limits<double>::infinity();
    double most = 0.0;
    for (std::size_t i = 1; i < levels.size(); ++i) {
        const double factor = levels[i] / levels[i - 1];
        if (!(factor > 1.0)) {
            return false;
        }
        least = std::min(least, factor);
        most = std::max(most, factor);
    }
    const bool isEven = std::log(most) <= c_mostUneven * std::log(least);
    return most <= least * (1.0 + c_rounding) || (isEven && levels.back() / levels.front() >= c_decade);
}

double LegendScale::heightOf(double value) const
{
    if (isLogarithmic()) {
        return value > 0.0 ? std::log(value / lowerValue) / std::log(upperValue / lowerValue)
                           : -std::numeric_limits<double>::infinity();
    }
    // Halves, so that ends as far apart as doubles can be do not overflow.
    const double span = 0.5 * upperValue - 0.5 * lowerValue;
    return span == 0.0 ? 0.5 : (0.5 * value - 0.5 * lowerValue) / span;
}

float LegendScale::colorAt(double height) const
{
    if (isLogarithmic()) {
        const double value = lowerValue * std::pow(upperValue / lowerValue, height);
        height = (value - lowerValue) / (upperValue - lowerValue);
    }
    return std::lerp(lowerColor, upperColor, static_cast<float>(height));
}

bool hasColorLegend(const SceneGraphPlot& plot)
{
    return plot.isActive() && plot.isValid() && plot.isShowLegend() && plot.hasColorTable() &&
           plot.getValueSource() != SceneGraphPlot::ValueSource::none;
}

LegendScale legendScaleOf(const SceneGraphPlot& plot)
{
    LegendScale scale;
    scale.lowerValue = plot.getLegendMin();
    scale.upperValue = plot.getLegendMax();
    // A return to automatic limits leaves the stored limits as they were. That the scale is that of the data shows in
    // the colour coordinates, which a symmetric scale does not have.
    const bool isOneColor = plot.getLegendTexMin() == plot.getLegendTexMax();
    const bool isDataScale = plot.getDataTexMin() == 0.0f && plot.getDataTexMax() == 1.0f;
    if (plot.isAutoLegendLimits() && (isOneColor || isDataScale)) {
        scale.lowerValue = plot.getValueMin();
        scale.upperValue = plot.getValueMax();
    }
    scale.lowerColor = plot.getLegendTexMin();
    scale.upperColor = plot.getLegendTexMax();
    if (plot.isReverseColorTable()) {
        scale.lowerColor = 1.0f - scale.lowerColor;
        scale.upperColor = 1.0f - scale.upperColor;
    }
    followLevels(scale, plot);
    return scale;
}

} // namespace vxrenderer
