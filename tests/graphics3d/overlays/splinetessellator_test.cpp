#include "graphics3d/overlays/splinetessellator.h"

#include "tests/support/editrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::BoundingBox2D;

BoundingBox2D boxOf(float xMin, float xMax, float yMin, float yMax)
{
    BoundingBox2D box;
    box.m_xMin = xMin;
    box.m_xMax = xMax;
    box.m_yMin = yMin;
    box.m_yMax = yMax;
    return box;
}

/// (2 u, 4 u (1 - u)).
EditEdge parabola()
{
    return editEdge(2, {{0, 0, 1}, {1, 2, 1}, {2, 0, 1}});
}

std::vector<Vector3f> polylineOf(const EditEdge& edge, double tolerance, const BoundingBox2D& box)
{
    return SplineTessellator().tessellate(edge, tolerance, box);
}

/// The definition of the B-spline of a degree at a knot, where 0 / 0 is 0.
long double basis(const EditEdge& edge, std::size_t i, int degree, long double u)
{
    const auto knot = [&](std::size_t index) { return static_cast<long double>(edge.m_knots[index]); };
    if (degree == 0) {
        const long double last = knot(edge.m_knots.size() - 1);
        const bool isLast = knot(i) < knot(i + 1) && knot(i + 1) == last && u == last;
        return (knot(i) <= u && u < knot(i + 1)) || isLast ? 1 : 0;
    }
    const auto part = [&](long double above, long double below, std::size_t next) {
        return below == 0 ? 0 : above / below * basis(edge, next, degree - 1, u);
    };
    const std::size_t end = i + static_cast<std::size_t>(degree);
    return part(u - knot(i), knot(end) - knot(i), i) + part(knot(end + 1) - u, knot(end + 1) - knot(i + 1), i + 1);
}

TEST(SplineTessellator, evaluatesTheDefinitionOfRationalSplines)
{
    RandomNumbers random(1);
    for (int degree = 1; degree <= 12; ++degree) {
        const EditEdge edge = randomEdge(random, degree);
        for (const float at : {0.0f, random.uniform(0, 1), std::floor(random.uniform(0, 4)) / 4, 1.0f}) {
            const double u = edge.m_knots.back() * static_cast<double>(at);
            std::array<long double, 3> sums = {};
            for (std::size_t i = 0; i < edge.m_controlPoints[0].size(); ++i) {
                const long double value = basis(edge, i, degree, static_cast<long double>(u));
                for (std::size_t row = 0; row < 3; ++row) {
                    sums[row] += value * static_cast<long double>(edge.m_controlPoints[row][i]);
                }
            }
            const CurvePoint point = curvePoint(edge, u);
            EXPECT_NEAR(point.x, static_cast<double>(sums[0] / sums[2]), 1e-12) << degree << " at " << u;
            EXPECT_NEAR(point.y, static_cast<double>(sums[1] / sums[2]), 1e-12) << degree << " at " << u;
        }
    }
}

TEST(SplineTessellator, halvesUntilMiddlesAreWithinTheTolerance)
{
    const BoundingBox2D all = boxOf(0, 2, 0, 1);
    const std::vector<Vector3f> coarse = {{0.0f, 0.0f, 0.0f}, {1.0f, 1.0f, 0.0f}, {2.0f, 0.0f, 0.0f}};
    const std::vector<Vector3f> fine = {
        {0.0f, 0.0f, 0.0f}, {0.5f, 0.75f, 0.0f}, {1.0f, 1.0f, 0.0f}, {1.5f, 0.75f, 0.0f}, {2.0f, 0.0f, 0.0f}};
    // The middle of each half is 1/4 above its chord, that of each quarter 1/16.
    EXPECT_EQ(polylineOf(parabola(), 0.25, all), coarse);
    EXPECT_EQ(polylineOf(parabola(), 0.2499, all), fine);
    EXPECT_EQ(polylineOf(parabola(), 0.0625, all), fine);
    EXPECT_EQ(polylineOf(parabola(), 0.0624, all).size(), 9);
    // A part of which neither ends nor middle are in the box stays coarse: the left half here.
    EXPECT_EQ(polylineOf(parabola(), 0.0625, boxOf(1.75f, 2, 0, 1)),
              (std::vector<Vector3f>{coarse[0], coarse[1], fine[3], coarse[2]}));
    EXPECT_EQ(polylineOf(parabola(), 1e-9, boxOf(5, 6, 5, 6)), coarse);
    // Bounds are included.
    EXPECT_EQ(polylineOf(parabola(), 0.2, boxOf(2, 3, -1, 0)).size(), 4);
    // Nothing is within a negative tolerance.
    EXPECT_EQ(polylineOf(parabola(), -1, all).size(), 3 + 101);
    EXPECT_EQ(SplineTessellator().tessellate(parabola(), -1, all, 6).size(), 3 + 7);
}

TEST(SplineTessellator, keepsKnotSpansOfStraightEdgesWhole)
{
    EditEdge edge = editEdge(1, {{0, 0, 1}, {1, 3, 1}, {1, 3, 1}, {4, 3, 1}});
    EXPECT_EQ(polylineOf(edge, 0, boxOf(0, 4, 0, 3)),
              (std::vector<Vector3f>{{0.0f, 0.0f, 0.0f}, {1.0f, 3.0f, 0.0f}, {1.0f, 3.0f, 0.0f}, {4.0f, 3.0f, 0.0f}}));
    // With unequal weights the middle of the parameters is not the middle of the line.
    edge = editEdge(1, {{0, 0, 1}, {1, 0, 3}});
    EXPECT_GT(polylineOf(edge, 0.01, boxOf(0, 1, 0, 0)).size(), 2);
}

