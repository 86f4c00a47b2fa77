#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vxrenderer {

/// Round values on a scale, with their labels.
struct Ticks {
    struct Tick {
        double value;
        /// In title markup, as UTF-8.
        std::string label;
    };

    /// By rising value.
    std::vector<Tick> ticks;
    /// The labels have to be multiplied by ten to this power: 0 while numbers of ordinary size are shown.
    int exponent = 0;
};

/// Which steps are round.
enum class TickSteps {
    /// 1, 2 or 5 times a power of ten.
    decimal,
    /// The same up to 10, then 15, 30, 45, 90 and 180, then 1, 2 or 5 times a power of ten of whole turns.
    degrees
};

/// As many significant digits as the labels of ticks need.
inline constexpr int c_allDigits = 15;

/// The ticks between two ends of a scale, in either order and both included: multiples of a round step. Ends that are
/// equal, or so close that no tick lies between them, give one tick in the middle; ends that are not finite give none.
/// @param aboutCount how many are wanted, at least 1; there is at most one more
/// @param digits how many significant digits a label may have, from 1 to `c_allDigits`, others count as the nearest of
///     them. Ticks are set further apart for it; labels only get longer where less than two ticks would be left.
Ticks makeTicks(double end, double otherEnd, int aboutCount, int digits = c_allDigits,
                TickSteps steps = TickSteps::decimal);

/// The multiples of a step between two ends, in either order and both included. Labels are rounded to the digits, but
/// not so far that neighbours would become equal. Ends or a step that are not finite, and a step that is not above 0 or
/// gives more than `c_mostMultiples`, give none.
Ticks makeMultiples(double end, double otherEnd, double step, int digits = c_allDigits);
inline constexpr int c_mostMultiples = 10000;

/// Values between ticks at equal distances, which divide these into two to five round parts: as many as have space.
/// @param tick one of the ticks
/// @param step from one tick to the next
/// @param closest the least distance of the values
std::vector<double> makeMinorValues(double low, double high, double tick, double step, double closest,
                                    TickSteps steps = TickSteps::decimal);

/// A label as wide as those of `makeTicks` get as long as their digits suffice.
std::string widestLabel(int digits);

/// A number with at most the given number of significant digits, in title markup: `1.5`, `2.5\times10^{-7}`.
std::string numberText(double value, int digits = 6);

/// A power of ten in title markup: `10^{-7}`.
std::string powerText(std::int64_t exponent);

} // namespace vxrenderer
