#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vxgraphics3d {

inline bool isDigit(char c)
{
    return static_cast<unsigned char>(c - '0') < 10;
}

/// Appends the digits at the start of a text to a number, which may wrap around, and returns the text after them.
inline const char* readDigits(const char* text, std::uint64_t& number)
{
    for (; isDigit(*text); ++text) {
        number = number * 10 + static_cast<std::uint64_t>(*text - '0');
    }
    return text;
}

/// A decimal number as it is written in a text: sign, digits with or without a point, exponent.
struct Decimal {
    const char* begin; ///< after the sign
    const char* end;   ///< after the number; null if the text is not a decimal number, or one with a huge exponent
    bool negative;
    std::uint64_t digits;     ///< all digits as one integer, exact if there are at most 19
    std::ptrdiff_t numDigits; ///< leading zeros included
    std::int64_t exponent;    ///< the number is digits times ten to this power

    /// Parses the start of a text, which must not begin with white space.
    static Decimal at(const char* text);

    /// The number, if it takes only one operation on exact operands, whose result is correctly rounded.
    bool toExact(double& value) const;
};

inline Decimal Decimal::at(const char* text)
{
    Decimal result{};
    result.negative = *text == '-';
    if (*text == '-' || *text == '+') {
        ++text;
    }
    result.begin = text;
    text = readDigits(text, result.digits);
    result.numDigits = text - result.begin;
    if (*text == '.') {
        const char* const fraction = ++text;
        text = readDigits(text, result.digits);
        result.exponent = fraction - text;
        result.numDigits -= result.exponent;
    } else if ((*text == 'x' || *text == 'X') && result.numDigits == 1 && *result.begin == '0') {
        return result;
    }
    if (result.numDigits == 0) {
        return result;
    }
    if (*text == 'e' || *text == 'E') {
        const char* power = text + 1;
        const bool small = *power == '-';
        if (*power == '-' || *power == '+') {
            ++power;
        }
        if (isDigit(*power)) {
            constexpr std::ptrdiff_t c_maxPowerDigits = 6;
            std::uint64_t written = 0;
            text = readDigits(power, written);
            if (text - power > c_maxPowerDigits) {
                return result;
            }
            result.exponent += small ? -static_cast<std::int64_t>(written) : static_cast<std::int64_t>(written);
        }
    }
    result.end = text;
    return result;
}

inline bool Decimal::toExact(double& value) const
{
    // The powers of ten that a double holds exactly.
    static constexpr std::array<double, 23> c_powersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                             1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                             1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr std::int64_t c_maxPower = 22;
    // Integers up to this one are exact as doubles.
    constexpr std::uint64_t c_maxInteger = std::uint64_t{1} << 53;
    constexpr std::ptrdiff_t c_maxDigits = 19;
    if (end == nullptr || numDigits > c_maxDigits || digits > c_maxInteger || exponent < -c_maxPower ||
        exponent > c_maxPower) {
        return false;
    }
    const auto integer = static_cast<double>(static_cast<std::int64_t>(digits));
    const double magnitude = exponent < 0 ? integer / c_powersOfTen[static_cast<std::size_t>(-exponent)]
                                          : integer * c_powersOfTen[static_cast<std::size_t>(exponent)];
    value = negative ? -magnitude : magnitude;
    return true;
}

} // namespace vxgraphics3d
