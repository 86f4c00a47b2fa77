#include "renderer/axes/ticks.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace vxrenderer {
namespace {

constexpr const char* c_minus = "\xE2\x88\x92";
/// Labels of at least 10 to this power, or below 10 to that one, are shown with a common power of ten.
constexpr int c_largeExponent = 5;
constexpr int c_smallExponent = -3;
/// Ticks that differ by less than this part of their value are beyond the digits of a double.
constexpr double c_smallestStep = 1e-13;

/// From here on steps of degrees are parts of a turn, or whole turns.
constexpr double c_largestDecimalDegrees = 10.0;
constexpr int c_turn = 360;
/// Part of a step that rounding may add or take away.
constexpr double c_stepSlack = 1e-9;

/// A round step: a whole number, such as 1, 2 or 5, times ten to an exponent.
struct Step {
    int mantissa;
    int exponent;

    /// The value of `count` steps, to the last digit.
    double times(std::int64_t count) const
    {
        const double digits = static_cast<double>(count * mantissa);
        return exponent < 0 ? digits / std::pow(10.0, -exponent) : digits * std::pow(10.0, exponent);
    }
};

Step roundStep(double smallest, TickSteps steps)
{
    const double least = smallest * (1.0 - c_stepSlack);
    if (steps == TickSteps::degrees && least > c_largestDecimalDegrees) {
        for (const int degrees : {15, 30, 45, 90, 180}) {
            if (degrees >= least) {
                return {degrees, 0};
            }
        }
        const Step turns = roundStep(smallest / c_turn, TickSteps::decimal);
        return {turns.mantissa * c_turn, turns.exponent};
    }
    const int exponent = static_cast<int>(std::floor(std::log10(smallest)));
    for (const int mantissa : {1, 2, 5}) {
        const Step step = {mantissa, exponent};
        if (step.times(1) >= least) {
            return step;
        }
    }
    return {1, exponent + 1};
}

/// The decimal number digits * 10^-decimals.
std::string decimalText(std::int64_t digits, int decimals)
{
    std::string text = std::to_string(digits < 0 ? -digits : digits);
    if (decimals > 0) {
        const auto places = static_cast<std::size_t>(decimals);
        if (text.size() <= places) {
            text.insert(0, places + 1 - text.size(), '0');
        }
        text.insert(text.size() - places, 1, '.');
    } else if (digits != 0) {
        text.append(static_cast<std::size_t>(-decimals), '0');
    }
    return (digits < 0 ? c_minus : "") + text;
}

int magnitudeOf(double value)
{
    return static_cast<int>(std::floor(std::log10(std::abs(value))));
}

/// Whether labels up to a magnitude are shown as they are, without a common power of ten.
bool isOrdinary(int magnitude, int digits)
{
    return magnitude < std::min(c_largeExponent, digits + 1) && magnitude >= c_smallExponent;
}

/// Whole multiples of a step, from the first to the last one within two ends.
struct Multiples {
    std::int64_t first;
    std::int64_t last;

    static Multiples within(double low, double high, double step)
    {
        // Ends that are themselves ticks must not be lost to rounding.
        constexpr double slack = 1e-6;
        return {static_cast<std::int64_t>(std::ceil(low / step - slack)),
                static_cast<std::int64_t>(std::floor(high / step + slack))};
    }

    std::int64_t farthest() const { return std::max(std::abs(first), std::abs(last)); }
};

/// Whether ends lie too close for ticks between them, or have no distance that a double can tell.
bool isPoint(double low, double high)
{
    const double span = high - low;
    const double largest = std::max(std::abs(low), std::abs(high));
    return !std::isfinite(span) || span <= largest * c_smallestStep || span < 1e-290;
}

} // namespace

std::string powerText(std::int64_t exponent)
{
    return "10^{" + decimalText(exponent, 0) + "}";
}

std::string widestLabel(int digits)
{
    // A sign, the point, and the zero ahead of it.
    return decimalText(-5, std::clamp(digits, 1, c_allDigits));
}

std::string numberText(double value, int digits)
{
    std::array<char, 32> buffer;
    digits = std::clamp(digits, 1, c_allDigits);
    const auto end = std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::general, digits).ptr;
    std::string text(buffer.data(), end);
    std::string power;
    const std::size_t mark = std::isfinite(value) ? text.find('e') : std::string::npos;
    if (mark != std::string::npos) {
        power = "\\times" + powerText(std::atoi(text.c_str() + mark + 1));
        text.resize(mark);
    }
    if (!text.empty() && text.front() == '-') {
        text.replace(0, 1, c_minus);
    }
    return text + power;
}

