#include "graphics3d/overlays/splinetessellator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace vxgraphics3d {

namespace {

using vxdatacarrier::BoundingBox2D;
using Edge = SplineTessellator::Edge;

/// Values of the B-splines of a degree p that are not zero at u, in p + 1 elements of `basis`.
/// @param knots the knots from span + 1 - p to span + p
/// @param left,right p + 1 elements of working memory each
void basisAt(double u, const double* knots, std::size_t p, double* basis, double* left, double* right)
{
    const double* after = knots + p;
    basis[0] = 1.0;
    for (std::size_t j = 1; j <= p; ++j) {
        left[j] = u - knots[p - j];
        right[j] = after[j - 1] - u;
        double saved = 0.0;
        for (std::size_t r = 0; r < j; ++r) {
            const double part = basis[r] / (right[r + 1] + left[j - r]);
            basis[r] = saved + right[r + 1] * part;
            saved = left[j - r] * part;
        }
        basis[j] = saved;
    }
}

CurvePoint curvePoint(const Edge& edge, double u, double* memory)
{
    const auto p = static_cast<std::size_t>(edge.m_degree);
    const std::vector<double>& knots = edge.m_knots;
    const auto last = static_cast<std::size_t>(std::upper_bound(knots.begin(), knots.end(), u) - knots.begin()) - 1;
    const std::size_t span = std::clamp(last, p, knots.size() - p - 2);
    double* basis = memory;
    basisAt(u, knots.data() + span + 1 - p, p, basis, memory + p + 1, memory + 2 * (p + 1));

    std::array<double, 3> sums = {};
    for (std::size_t row = 0; row < sums.size(); ++row) {
        const double* values = edge.m_controlPoints[row].data() + span - p;
        for (std::size_t i = 0; i <= p; ++i) {
            sums[row] += basis[i] * values[i];
        }
    }
    return {sums[0] / sums[2], sums[1] / sums[2]};
}

bool isInside(const BoundingBox2D& box, double x, double y)
{
    return static_cast<double>(box.m_xMin) <= x && x <= static_cast<double>(box.m_xMax) &&
           static_cast<double>(box.m_yMin) <= y && y <= static_cast<double>(box.m_yMax);
}

bool isInside(const BoundingBox2D& box, const Vector3f& point)
{
    return isInside(box, static_cast<double>(point.x), static_cast<double>(point.y));
}

/// Whether the chord from a to b may replace the curve with the given middle.
bool isFlat(const Vector3f& a, const CurvePoint& middle, const Vector3f& b, double tolerance)
{
    const double x = static_cast<double>((a.x + b.x) / 2);
    const double y = static_cast<double>((a.y + b.y) / 2);
    return std::abs(middle.x - x) <= tolerance && std::abs(middle.y - y) <= tolerance;
}

Vector3f narrowed(const CurvePoint& point)
{
    return {point.x, point.y, 0.0};
}

} // namespace

CurvePoint curvePoint(const Edge& edge, double u)
{
    constexpr int c_mostOnStack = 9;
    if (edge.m_degree <= c_mostOnStack) {
        std::array<double, 3 * (c_mostOnStack + 1)> memory;
        return curvePoint(edge, u, memory.data());
    }
    std::vector<double> memory(3 * (static_cast<std::size_t>(edge.m_degree) + 1));
    return curvePoint(edge, u, memory.data());
}

const std::vector<Vector3f>& SplineTessellator::tessellate(const Edge& edge, double tolerance, const BoundingBox2D& box,
                                                           int limit)
{
    m_parameters.clear();
    m_points.clear();
    m_polyline.clear();

    const std::vector<double>& knots = edge.m_knots;
    const auto p = static_cast<std::size_t>(edge.m_degree);
    m_parameters.push_back(knots[p]);
    for (std::size_t i = p + 1; i < knots.size() - p; ++i) {
        const double a = knots[i - 1];
        const double b = knots[i];
        for (int j = 0; j <= edge.m_degree - 2; ++j) {
            m_parameters.push_back(a + (j + 1) * (b - a) / edge.m_degree);
        }
        m_parameters.push_back(b);
    }
    std::reverse(m_parameters.begin(), m_parameters.end());
    for (const double t : m_parameters) {
        m_points.push_back(narrowed(curvePoint(edge, t)));
    }

    double u = m_parameters.back();
    m_parameters.pop_back();
    m_polyline.push_back(m_points.back());
    m_points.pop_back();
    int refinements = 0;
    while (!m_parameters.empty()) {
        const double v = m_parameters.back();
        const double m = (u + v) / 2;
        const CurvePoint middle = curvePoint(edge, m);
        const Vector3f a = m_polyline.back();
        const Vector3f b = m_points.back();
        const bool isOutside = !isInside(box, a) && !isInside(box, middle.x, middle.y) && !isInside(box, b);
        if (refinements > limit || isOutside || isFlat(a, middle, b, tolerance)) {
            u = v;
            m_polyline.push_back(b);
            m_parameters.pop_back();
            m_points.pop_back();
        } else {
            m_parameters.push_back(m);
            m_points.push_back(narrowed(middle));
            ++refinements;
        }
    }
    return m_polyline;
}

} // namespace vxgraphics3d
