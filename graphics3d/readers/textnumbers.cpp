#include "graphics3d/readers/textnumbers.h"

#include "graphics3d/readers/decimal.h"

#include <charconv>
#include <locale.h>
#include <stdlib.h>
#include <system_error>

namespace vxgraphics3d {

namespace {

const char* skipWhiteSpace(const char* text)
{
    while (*text == ' ' || static_cast<unsigned char>(*text - '\t') < 5) { // \t \n \v \f \r
        ++text;
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
    const Decimal decimal = Decimal::at(skipWhiteSpace(text));
    if (decimal.toExact(value)) {
        text = decimal.end;
        return true;
    }
    if (decimal.end != nullptr) {
        double magnitude = 0.0;
        const auto [end, error] = std::from_chars(decimal.begin, decimal.end, magnitude);
        if (error == std::errc() && end == decimal.end) {
            value = decimal.negative ? -magnitude : magnitude;
            text = end;
            return true;
        }
    }
    return readRealByLibrary(text, value);
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
    constexpr std::ptrdiff_t c_safeDigits = 18;
    if (at - begin > c_safeDigits) {
        // Only a sign and digits are left here, whose meaning no locale changes.
        value = strtol(text, nullptr, 10);
    } else {
        value = negative ? -static_cast<long>(digits) : static_cast<long>(digits);
    }
    text = at;
    return true;
}

} // namespace vxgraphics3d
