#include "renderer/decoration/legendmarks.h"

#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/axes/ticks.h"
#include "renderer/decoration/legendscale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace vxrenderer {
namespace {

/// What lies beyond an end of the bar by less than this part of its length counts as being at the end.
constexpr double c_slack = 1e-6;
/// Numbers beyond these limits, in the unit of a format, get a power of ten of their own.
constexpr double c_largest = 1e6;
constexpr double c_smallest = 1e-4;
/// Levels that differ by this factor in total, or more, are labelled with powers of ten if they are logarithmic.
constexpr double c_farReach = 1e5;

std::string fixedText(double value, int decimals)
{
    std::array<char, 400> buffer;
    const double rounded = value == 0.0 ? 0.0 : value;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded, std::chars_format::fixed, decimals).ptr;
    std::string text(buffer.data(), end);
    if (text.front() == '-') {
        const bool isZero = text.find_first_not_of("-0.") == std::string::npos;
        text.replace(0, 1, isZero ? "" : "\xE2\x88\x92");
    }
    return text;
}

int magnitudeOf(double value)
{
    return static_cast<int>(std::floor(std::log10(std::abs(value)) + 1e-12));
}

/// The decimals of a number with this many significant digits, without zeros at its end.
int decimalsOf(double value, int digits)
{
    if (value == 0.0) {
        return 0;
    }
    int decimals = std::clamp(digits - 1 - magnitudeOf(value), 0, 15);
    std::string text = fixedText(value, decimals);
    while (decimals > 0 && text.back() == '0') {
        text.pop_back();
        --decimals;
    }
    return decimals;
}

bool isOrdinary(double value)
{
    return value == 0.0 || (std::abs(value) < c_largest && std::abs(value) >= c_smallest);
}

/// The format that the labels of ticks have.
NumberFormat formatOf(const Ticks& ticks)
{
    NumberFormat format = {ticks.exponent, 0};
    for (const Ticks::Tick& tick : ticks.ticks) {
        const std::size_t point = tick.label.find('.');
        const std::size_t end = std::min(tick.label.find('\\'), tick.label.size());
        if (point < end) {
            format.decimals = std::max(format.decimals, static_cast<int>(end - point) - 1);
        }
    }
    return format;
}

/// How many parts the distance of two ticks is divided into.
int partsOf(double step)
{
    const double mantissa = step / std::pow(10.0, magnitudeOf(step));
    return std::lround(mantissa) == 2 ? 4 : 5;
}

std::vector<double> minorTicksOf(const Ticks& ticks, const LegendScale& scale)
{
    std::vector<double> positions;
    if (ticks.ticks.size() < 2) {
        return positions;
    }
    const double step = ticks.ticks[1].value - ticks.ticks[0].value;
    const int parts = partsOf(step);
    const auto count = static_cast<int>(ticks.ticks.size());
    for (int i = -parts + 1; i < count * parts; ++i) {
        const double position = scale.heightOf(ticks.ticks[0].value + step * i / parts);
        if (i % parts != 0 && position > c_slack && position < 1.0 - c_slack) {
            positions.push_back(position);
        }
    }
    return positions;
}

bool isUnitWord(std::string_view word)
{
    constexpr std::string_view c_long[] = {"degrees", "degree", "percent", "mol", "rad", "deg", "min",
                                           "bar",     "rpm",    "ppm",     "psi", "day", "days"};
    if (std::ranges::find(c_long, word) != std::end(c_long)) {
        return true;
    }
    const auto isLower = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto numLower = static_cast<std::size_t>(std::ranges::count_if(word, isLower));
    // Words of a sentence and names have more small letters in a row than symbols of units.
    const bool isWord = numLower == word.size() ? word.size() > 2 : word.size() > 3 && numLower + 1 == word.size();
    return !isWord && word.size() <= 8;
}

} // namespace

std::string NumberFormat::textOf(double value, int digits) const
{
    const double scaled = value / std::pow(10.0, exponent);
    if (!std::isfinite(scaled) || !isOrdinary(scaled)) {
        return numberText(value, digits);
    }
    const int most = scaled == 0.0 ? decimals : std::max(digits - 1 - magnitudeOf(scaled), 0);
    return fixedText(scaled, std::max(std::min(decimals, most), decimalsOf(scaled, digits)));
}

