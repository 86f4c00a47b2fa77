#include "producer/recordlimits.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace vxproducer {

void ValueRange::merge(const ValueRange& other)
{
    min = std::min(min, other.min);
    max = std::max(max, other.max);
}

ValueRange finiteRange(const std::vector<double>& values)
{
    constexpr double largest = std::numeric_limits<double>::max();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    // Eight ranges side by side keep the compiler free to work on several values at once, without which each value
    // would wait for the comparison of the one before.
    constexpr std::size_t lanes = 8;
    double low[lanes];
    double high[lanes];
    std::fill_n(low, lanes, infinity);
    std::fill_n(high, lanes, -infinity);
    const auto take = [&](std::size_t lane, double value) {
        // Written so that no comparison with a NaN holds.
        const double lowest = value >= -largest ? value : infinity;
        const double highest = value <= largest ? value : -infinity;
        low[lane] = lowest < low[lane] ? lowest : low[lane];
        high[lane] = highest > high[lane] ? highest : high[lane];
    };
    const std::size_t whole = values.size() / lanes * lanes;
    for (std::size_t i = 0; i < whole; i += lanes) {
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            take(lane, values[i + lane]);
        }
    }
    for (std::size_t i = whole; i < values.size(); ++i) {
        take(i - whole, values[i]);
    }
    return {*std::min_element(low, low + lanes), *std::max_element(high, high + lanes)};
}

vxdatacarrier::PostDataObject::DoubleArrays boundsOf(const vxdatacarrier::PostDataObject& record)
{
    std::vector<ValueRange> ranges;
    for (const auto& axes : record.m_coordinates) {
        ranges.resize(std::max(ranges.size(), axes->size()));
        for (std::size_t axis = 0; axis < axes->size(); ++axis) {
            ranges[axis].merge(finiteRange((*axes)[axis]));
        }
    }
    vxdatacarrier::PostDataObject::DoubleArrays bounds;
    bounds.reserve(ranges.size());
    for (const ValueRange& range : ranges) {
        bounds.push_back(range.isEmpty() ? std::vector<double>{0, 0} : std::vector<double>{range.min, range.max});
    }
    return bounds;
}

void requireInside(const vxdatacarrier::PostDataObject::IntArrays& corners, std::size_t numPoints, const char* field,
                   std::size_t group)
{
    // A negative index is a large one without sign.
    const auto number = [](int index) { return static_cast<unsigned>(index); };
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        const std::vector<int>& indices = corners[corner];
        unsigned largest = 0;
        for (const int index : indices) {
            largest = std::max(largest, number(index));
        }
        if (!indices.empty() && largest >= numPoints) {
            const auto found =
                std::find_if(indices.begin(), indices.end(), [&](int index) { return number(index) >= numPoints; });
            throw std::out_of_range("group " + std::to_string(group) + ": " + field + "[" + std::to_string(corner) +
                                    "][" + std::to_string(found - indices.begin()) + "] is point " +
                                    std::to_string(*found) + ", but the group has " +
                                    (numPoints == 0 ? "no points" : "points 0 to " + std::to_string(numPoints - 1)));
        }
    }
}

} // namespace vxproducer
