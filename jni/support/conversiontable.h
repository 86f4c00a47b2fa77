#pragma once

#include <array>
#include <cstddef>

namespace vxgraphics3d {

/// A pair of numbers with the same meaning on the two sides of the boundary.
struct NumberPair {
    int cpp;
    int java;
};

/// Numbers of an enumeration on both sides of the boundary, with a fallback for anything else.
template <std::size_t count>
struct ConversionTable {
    std::array<NumberPair, count> pairs;
    int otherCpp;
    int otherJava;

    constexpr int toJava(int cpp) const
    {
        for (const NumberPair& pair : pairs) {
            if (pair.cpp == cpp) {
                return pair.java;
            }
        }
        return otherJava;
    }

    constexpr int toCpp(int java) const
    {
        for (const NumberPair& pair : pairs) {
            if (pair.java == java) {
                return pair.cpp;
            }
        }
        return otherCpp;
    }
};

/// The numbers from 0 up, the same on both sides; anything else becomes 0.
template <std::size_t count>
constexpr ConversionTable<count> sameNumbers()
{
    ConversionTable<count> table{{}, 0, 0};
    for (std::size_t i = 0; i < count; ++i) {
        table.pairs[i] = {static_cast<int>(i), static_cast<int>(i)};
    }
    return table;
}

} // namespace vxgraphics3d