LegendMarks LegendMarks::of(const vxgraphics3d::SceneGraphPlot& plot, const LegendScale& scale, int aboutCount,
                            int digits, int minMaxDigits)
{
    LegendMarks marks;
    const Ticks ticks = makeTicks(scale.lowerValue, scale.upperValue, aboutCount, digits);
    for (const Ticks::Tick& tick : ticks.ticks) {
        marks.ticks.push_back({scale.heightOf(tick.value), tick.label});
    }
    marks.minorTicks = minorTicksOf(ticks, scale);
    marks.format = formatOf(ticks);

    // Both extremes have the decimals of the one that needs more.
    const double smallest = plot.getValueMin();
    const double largest = plot.getValueMax();
    NumberFormat ofExtremes = marks.format;
    for (const double value : {smallest, largest}) {
        const double scaled = value / std::pow(10.0, ofExtremes.exponent);
        if (std::isfinite(scaled) && isOrdinary(scaled)) {
            ofExtremes.decimals = std::max(ofExtremes.decimals, decimalsOf(scaled, minMaxDigits));
        }
    }
    marks.smallest = ofExtremes.textOf(smallest, minMaxDigits);
    marks.largest = ofExtremes.textOf(largest, minMaxDigits);

    const auto onBar = [&](double value) {
        const double position = scale.heightOf(value);
        return position >= -c_slack && position <= 1.0 + c_slack ? std::optional(std::clamp(position, 0.0, 1.0))
                                                                 : std::nullopt;
    };
    marks.smallestAt = onBar(smallest);
    marks.largestAt = onBar(largest);

    double shownLow = smallest;
    double shownHigh = largest;
    if (plot.hasValueRestrictions()) {
        shownLow = std::max(smallest, plot.getValueRestrictionMin());
        shownHigh = std::min(largest, plot.getValueRestrictionMax());
        const auto [from, to] =
            std::minmax({scale.heightOf(plot.getValueRestrictionMin()), scale.heightOf(plot.getValueRestrictionMax())});
        if (scale.lowerValue != scale.upperValue) {
            marks.shownFrom = std::clamp(from, 0.0, 1.0);
            marks.shownTo = std::clamp(to, 0.0, 1.0);
        }
    }
    if (shownLow <= shownHigh && scale.lowerValue != scale.upperValue) {
        const auto [from, to] = std::minmax({scale.heightOf(shownLow), scale.heightOf(shownHigh)});
        marks.isClippedBelow = from < -c_slack;
        marks.isClippedAbove = to > 1.0 + c_slack;
    }
    return marks;
}

bool areLogarithmic(const std::vector<double>& levels)
{
    if (levels.size() < 3 || !(levels[0] > 0.0) || !(levels[1] > levels[0])) {
        return false;
    }
    const double ratio = levels[1] / levels[0];
    for (std::size_t i = 2; i < levels.size(); ++i) {
        if (!(std::abs(levels[i] / levels[i - 1] - ratio) <= 1e-4 * ratio)) {
            return false;
        }
    }
    return true;
}

std::vector<std::string> levelLabels(const std::vector<double>& levels, int digits)
{
    std::vector<std::string> labels;
    const bool isFar = areLogarithmic(levels) && levels.back() / levels.front() >= c_farReach;
    NumberFormat format;
    for (const double level : levels) {
        if (std::isfinite(level) && isOrdinary(level)) {
            format.decimals = std::max(format.decimals, decimalsOf(level, digits));
        }
    }
    for (const double level : levels) {
        const int exponent = isFar ? magnitudeOf(level) : 0;
        const double mantissa = isFar ? level / std::pow(10.0, exponent) : 0.0;
        if (!isFar) {
            labels.push_back(areLogarithmic(levels) ? numberText(level, digits) : format.textOf(level, digits));
        } else if (std::abs(mantissa - 1.0) < 1e-6) {
            labels.push_back(powerText(exponent));
        } else {
            labels.push_back(numberText(mantissa, digits) + "\\times" + powerText(exponent));
        }
    }
    return labels;
}

std::string unitOf(const std::string& title)
{
    const std::size_t end = title.find_last_not_of(' ');
    if (end == std::string::npos) {
        return {};
    }
    const std::string text = title.substr(0, end + 1);
    for (const char* brackets : {"()", "[]"}) {
        const std::size_t open = text.rfind(brackets[0]);
        if (text.back() == brackets[1] && open != std::string::npos && open > 0) {
            return text.substr(open + 1, text.size() - open - 2);
        }
    }
    constexpr std::string_view c_in = " in ";
    const std::size_t in = text.rfind(c_in);
    if (in == std::string::npos || text.find('\n', in) != std::string::npos) {
        return {};
    }
    const std::string unit = text.substr(in + c_in.size());
    // Multiples such as "100 m" and products such as "kN m" are units as well.
    std::size_t from = 0;
    while (from < unit.size()) {
        const std::size_t to = std::min(unit.find_first_of(" /", from), unit.size());
        const std::string_view word = std::string_view(unit).substr(from, to - from);
        const bool isMarkup = word.find('\\') != std::string_view::npos;
        if (!isMarkup && !isUnitWord(word)) {
            return {};
        }
        from = to + 1;
    }
    return unit;
}

} // namespace vxrenderer