/// The rule by which a part is split, written as a recursion, with the parameters of the vertices.
class Recursion {
public:
    Recursion(const EditEdge& edge, double tolerance, const BoundingBox2D& box)
        : m_edge(edge), m_tolerance(tolerance), m_box(box)
    {
        const auto p = static_cast<std::size_t>(edge.m_degree);
        m_parameters.push_back(edge.m_knots[p]);
        for (std::size_t i = p; i + p + 1 < edge.m_knots.size(); ++i) {
            double start = edge.m_knots[i];
            for (int part = 1; part <= edge.m_degree; ++part) {
                const double length = edge.m_knots[i + 1] - edge.m_knots[i];
                const double end =
                    part == edge.m_degree ? edge.m_knots[i + 1] : edge.m_knots[i] + part * length / edge.m_degree;
                split(start, end);
                start = end;
            }
        }
    }

    const std::vector<double>& parameters() const { return m_parameters; }
    int refinements() const { return m_refinements; }

    Vector3f at(double u) const
    {
        const CurvePoint point = curvePoint(m_edge, u);
        return {point.x, point.y, 0.0};
    }
    bool isInside(const CurvePoint& point) const
    {
        return point.x >= static_cast<double>(m_box.m_xMin) && point.x <= static_cast<double>(m_box.m_xMax) &&
               point.y >= static_cast<double>(m_box.m_yMin) && point.y <= static_cast<double>(m_box.m_yMax);
    }
    bool isInside(double u) const { return isInside({static_cast<double>(at(u).x), static_cast<double>(at(u).y)}); }
    /// How far the middle of a part is from that of its chord, in x or y.
    double deviation(double u, double v) const
    {
        const CurvePoint middle = curvePoint(m_edge, (u + v) / 2);
        const Vector3f mean = (at(u) + at(v)) / 2.0f;
        return std::max(std::abs(middle.x - static_cast<double>(mean.x)),
                        std::abs(middle.y - static_cast<double>(mean.y)));
    }

private:
    void split(double u, double v)
    {
        const CurvePoint middle = curvePoint(m_edge, (u + v) / 2);
        const bool matters = isInside(u) || isInside(middle) || isInside(v);
        if (m_refinements <= 100 && matters && deviation(u, v) > m_tolerance) {
            ++m_refinements;
            split(u, (u + v) / 2);
            split((u + v) / 2, v);
        } else {
            m_parameters.push_back(v);
        }
    }

    const EditEdge& m_edge;
    double m_tolerance;
    const BoundingBox2D& m_box;
    std::vector<double> m_parameters;
    int m_refinements = 0;
};

TEST(SplineTessellator, equalsTheRecursionAndKeepsTheTolerance)
{
    RandomNumbers random(2);
    SplineTessellator tessellator;
    int limited = 0;
    int outside = 0;
    for (int run = 0; run < 600; ++run) {
        const EditEdge edge = randomEdge(random, 1 + run % 12);
        const float side = run % 3 == 0 ? 0.5f : 1.0f;
        const BoundingBox2D box = boxOf(0, side, 0, side);
        const double tolerance = std::pow(10.0, static_cast<double>(random.uniform(-4, -1)));
        const std::vector<Vector3f>& polyline = tessellator.tessellate(edge, tolerance, box);
        const Recursion recursion(edge, tolerance, box);
        ASSERT_EQ(polyline.size(), recursion.parameters().size()) << run;
        ASSERT_LE(recursion.refinements(), 101);
        for (std::size_t i = 0; i < polyline.size(); ++i) {
            ASSERT_EQ(polyline[i], recursion.at(recursion.parameters()[i])) << run << ' ' << i;
        }
        if (recursion.refinements() > 100) {
            ++limited;
        } else if (side < 1) {
            ++outside;
        } else {
            for (std::size_t i = 1; i < polyline.size(); ++i) {
                ASSERT_LE(recursion.deviation(recursion.parameters()[i - 1], recursion.parameters()[i]), tolerance);
            }
        }
    }
    EXPECT_GT(limited, 5);
    EXPECT_GT(outside, 50);
}

TEST(SplineTessellator, keepsArcsOnTheirCircles)
{
    const double w = std::sqrt(0.5);
    EditEdge circle = editEdge(2, {{1, 0, 1}, {1, 1, w}, {0, 1, 1}, {-1, 1, w}, {-1, 0, 1}});
    circle.m_knots = {0, 0, 0, 1, 1, 2, 2, 2};
    for (const double tolerance : {1e-1, 1e-2, 1e-3}) {
        const std::vector<Vector3f> polyline = polylineOf(circle, tolerance, boxOf(-1, 1, 0, 1));
        for (std::size_t i = 0; i < polyline.size(); ++i) {
            EXPECT_NEAR(std::hypot(polyline[i].x, polyline[i].y), 1, 1e-7) << i;
            if (i > 0) {
                // The chord's middle is no further from the circle than the tolerance in both directions.
                const Vector3f middle = (polyline[i - 1] + polyline[i]) / 2.0f;
                EXPECT_LE(1 - std::hypot(middle.x, middle.y), std::sqrt(2.0) * tolerance) << i;
            }
        }
    }
}

} // namespace
} // namespace vxgraphics3d
