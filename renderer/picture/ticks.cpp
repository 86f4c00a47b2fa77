#include "renderer/picture/ticks.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

namespace vxrenderer {
namespace {

constexpr const char* c_minus = "\xE2\x88\x92";
/// Labels of at least 10 to this power, or below 10 to that one, are shown with a common power of ten.
constexpr int c_largeExponent = 5;
constexpr int c_smallExponent = -3;
/// Ticks that differ by less than this part of their value are beyond the digits of a double.
constexpr double c_smallestStep = 1e-13;

/// A step of 1, 2 or 5 times ten to an exponent.
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

Step roundStep(double smallest)
{
    const int exponent = static_cast<int>(std::floor(std::log10(smallest)));
    for (const int mantissa : {1, 2, 5}) {
        const Step step = {mantissa, exponent};
        if (step.times(1) >= smallest * (1.0 - 1e-9)) {
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

} // namespace

std::string numberText(double value)
{
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::general, 6).ptr;
    std::string text(buffer.data(), end);
    std::string power;
    const std::size_t mark = std::isfinite(value) ? text.find('e') : std::string::npos;
    if (mark != std::string::npos) {
        const int exponent = std::atoi(text.c_str() + mark + 1);
        power = "\\times10^{" + decimalText(exponent, 0) + "}";
        text.resize(mark);
    }
    if (!text.empty() && text.front() == '-') {
        text.replace(0, 1, c_minus);
    }
    return text + power;
}

Ticks makeTicks(double end, double otherEnd, int aboutCount)
{
    Ticks result;
    const auto [low, high] = std::minmax(end, otherEnd);
    const double span = high - low;
    if (!std::isfinite(low) || !std::isfinite(high)) {
        return result;
    }
    const double largest = std::max(std::abs(low), std::abs(high));
    if (!std::isfinite(span) || span <= largest * c_smallestStep || span < 1e-290) {
        const double middle = 0.5 * low + 0.5 * high;
        result.ticks.push_back({middle, numberText(middle)});
        return result;
    }

    const Step step = roundStep(span / aboutCount);
    // Ends that are themselves ticks must not be lost to rounding.
    const double slack = 1e-6;
    const auto first = static_cast<std::int64_t>(std::ceil(low / step.times(1) - slack));
    const auto last = static_cast<std::int64_t>(std::floor(high / step.times(1) + slack));
    const auto digits = [&](std::int64_t count) { return count * step.mantissa; };
    const std::int64_t longest = std::max(std::abs(digits(first)), std::abs(digits(last)));
    if (longest > 0) {
        const int magnitude = step.exponent + static_cast<int>(std::to_string(longest).size()) - 1;
        const bool isOrdinary = magnitude < c_largeExponent && magnitude >= c_smallExponent;
        result.exponent = isOrdinary ? 0 : magnitude;
    }
    for (std::int64_t count = first; count <= last; ++count) {
        result.ticks.push_back({step.times(count), decimalText(digits(count), result.exponent - step.exponent)});
    }
    return result;
}

} // namespace vxrenderer
