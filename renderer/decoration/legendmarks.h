#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

struct LegendScale;

/// How the numbers of one legend are written: all with the same power of ten, and with the same decimals.
struct NumberFormat {
    /// The numbers are to be multiplied by ten to this power.
    int exponent = 0;
    /// Digits after the point.
    int decimals = 0;

    /// A number in title markup. One that is too large for the format has its own power of ten.
    /// @param digits the most significant digits of such a number
    std::string textOf(double value, int digits) const;

    /// The same format with as many decimals as numbers need, but at least those that it has.
    /// @param digits significant digits of the number of the largest magnitude; the others have its decimals
    NumberFormat widened(const std::vector<double>& values, int digits) const;
};

/// What is marked at the bar of a legend. Positions are 0 at its lower end and 1 at its upper one.
struct LegendMarks {
    struct Tick {
        double position;
        /// In title markup.
        std::string label;
    };

    std::vector<Tick> ticks;
    /// Between the labelled ones.
    std::vector<double> minorTicks;
    NumberFormat format;
    /// The smallest and the largest value of the data, in the format of the ticks.
    std::string smallest;
    std::string largest;
    /// Where they are; nothing for one beyond the ends.
    std::optional<double> smallestAt;
    std::optional<double> largestAt;
    /// What values lie beyond an end: none, some that are shown in the colour of the end, or only such as a restriction
    /// hides.
    enum class Beyond { nothing, shown, hidden };
    Beyond below = Beyond::nothing;
    Beyond above = Beyond::nothing;
    bool hasTriangleBelow() const { return below != Beyond::nothing; }
    bool hasTriangleAbove() const { return above != Beyond::nothing; }
    /// The part of the bar with values that a restriction of the plot does not hide.
    double shownFrom = 0.0;
    double shownTo = 1.0;

    /// @param aboutCount how many labelled ticks are wanted
    /// @param digits,minMaxDigits significant digits of their labels, and of the smallest and the largest value
    static LegendMarks of(const vxgraphics3d::SceneGraphPlot& plot, const LegendScale& scale, int aboutCount,
                          int digits, int minMaxDigits);
};

/// The labels of levels, by which a legend of stripes is labelled: all with the same number of decimals, or as powers
/// of ten where the levels are logarithmic and reach far.
std::vector<std::string> levelLabels(const std::vector<double>& levels, int digits);

/// The unit at the end of a title, as UTF-8: in brackets, or after the word "in". Empty if there is none.
std::string unitOf(const std::string& title);

/// A title without the unit at its end: `x` of `x in mm`.
std::string withoutUnit(const std::string& title);

} // namespace vxrenderer
