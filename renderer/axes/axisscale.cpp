#include "renderer/axes/axisscale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace vxrenderer {
namespace {

/// Limits of the number of ticks that is asked for. `makeTicks` rounds the step, so it may give fewer, but at least one
/// when three are asked for.
constexpr int c_mostTicks = 100;
constexpr int c_fewestTicks = 3;
/// With a single label an axis has no scale.
constexpr std::size_t c_fewestLabels = 2;
/// Numbers of ticks to ask for on an axis on which coarser ticks leave fewer than two labels: finer ones come closer to
/// its ends.
constexpr int c_finerTicks[] = {5, 10, 20};
/// With fewer decades than this, a logarithmic scale shows numbers instead of powers.
constexpr double c_fewDecades = 2.0;
/// Decimal logarithms of numbers that a double holds.
constexpr double c_largestLog = 300.0;
/// Decades are counted one by one up to here; no data has such logarithms.
constexpr double c_farthestDecade = 1e9;

/// The next of 1, 2, 5, 10, 20 ... that is at least `smallest`.
std::int64_t roundFactor(double smallest)
{
    for (std::int64_t power = 1;; power *= 10) {
        for (const std::int64_t mantissa : {1, 2, 5}) {
            if (static_cast<double>(mantissa * power) >= smallest || power > 1'000'000'000'000'000) {
                return mantissa * power;
            }
        }
    }
}

class ScaleFiller {
public:
    explicit ScaleFiller(const AxisScale& scale)
        : m_scale(scale),
          m_pixels(scale.length / (scale.high - scale.low)),
          m_wanted(std::clamp(static_cast<int>(scale.length / scale.tickDistance), c_fewestTicks, c_mostTicks))
    {}

    AxisTicks fill()
    {
        if (m_scale.isLog) {
            fillLogarithmic();
        } else if (!(m_scale.spacing > 0.0) || !fillMultiples()) {
            fillLinear();
        }
        addExtra();
        thinOut();
        return std::move(m_result);
    }

private:
    /// What a label covers, in pixels.
    struct Interval {
        double low;
        double high;
    };

    Interval intervalOf(const AxisTick& tick) const
    {
        const double half = 0.5 * m_scale.labelLength(tick.label);
        return {tick.position * m_pixels - half, tick.position * m_pixels + half};
    }

    /// Which labels of some ticks are kept: every n-th one, and from which one on.
    struct Thinning {
        std::size_t step = 0;
        std::size_t first = 0;
        std::size_t numLabels = 0;

        /// Whether at least two labels are left.
        bool isScale() const { return step > 0; }
        bool keepsAll() const { return step == 1; }
    };

    /// As many labels as have space next to each other.
    Thinning thinningOf(const std::vector<AxisTick>& ticks) const
    {
        std::vector<Interval> labels;
        for (const AxisTick& tick : ticks) {
            if (!tick.label.empty()) {
                labels.push_back(intervalOf(tick));
            }
        }
        for (std::size_t step = 1; step < labels.size(); ++step) {
            for (std::size_t first = 0; first < step && first + step < labels.size(); ++first) {
                bool fits = true;
                for (std::size_t i = first + step; i < labels.size() && fits; i += step) {
                    fits = labels[i - step].high <= labels[i].low;
                }
                if (fits) {
                    return {step, first, labels.size()};
                }
            }
        }
        return {0, 0, labels.size()};
    }

    bool isInside(double position) const
    {
        const double slack = 1e-6 * (m_scale.high - m_scale.low);
        return position >= m_scale.low - slack && position <= m_scale.high + slack;
    }

    /// Takes over ticks as the result, with as many of their labels as fit, unless fewer than two do and the ticks
    /// taken before, which are finer, have more.
    /// @return whether no coarser ones need be tried, because all labels fit and they are enough
    bool take(std::vector<AxisTick> ticks, int exponent = 0)
    {
        const Thinning thinning = thinningOf(ticks);
        if (thinning.isScale()) {
            std::size_t index = 0;
            for (AxisTick& tick : ticks) {
                if (!tick.label.empty() && index++ % thinning.step != thinning.first) {
                    tick.label.clear();
                }
            }
        } else if (m_isScale || (thinning.numLabels == 0 && !m_result.ticks.empty())) {
            return false;
        }
        m_result = {std::move(ticks), exponent};
        m_isScale = thinning.isScale();
        return thinning.keepsAll();
    }

    /// Takes over ticks that are finer than all before if they alone leave the labels that a scale needs.
    void takeFiner(std::vector<AxisTick> ticks, int exponent = 0)
    {
        if (!m_isScale && thinningOf(ticks).isScale()) {
            take(std::move(ticks), exponent);
        }
    }

