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
/// Numbers beyond this limit, in the unit of a format, get a power of ten of their own.
constexpr double c_largest = 1e6;
/// So do numbers that would need more decimals.
constexpr int c_mostDecimals = 7;
/// Levels that differ by this factor in total, or more, are labelled with powers of ten if they are logarithmic.
constexpr double c_farReach = 1e5;
/// A logarithmic bar has short ticks at the multiples of powers of ten up to this number of these, and none at all
/// beyond the other number.
constexpr int c_mostDecades = 6;
constexpr int c_mostMinorTicks = 60;

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

/// Whether a number is written without a power of ten of its own.
bool isOrdinary(double value)
{
    return std::isfinite(value) && std::abs(value) < c_largest;
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

/// Each level with the digits that it needs, or all as powers of ten if they reach far.
std::vector<std::string> logarithmicLabels(const std::vector<double>& levels, int digits)
{
    std::vector<std::string> labels;
    const bool isFar = levels.back() / levels.front() >= c_farReach;
    for (const double level : levels) {
        const int exponent = isFar ? magnitudeOf(level) : 0;
        const double mantissa = level / std::pow(10.0, exponent);
        if (isFar && std::abs(mantissa - 1.0) < 1e-6) {
            labels.push_back(powerText(exponent));
        } else {
            labels.push_back(numberText(mantissa, digits) + (isFar ? "\\times" + powerText(exponent) : ""));
        }
    }
    return labels;
}

/// Labels as many levels as wanted, and gives the others and the multiples of powers of ten short ticks.
void addLogarithmicTicks(LegendMarks& marks, const LegendScale& scale, int aboutCount, int digits)
{
    const std::vector<double>& levels = scale.logarithmicLevels;
    const std::vector<std::string> labels = logarithmicLabels(levels, digits);
    const std::size_t levelsPerTick = (levels.size() - 1) / static_cast<std::size_t>(aboutCount) + 1;
    for (std::size_t i = 0; i < levels.size(); i += levelsPerTick) {
        marks.ticks.push_back({scale.heightOf(levels[i]), labels[i]});
    }
    const auto addMinor = [&](double value) {
        const double position = scale.heightOf(value);
        const auto isHere = [position](double other) { return std::abs(other - position) < c_slack; };
        if (position > c_slack && position < 1.0 - c_slack && std::ranges::none_of(marks.minorTicks, isHere) &&
            std::ranges::none_of(marks.ticks, isHere, &LegendMarks::Tick::position)) {
            marks.minorTicks.push_back(position);
        }
    };
    for (std::size_t i = 0; i < levels.size() && levels.size() <= c_mostMinorTicks; ++i) {
        if (i % levelsPerTick != 0) {
            addMinor(levels[i]);
        }
    }
    const int first = magnitudeOf(scale.lowerValue);
    const int last = magnitudeOf(scale.upperValue);
    // Between more powers of ten the multiples would run together.
    const int multiples = last - first < c_mostDecades ? 9 : 1;
    for (int exponent = first; exponent <= last && last - first <= c_mostMinorTicks; ++exponent) {
        for (int multiple = 1; multiple <= multiples; ++multiple) {
            addMinor(multiple * std::pow(10.0, exponent));
        }
    }
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
    return isOrdinary(scaled) && decimals <= c_mostDecimals ? fixedText(scaled, decimals) : numberText(value, digits);
}

NumberFormat NumberFormat::widened(const std::vector<double>& values, int digits) const
{
    double largest = 0.0;
    std::vector<double> ordinary;
    for (const double value : values) {
        const double scaled = value / std::pow(10.0, exponent);
        if (isOrdinary(scaled)) {
            ordinary.push_back(scaled);
            largest = std::max(largest, std::abs(scaled));
        }
    }
    NumberFormat wide = *this;
    const int most = largest > 0.0 ? std::clamp(digits - 1 - magnitudeOf(largest), 0, 15) : 0;
    for (const double value : ordinary) {
        // Without zeros at the end.
        const std::string text = fixedText(value, most);
        const std::size_t last = text.find_last_not_of('0');
        const std::size_t point = text.find('.');
        const int needed = point == std::string::npos ? 0 : static_cast<int>(last - point);
        wide.decimals = std::max(wide.decimals, needed);
    }
    return wide;
}

LegendMarks LegendMarks::of(const vxgraphics3d::SceneGraphPlot& plot, const LegendScale& scale, int aboutCount,
                            int digits, int minMaxDigits)
{
    LegendMarks marks;
    const double smallest = plot.getValueMin();
    const double largest = plot.getValueMax();
    if (scale.isLogarithmic()) {
        addLogarithmicTicks(marks, scale, aboutCount, digits);
        marks.smallest = numberText(smallest, minMaxDigits);
        marks.largest = numberText(largest, minMaxDigits);
    } else {
        const Ticks ticks = makeTicks(scale.lowerValue, scale.upperValue, aboutCount, digits);
        for (const Ticks::Tick& tick : ticks.ticks) {
            marks.ticks.push_back({scale.heightOf(tick.value), tick.label});
        }
        marks.minorTicks = minorTicksOf(ticks, scale);
        marks.format = formatOf(ticks);
        const NumberFormat ofExtremes = marks.format.widened({smallest, largest}, minMaxDigits);
        marks.smallest = ofExtremes.textOf(smallest, minMaxDigits);
        marks.largest = ofExtremes.textOf(largest, minMaxDigits);
    }

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
    const auto markBeyond = [&](double low, double high, Beyond what) {
        const auto [from, to] = std::minmax({scale.heightOf(low), scale.heightOf(high)});
        marks.below = from < -c_slack ? what : marks.below;
        marks.above = to > 1.0 + c_slack ? what : marks.above;
    };
    if (scale.lowerValue != scale.upperValue) {
        markBeyond(smallest, largest, Beyond::hidden);
        if (shownLow <= shownHigh) {
            markBeyond(shownLow, shownHigh, Beyond::shown);
        }
    }
    return marks;
}

std::vector<std::string> levelLabels(const std::vector<double>& levels, int digits)
{
    if (areLogarithmic(levels)) {
        return logarithmicLabels(levels, digits);
    }
    std::vector<std::string> labels;
    const NumberFormat format = NumberFormat().widened(levels, digits);
    for (const double level : levels) {
        labels.push_back(format.textOf(level, digits));
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

std::string withoutUnit(const std::string& title)
{
    const std::string unit = unitOf(title);
    const std::size_t at = unit.empty() ? std::string::npos : title.rfind(unit);
    if (at == std::string::npos) {
        return title;
    }
    // Before the unit there is a bracket or the word "in".
    const std::string_view before = std::string_view(title).substr(0, at);
    constexpr std::string_view c_in = " in ";
    const std::size_t end = before.ends_with(c_in) ? at - c_in.size() : at - 1;
    const std::size_t last = title.find_last_not_of(' ', end == 0 ? 0 : end - 1);
    return last == std::string::npos ? title : title.substr(0, last + 1);
}

} // namespace vxrenderer
