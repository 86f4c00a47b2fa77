#include "graphics3d/readers/textnumbers.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

#include <locale.h>
#include <stdlib.h>

namespace vxgraphics3d {

namespace {

// The powers of ten that a double holds exactly.
constexpr std::array<double, 23> c_powersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                  1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::int64_t c_maxExactPower = 22;
// Integers up to here are doubles without rounding.
constexpr std::uint64_t c_maxExactInteger = std::uint64_t{1} << 53;
// That many decimal digits fit a std::uint64_t, and one less a long, whatever they are.
constexpr std::ptrdiff_t c_maxDigits = 19;
// An exponent of more digits than this is left to the library.
constexpr std::ptrdiff_t c_maxExponentDigits = 6;

bool isDigit(char c)
{
    return static_cast<unsigned char>(c - '0') < 10;
}

const char* skipWhiteSpace(const char* text)
{
    while (*text == ' ' || static_cast<unsigned char>(*text - '\t') < 5) { // \t \n \v \f \r
        ++text;
    }
    return text;
}

/// Adds the digits at the start of a text to a number, which may wrap around.
const char* readDigits(const char* text, std::uint64_t& number)
{
    for (; isDigit(*text); ++text) {
        number = number * 10 + static_cast<std::uint64_t>(*text - '0');
    }
    return text;
}

bool readRealByLibrary(const char*& text, double& value)
{
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    char* end = nullptr;
    value = strtod_l(text, &end, cLocale);
    const bool found = end != text;
    text = end;
    return found;
}

} // namespace

bool readReal(const char*& text, double& value)
{
    const char* at = skipWhiteSpace(text);
    const bool negative = *at == '-';
    if (*at == '-' || *at == '+') {
        ++at;
    }
    const char* const begin = at;
    std::uint64_t digits = 0;
    at = readDigits(at, digits);
    std::ptrdiff_t numDigits = at - begin;
    std::int64_t exponent = 0;
    if (*at == '.') {
        const char* const fraction = ++at;
        at = readDigits(at, digits);
        exponent = fraction - at;
        numDigits += at - fraction;
    } else if (numDigits == 1 && *begin == '0' && (*at == 'x' || *at == 'X')) {
        return readRealByLibrary(text, value);
    }
    if (numDigits == 0) {
        return readRealByLibrary(text, value);
    }
    if (*at == 'e' || *at == 'E') {
        const char* power = at + 1;
        const bool small = *power == '-';
        if (*power == '-' || *power == '+') {
            ++power;
        }
        if (isDigit(*power)) {
            std::uint64_t written = 0;
            at = readDigits(power, written);
            if (at - power > c_maxExponentDigits) {
                return readRealByLibrary(text, value);
            }
            exponent += small ? -static_cast<std::int64_t>(written) : static_cast<std::int64_t>(written);
        }
    }

    // Both operands are exact, so the one operation rounds once, as the true value would be rounded.
    double magnitude = 0.0;
    if (numDigits <= c_maxDigits && digits <= c_maxExactInteger && -c_maxExactPower <= exponent &&
        exponent <= c_maxExactPower) {
        magnitude = static_cast<double>(digits);
        if (exponent < 0) {
            magnitude /= c_powersOfTen[static_cast<std::size_t>(-exponent)];
        } else {
            magnitude *= c_powersOfTen[static_cast<std::size_t>(exponent)];
        }
    } else {
        const auto [end, error] = std::from_chars(begin, at, magnitude);
        if (error != std::errc() || end != at) {
            return readRealByLibrary(text, value);
        }
    }
    value = negative ? -magnitude : magnitude;
    text = at;
    return true;
}

bool readInteger(const char*& text, long& value)
{
    const char* at = skipWhiteSpace(text);
    const bool negative = *at == '-';
    if (*at == '-' || *at == '+') {
        ++at;
    }
    const char* const begin = at;
    std::uint64_t digits = 0;
    at = readDigits(at, digits);
    if (at == begin) {
        return false;
    }
    if (at - begin >= c_maxDigits) {
        // Only digits stand here, whose meaning no locale changes.
        value = strtol(text, nullptr, 10);
    } else {
        value = negative ? -static_cast<long>(digits) : static_cast<long>(digits);
    }
    text = at;
    return true;
}

} // namespace vxgraphics3d