    /// Takes over the coarsest ticks that a scale can do with.
    /// @param make the ticks for a wanted number of them
    template <class Make>
    void takeBest(const Make& make)
    {
        for (int count = m_wanted; count > 0; count = count * 3 / 4) {
            const auto& [ticks, exponent] = make(count);
            if (take(ticks, exponent)) {
                return;
            }
        }
        for (const int count : c_finerTicks) {
            if (!m_isScale) {
                const auto& [ticks, exponent] = make(count);
                takeFiner(ticks, exponent);
                // Lines that close would only hide the scene.
                std::erase_if(m_result.ticks, [this](const AxisTick& t) { return m_isScale && t.label.empty(); });
            }
        }
    }

    static std::vector<AxisTick> ticksOf(const Ticks& ticks)
    {
        std::vector<AxisTick> result;
        for (const Ticks::Tick& tick : ticks.ticks) {
            result.push_back({tick.value, tick.label});
        }
        return result;
    }

    void fillLinear()
    {
        takeBest([this](int count) {
            const Ticks ticks = makeTicks(m_scale.low, m_scale.high, count, m_scale.digits, m_scale.steps);
            return AxisTicks{ticksOf(ticks), ticks.exponent};
        });
    }

    /// @return whether the spacing leads to enough lines for a scale
    bool fillMultiples()
    {
        const double lines = (m_scale.high - m_scale.low) / m_scale.spacing;
        const auto thinning = static_cast<double>(roundFactor(lines * m_scale.closestLines / m_scale.length));
        const double spacing = m_scale.spacing * thinning;
        const Ticks ticks = makeMultiples(m_scale.low, m_scale.high, spacing, m_scale.digits);
        if (ticks.ticks.size() < c_fewestLabels) {
            return false;
        }
        const std::vector<AxisTick> all = ticksOf(ticks);
        for (std::int64_t factor = 1; factor <= static_cast<std::int64_t>(all.size());
             factor = roundFactor(static_cast<double>(factor) + 0.5)) {
            std::vector<AxisTick> some = all;
            for (AxisTick& tick : some) {
                if (std::llround(tick.position / spacing) % factor != 0) {
                    tick.label.clear();
                }
            }
            if (take(std::move(some), ticks.exponent)) {
                break;
            }
        }
        return true;
    }

    void fillLogarithmic()
    {
        const double decades = m_scale.high - m_scale.low;
        const double largest = std::max(std::abs(m_scale.low), std::abs(m_scale.high));
        if (decades < c_fewDecades && largest < c_largestLog && (fillNumbers() || fillValuesWithinDecade())) {
            return;
        }
        fillDecades();
        if (decades < c_fewDecades && largest < c_largestLog) {
            takeFiner(numbers());
        }
    }

    /// 1, 2 and 5 times powers of ten.
    std::vector<AxisTick> numbers() const
    {
        std::vector<AxisTick> ticks;
        const auto first = static_cast<int>(std::floor(m_scale.low));
        for (int decade = first; decade <= static_cast<int>(std::ceil(m_scale.high)); ++decade) {
            for (int mantissa = 1; mantissa < 10; ++mantissa) {
                const double position = decade + std::log10(mantissa);
                const bool isLabelled = mantissa == 1 || mantissa == 2 || mantissa == 5;
                if (isInside(position) && (isLabelled || hasSpaceForMinorLines())) {
                    ticks.push_back({position, isLabelled ? logLabel(mantissa, decade) : "", !isLabelled});
                }
            }
        }
        return ticks;
    }

    /// @return whether there are at least three numbers, and space for them
    bool fillNumbers()
    {
        std::vector<AxisTick> ticks = numbers();
        const Thinning thinning = thinningOf(ticks);
        return thinning.numLabels >= 3 && thinning.keepsAll() && take(std::move(ticks));
    }

    /// Round values as on a linear scale.
    /// @return whether there are any
    bool fillValuesWithinDecade()
    {
        if (m_scale.high - m_scale.low >= 1.0) {
            return false;
        }
        takeBest([this](int count) {
            const Ticks values =
                makeTicks(std::pow(10.0, m_scale.low), std::pow(10.0, m_scale.high), count, m_scale.digits);
            AxisTicks result = {ticksOf(values), values.exponent};
            for (AxisTick& tick : result.ticks) {
                tick.position = std::log10(tick.position);
            }
            return result;
        });
        return !m_result.ticks.empty();
    }