Ticks makeTicks(double end, double otherEnd, int aboutCount, int digits, TickSteps steps)
{
    Ticks result;
    const auto [low, high] = std::minmax(end, otherEnd);
    if (!std::isfinite(low) || !std::isfinite(high)) {
        return result;
    }
    digits = std::clamp(digits, 1, c_allDigits);
    if (isPoint(low, high)) {
        const double middle = 0.5 * low + 0.5 * high;
        result.ticks.push_back({middle, numberText(middle, std::min(digits, 6))});
        return result;
    }

    Step step = roundStep((high - low) / aboutCount, steps);
    Multiples range = Multiples::within(low, high, step.times(1));
    const Step coarse = {1, magnitudeOf(std::max(std::abs(low), std::abs(high))) - digits + 1};
    if (coarse.times(1) > step.times(1)) {
        const Multiples coarseRange = Multiples::within(low, high, coarse.times(1));
        if (coarseRange.last > coarseRange.first) {
            step = coarse;
            range = coarseRange;
        }
    }
    if (const std::int64_t longest = range.farthest() * step.mantissa; longest > 0) {
        const int magnitude = step.exponent + static_cast<int>(std::to_string(longest).size()) - 1;
        // Below 1, zeros after the point take the place of digits.
        const bool fits = magnitude >= 0 || -step.exponent <= digits;
        result.exponent = isOrdinary(magnitude, digits) && fits ? 0 : magnitude;
    }
    for (std::int64_t count = range.first; count <= range.last; ++count) {
        result.ticks.push_back(
            {step.times(count), decimalText(count * step.mantissa, result.exponent - step.exponent)});
    }
    return result;
}

Ticks makeMultiples(double end, double otherEnd, double step, int digits)
{
    Ticks result;
    const auto [low, high] = std::minmax(end, otherEnd);
    const bool isUsable = std::isfinite(low) && std::isfinite(high) && std::isfinite(step) && step > 0.0;
    if (!isUsable || (high - low) / step > c_mostMultiples ||
        std::max(std::abs(low), std::abs(high)) / step > 1.0 / c_smallestStep) {
        return result;
    }
    digits = std::clamp(digits, 1, c_allDigits);
    const Multiples range = Multiples::within(low, high, step);
    if (range.farthest() == 0) {
        if (range.first == 0 && range.last == 0) {
            result.ticks.push_back({0.0, "0"});
        }
        return result;
    }
    const int magnitude = magnitudeOf(step * static_cast<double>(range.farthest()) * (1.0 + 1e-9));
    result.exponent = isOrdinary(magnitude, digits) ? 0 : magnitude;
    const double unit = std::pow(10.0, result.exponent);
    const int distinct = 1 - magnitudeOf(step / unit);
    const int mostDecimals = std::clamp(std::max(digits - 1 - (magnitude - result.exponent), distinct), 0, c_allDigits);
    int decimals = 0;
    double scaled = step / unit;
    while (decimals < mostDecimals && std::abs(scaled - std::round(scaled)) > 1e-9 * scaled) {
        ++decimals;
        scaled = step / unit * std::pow(10.0, decimals);
    }
    const double scale = std::pow(10.0, decimals);
    for (std::int64_t count = range.first; count <= range.last; ++count) {
        const double value = static_cast<double>(count) * step;
        result.ticks.push_back({value, decimalText(std::llround(value / unit * scale), decimals)});
    }
    return result;
}

std::vector<double> makeMinorValues(double low, double high, double tick, double step, double closest, TickSteps steps)
{
    std::vector<double> values;
    if (!(step > 0.0) || !(high > low) || (high - low) / step > c_mostMultiples) {
        return values;
    }
    const auto isRound = [steps](double value) {
        constexpr double slack = 1e-6;
        return roundStep(value * (1.0 - slack), steps).times(1) <= value * (1.0 + slack);
    };
    int parts = 5;
    while (parts > 1 && (step / parts < closest || !isRound(step / parts))) {
        --parts;
    }
    const Multiples range = Multiples::within((low - tick) / step * parts, (high - tick) / step * parts, 1.0);
    for (std::int64_t count = range.first; count <= range.last; ++count) {
        if (count % parts != 0) {
            values.push_back(std::clamp(tick + step * static_cast<double>(count) / parts, low, high));
        }
    }
    return values;
}

} // namespace vxrenderer
