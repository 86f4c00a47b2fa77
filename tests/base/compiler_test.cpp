// What the compiler settings must guarantee.

#include <gtest/gtest.h>

namespace {

struct Pair {
    double first;
    double second;
};

void narrowAndWiden(Pair& result, const Pair& values)
{
    result.first = static_cast<double>(static_cast<float>(values.first));
    result.second = static_cast<double>(static_cast<float>(values.second));
}

TEST(Compiler, roundsPairsOfDoublesThatPassThroughFloats)
{
    // Through a pointer, so that the compiler cannot compute the result from the known values.
    void (*volatile operation)(Pair&, const Pair&) = narrowAndWiden;
    const Pair values{0.1, 29.855};
    Pair rounded{};
    operation(rounded, values);
    EXPECT_EQ(rounded.first, 0.100000001490116119384765625);
    EXPECT_EQ(rounded.second, 29.854999542236328125);
}

} // namespace