    void fillDecades()
    {
        if (std::max(std::abs(m_scale.low), std::abs(m_scale.high)) > c_farthestDecade) {
            return;
        }
        const auto factor = [&](double pixels) { return static_cast<double>(roundFactor(pixels / m_pixels)); };
        const double closest = factor(m_scale.closestLines);
        // A third of the range holds one of its multiples for certain.
        double labelled = std::min(factor(0.6 * m_scale.tickDistance),
                                   static_cast<double>(roundFactor((m_scale.high - m_scale.low) / 3.0)));
        // Multiples of more than the range are never two.
        while (!take(decades(closest, labelled)) && labelled <= m_scale.high - m_scale.low) {
            labelled = static_cast<double>(roundFactor(labelled + 0.5));
        }
        takeFiner(decades(closest, closest));
        if (closest == 1.0 && hasSpaceForMinorLines()) {
            addMinorLines();
        }
    }

    std::vector<AxisTick> decades(double step, double labelled) const
    {
        std::vector<AxisTick> ticks;
        // Every labelled decade must be among the lines.
        step = std::fmod(labelled, step) == 0.0 ? step : labelled;
        for (double decade = std::ceil(m_scale.low / step - 1e-6) * step; isInside(decade); decade += step) {
            const bool isLabelled = std::fmod(decade, labelled) == 0.0;
            ticks.push_back({decade, isLabelled ? powerText(std::llround(decade)) : "", !isLabelled});
        }
        return ticks;
    }

    bool hasSpaceForMinorLines() const { return m_pixels * std::log10(10.0 / 9.0) >= m_scale.closestLines; }

    void addMinorLines()
    {
        // By number: far from zero, a double does not change when one is added.
        const double first = std::floor(m_scale.low);
        const auto numDecades = static_cast<int>(std::floor(m_scale.high) - first) + 1;
        for (int i = 0; i < numDecades; ++i) {
            const double decade = first + i;
            for (int mantissa = 2; mantissa < 10; ++mantissa) {
                if (const double position = decade + std::log10(mantissa); isInside(position)) {
                    m_result.ticks.push_back({position, "", true});
                }
            }
        }
        sort();
    }

    /// A number of one digit and a power of ten: as a plain number where that is short.
    std::string logLabel(int mantissa, int decade) const
    {
        if (decade > -4 && decade < 5) {
            return numberText(mantissa * std::pow(10.0, decade), m_scale.digits + 5);
        }
        return (mantissa == 1 ? "" : std::to_string(mantissa) + "\\times") + powerText(decade);
    }

    void addExtra()
    {
        const double unit = std::pow(10.0, m_result.exponent);
        for (const double value : m_scale.extra) {
            const double position = m_scale.isLog ? std::log10(value) : value;
            if (!std::isfinite(position) || !isInside(position)) {
                continue;
            }
            const auto isHere = [&](const AxisTick& tick) {
                return std::abs(tick.position - position) * m_pixels < 0.5;
            };
            if (std::none_of(m_extra.begin(), m_extra.end(), isHere)) {
                std::erase_if(m_result.ticks, isHere);
                m_extra.push_back({position, numberText(value / unit, m_scale.digits)});
            }
        }
    }

    /// Removes the labels that still overlap, those of extra positions last.
    void thinOut()
    {
        std::vector<Interval> taken;
        const auto keep = [&](AxisTick& tick) {
            if (tick.label.empty()) {
                return;
            }
            const Interval place = intervalOf(tick);
            const auto overlaps = [&](const Interval& other) {
                return place.low < other.high && other.low < place.high;
            };
            if (std::any_of(taken.begin(), taken.end(), overlaps)) {
                tick.label.clear();
            } else {
                taken.push_back(place);
            }
        };
        std::for_each(m_extra.begin(), m_extra.end(), keep);
        std::for_each(m_result.ticks.begin(), m_result.ticks.end(), keep);
        m_result.ticks.insert(m_result.ticks.end(), m_extra.begin(), m_extra.end());
        sort();
    }

    void sort()
    {
        std::stable_sort(m_result.ticks.begin(), m_result.ticks.end(),
                         [](const AxisTick& a, const AxisTick& b) { return a.position < b.position; });
    }

    const AxisScale& m_scale;
    /// Per unit of the scale.
    double m_pixels;
    /// Number of ticks that suits the length.
    int m_wanted;
    AxisTicks m_result;
    /// Whether the result has at least two labels that fit.
    bool m_isScale = false;
    std::vector<AxisTick> m_extra;
};

} // namespace

AxisTicks makeAxisTicks(const AxisScale& scale)
{
    const double range = scale.high - scale.low;
    const bool isUsable = std::isfinite(scale.low) && std::isfinite(scale.high) && range > 0.0 &&
                          std::isfinite(scale.length) && scale.length >= 1.0;
    // Without a distance that a double can tell apart there is nothing to write on the scale.
    const double largest = std::max(std::abs(scale.low), std::abs(scale.high));
    if (!isUsable || !std::isfinite(range) || range <= 1e-12 * largest || range < 1e-290) {
        return {};
    }
    return ScaleFiller(scale).fill();
}

} // namespace vxrenderer
