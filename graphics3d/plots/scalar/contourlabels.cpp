#include "graphics3d/plots/scalar/contourlabels.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>

namespace vxgraphics3d {

namespace {

constexpr int c_numCandidates = 10;

/// Parts of the extent of an axis, by axis.
constexpr double c_lowMargins[] = {0.01, 0.01};
constexpr double c_highMargins[] = {0.05, 0.02};

} // namespace

ContourLabels::ContourLabels(const vxdatacarrier::PostDataView::DoubleArrays& bounds, int numAxes, Margins margins,
                             int numLevels)
    : m_isPlane(numAxes == 2)
{
    for (std::size_t axis = 0; margins == Margins::plane && axis < std::size(c_lowMargins); ++axis) {
        const double low = bounds[axis][0];
        const double high = bounds[axis][1];
        const double extent = high - low;
        m_inner.push_back({low + c_lowMargins[axis] * extent, high - extent * c_highMargins[axis]});
    }
    m_placed.reserve(static_cast<std::size_t>(numLevels));
    initstate_r(0, m_state, sizeof m_state, &m_random);
}

std::size_t ContourLabels::randomBelow(int count)
{
    std::int32_t number = 0;
    random_r(&m_random, &number);
    return static_cast<std::size_t>(number % count);
}

int ContourLabels::penaltyOf(const PointPositions& points, std::size_t point) const
{
    const double* const axes[] = {points.x, points.y};
    int penalty = 0;
    for (std::size_t axis = 0; axis < m_inner.size(); ++axis) {
        const double position = axes[axis][point];
        if (!(position >= m_inner[axis].low && position <= m_inner[axis].high)) {
            --penalty;
        }
    }
    return penalty;
}

double ContourLabels::distanceOf(const Vector3f& position) const
{
    if (m_placed.empty()) {
        return 0.0;
    }
    float smallest = std::numeric_limits<float>::max();
    for (const Vector3f& placed : m_placed) {
        Vector3f difference = position - placed;
        if (m_isPlane) {
            difference.y *= 2.0f;
        }
        smallest = std::min(smallest, difference.length());
    }
    return static_cast<double>(smallest);
}

Vector3f ContourLabels::place(const PointPositions& points)
{
    Vector3f best;
    int bestPenalty = -1;
    double bestDistance = -1.0;
    for (int i = 0; points.count > 0 && i < c_numCandidates; ++i) {
        const std::size_t point = randomBelow(points.count);
        const Vector3f candidate = points.at(point);
        const int penalty = penaltyOf(points, point);
        const double distance = distanceOf(candidate);
        if (penalty > bestPenalty || (penalty == bestPenalty && distance > bestDistance)) {
            best = candidate;
            bestPenalty = penalty;
            bestDistance = distance;
        }
    }
    m_placed.push_back(best);
    return best;
}

} // namespace vxgraphics3d
