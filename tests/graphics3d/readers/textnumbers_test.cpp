#include "graphics3d/readers/textnumbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <clocale>
#include <cstdint>
#include <cstdio>
#include <locale.h>
#include <random>
#include <sstream>
#include <stdlib.h>
#include <string>

namespace vxgraphics3d {
namespace {

const locale_t c_cLocale = newlocale(LC_ALL_MASK, "C", nullptr);

/// Compares readReal and readInteger with the library's own functions: the bits of the value, and the end position.
::testing::AssertionResult readsLikeTheLibrary(const std::string& text)
{
    char* end = nullptr;
    const double expectedReal = strtod_l(text.c_str(), &end, c_cLocale);
    const char* at = text.c_str();
    double real = 0.0;
    const bool hasReal = readReal(at, real);
    if (hasReal != (end != text.c_str()) || at != end ||
        (hasReal && std::bit_cast<std::uint64_t>(real) != std::bit_cast<std::uint64_t>(expectedReal))) {
        return ::testing::AssertionFailure() << '"' << text << "\" gives the real " << real << ", not " << expectedReal;
    }
    const long expectedInteger = strtol_l(text.c_str(), &end, 10, c_cLocale);
    at = text.c_str();
    long integer = 0;
    const bool hasInteger = readInteger(at, integer);
    if (hasInteger != (end != text.c_str()) || at != end || (hasInteger && integer != expectedInteger)) {
        return ::testing::AssertionFailure()
               << '"' << text << "\" gives the integer " << integer << ", not " << expectedInteger;
    }
    return ::testing::AssertionSuccess();
}

TEST(TextNumbers, readHardCasesLikeTheLibrary)
{
    std::istringstream texts(
        "| |+|-|.|-.|e5|.e5|x|%|,|0|-0|+0|-0.0|00|0x|0x1p-3|0X.8|0x1p|-0x1F|00x1|1e|1e+|1e-|1e+x|1E5|1e05|1.|"
        ".5|-.5e1|1.5.5|1,5|--1|+-1|- 1| \t\n\v\f\r1|\0011|\2401|inf|-INF|infinity|infinit|nan|-nan|"
        "NAN(12)|nan(|in|1e400|-1e400|1e-400|4.9e-324|2.4e-324|2.5e-324|2.2250738585072011e-308|"
        "2.2250738585072014e-308|1.7976931348623157e308|1.7976931348623159e308|0e999999999|0e-999999999|"
        "1e99999999999999999999|1e-99999999999999999999|0.000e7|9007199254740992|9007199254740993|"
        "9007199254740993e22|9007199254740992e22|9007199254740992e23|1e22|1e23|1e-22|1e-23|"
        "123456789012345678|1234567890123456789|12345678901234567890|18446744073709551615|"
        "18446744073709551616|99999999999999999999|9223372036854775807|9223372036854775808|"
        "-9223372036854775808|-9223372036854775809|2147483647|2147483648|0000000000000000000000001|"
        "0.0000000000000000000000000000000000001|1.00000000000000000000000000000000001|"
        "3.14159265358979323846264338327950288419716939937510582097494459|8.5|5e-1|1e0|1e+22|1d5|1f|0.1e1e1|"
        "7 8|7\n|1e5 2|0.30000000000000004|1_000|1'000|1.e|1.e1|0.e-1|0b1|");
    for (std::string text; std::getline(texts, text, '|');) {
        EXPECT_TRUE(readsLikeTheLibrary(text));
    }
}

TEST(TextNumbers, readPrintedDoublesBackToTheBit)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> common(-1000.0, 1000.0);
    const char* const formats[] = {"%.17g", "%.16g", "%.15g", "%.9g", "%.7g", "%.3e", "%a", "%.20e"};
    for (std::size_t i = 0; i < 100000; ++i) {
        char text[64];
        const char* format = formats[i % std::size(formats)];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
        std::snprintf(text, sizeof text, format, i % 3 == 0 ? std::bit_cast<double>(random()) : common(random));
#pragma GCC diagnostic pop
        ASSERT_TRUE(readsLikeTheLibrary(text));
    }
}

TEST(TextNumbers, readRandomPiecesLikeTheLibrary)
{
    const char* const pieces[] = {"0",  "1",   "9",   "5",   "00000000", "12345678", "99999999", ".",    ".",    "e",
                                  "E",  "-",   "+",   " ",   "\t",       "x",        "0x",       "p",    "e-",   "e+",
                                  "22", "308", "inf", "nan", "a",        ",",        "\r",       "e-30", "e-32", "53"};
    std::mt19937 random(2);
    for (int i = 0; i < 300000; ++i) {
        std::string text;
        for (auto count = random() % 8 + 1; count != 0; --count) {
            text += pieces[random() % std::size(pieces)];
        }
        ASSERT_TRUE(readsLikeTheLibrary(text));
    }
}

TEST(TextNumbers, readDecimalPointsUnderACommaLocale)
{
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
    for (const char* text :
         {"1.5", "1,5", "0x1.8p0", "1.5e400", "1.00000000000000000000000000000000001", "1.234.567"}) {
        EXPECT_TRUE(readsLikeTheLibrary(text));
    }
    std::setlocale(LC_ALL, "C");
}

} // namespace
} // namespace vxgraphics3d
