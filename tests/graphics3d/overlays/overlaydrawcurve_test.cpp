#include "graphics3d/overlays/overlaydrawcurve.h"

#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using Points = std::vector<Vector3f>;
using Ids = std::set<int>;

Points polyline(const OverlayDrawCurve& curve, int edge)
{
    int count = -1;
    const float* xyz = curve.getRenderVertices(count, edge);
    Points points;
    for (int i = 0; i < count; ++i) {
        points.emplace_back(xyz[3 * i], xyz[3 * i + 1], xyz[3 * i + 2]);
    }
    return points;
}

/// Adds an edge with a polygon of its own between two vertices.
int addEdge(OverlayDrawCurve& curve, int start, int end, std::initializer_list<std::pair<double, double>> polygon)
{
    const int edge = curve.addEdge(start, end);
    for (const auto& [x, y] : polygon) {
        curve.addControlPoint(edge, x, y);
    }
    return edge;
}

TEST(OverlayDrawCurve, formOfAnEdgeFollowsFromTheNumberOfItsControlPoints)
{
    OverlayDrawCurve curve;
    const int start = curve.addVertex(0.0, 0.0);
    const int end = curve.addVertex(4.0, 0.0);
    const int edge = curve.addEdge(start, end);
    EXPECT_EQ(curve.getDegree(edge), -1);
    const std::size_t expected[] = {0, 2, 20, 20, 0};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(curve.addControlPoint(edge, i, 3.0), i) << "ids count on";
        EXPECT_EQ(curve.getDegree(edge), i);
        EXPECT_EQ(polyline(curve, edge).size(), expected[i]) << i;
    }
    EXPECT_EQ(curve.addControlPoint(edge, 9.0, 9.0), -1);
    EXPECT_EQ(curve.getNControlPoints(edge), 5);
    // A refusal costs no id.
    EXPECT_EQ(curve.addControlPoint(curve.addEdge(end, start), 0.0, 0.0), 5);
}

TEST(OverlayDrawCurve, threePointsWithARightAngleGiveAnArcOfACircle)
{
    OverlayDrawCurve curve;
    const int edge =
        addEdge(curve, curve.addVertex(5.0, 1.0), curve.addVertex(2.0, 4.0), {{5.0, 1.0}, {5.0, 4.0}, {2.0, 4.0}});
    const Points arc = polyline(curve, edge);
    ASSERT_EQ(arc.size(), 20u);
    for (const Vector3f& point : arc) {
        EXPECT_NEAR(std::hypot(point.x - 2.0f, point.y - 1.0f), 3.0f, 1e-5f);
        EXPECT_EQ(point.z, 0.0f);
    }
    EXPECT_EQ(arc.front(), Vector3f(5.0f, 1.0f, 0.0f));
    EXPECT_EQ(arc.back(), Vector3f(2.0f, 4.0f, 0.0f));
}

TEST(OverlayDrawCurve, fourPointsGiveACubicCurveAsRepeatedDivisionDoes)
{
    RandomNumbers random(3);
    for (int run = 0; run < 50; ++run) {
        std::vector<std::pair<double, double>> p;
        for (int i = 0; i < 4; ++i) {
            p.emplace_back(random.uniform(-9.0f, 9.0f), random.uniform(-9.0f, 9.0f));
        }
        OverlayDrawCurve curve;
        const int start = curve.addVertex(p[0].first, p[0].second);
        const int edge = addEdge(curve, start, curve.addVertex(p[3].first, p[3].second), {p[0], p[1], p[2], p[3]});
        const Points points = polyline(curve, edge);
        ASSERT_EQ(points.size(), 20u);
        for (std::size_t i = 0; i < 20; ++i) {
            std::vector<std::pair<double, double>> q = p;
            const double t = static_cast<double>(i) / 19.0;
            while (q.size() > 1) {
                for (std::size_t j = 0; j + 1 < q.size(); ++j) {
                    q[j] = {std::lerp(q[j].first, q[j + 1].first, t), std::lerp(q[j].second, q[j + 1].second, t)};
                }
                q.pop_back();
            }
            EXPECT_NEAR(points[i].x, q[0].first, 1e-5);
            EXPECT_NEAR(points[i].y, q[0].second, 1e-5);
        }
    }
}

TEST(OverlayDrawCurve, endsOfAnEdgeAreItsVerticesAndNotItsControlPoints)
{
    OverlayDrawCurve curve;
    const int start = curve.addVertex(0.0, 0.0);
    const int end = curve.addVertex(1.0, 0.0);
    const int line = addEdge(curve, start, end, {{7.0, 7.0}, {8.0, 8.0}});
    EXPECT_EQ(polyline(curve, line), (Points{{0.0f, 0.0f, 0.0f}, {1.0f, 0.0f, 0.0f}}));

    const int arc = addEdge(curve, end, start, {{1.0, 0.0}, {1.0, 1.0}, {0.0, 0.0}});
    const Points before = polyline(curve, arc);
    curve.setControlPoint(arc, 0, 50.0, 50.0);
    curve.setControlPoint(arc, 2, 60.0, 60.0);
    EXPECT_EQ(polyline(curve, arc), before);
    EXPECT_EQ(curve.getControlPoint(arc, 2), Vector3f(60.0f, 60.0f, 0.0f));
    curve.setControlPoint(arc, 1, 2.0, 1.0);
    EXPECT_NE(polyline(curve, arc), before);
}

TEST(OverlayDrawCurve, movedVertexTakesTheLastEdgeOfEachDirectionAlong)
{
    OverlayDrawCurve curve;
    const int middle = curve.addVertex(0.0, 0.0);
    const int left = curve.addVertex(-1.0, 0.0);
    const int right = curve.addVertex(1.0, 0.0);
    const int in = addEdge(curve, left, middle, {{0.0, 0.0}, {0.0, 0.0}});
    const int out = addEdge(curve, middle, right, {{0.0, 0.0}, {0.0, 0.0}});
    const int later = addEdge(curve, middle, left, {{0.0, 0.0}, {0.0, 0.0}});
    const int lone = curve.addVertex(0.0, 9.0);
    curve.setVertex(middle, 0.5, 0.25);
    EXPECT_EQ(polyline(curve, in)[1], Vector3f(0.5f, 0.25f, 0.0f));
    EXPECT_EQ(polyline(curve, out)[0], Vector3f());
    EXPECT_EQ(polyline(curve, later)[0], Vector3f(0.5f, 0.25f, 0.0f));
    curve.setVertex(lone, 3.0, 0.1);
    std::vector<double> position(3, 8.0);
    curve.getVertex(lone, position);
    EXPECT_EQ(position, (std::vector<double>{3.0, 0.1, 8.0}));
}

TEST(OverlayDrawCurve, markOfAnEdgeIncludesItsVerticesAndControlPoints)
{
    OverlayDrawCurve curve;
    for (int i = 0; i < 3; ++i) {
        curve.addVertex(i, 0.0);
    }
    addEdge(curve, 0, 1, {{0.0, 0.0}, {1.0, 0.0}});
    addEdge(curve, 1, 2, {{1.0, 0.0}, {2.0, 1.0}, {2.0, 0.0}});
    curve.setMarkEdge(0, true);
    curve.setMarkEdge(1, true);
    EXPECT_EQ(curve.getMarkedEdges(), (Ids{0, 1}));
    EXPECT_EQ(curve.getMarkedVertices(), (Ids{0, 1, 2}));
    EXPECT_EQ(curve.getMarkedPoints(), (Ids{0, 1, 2, 3, 4}));
    curve.setMarkEdge(1, false);
    EXPECT_EQ(curve.getMarkedEdges(), Ids{0});
    EXPECT_EQ(curve.getMarkedVertices(), Ids{0}) << "the shared vertex loses its mark";
    EXPECT_EQ(curve.getMarkedPoints(), (Ids{0, 1}));
    for (const int edge : {-1, 2}) {
        curve.setMarkEdge(edge, true);
    }
    curve.setVertexMarking(0, false);
    EXPECT_EQ(curve.getMarkedEdges(), Ids{0});
    EXPECT_EQ(curve.getMarkedPoints(), (Ids{0, 1}));
    curve.clearMarkings();
    EXPECT_TRUE(curve.getMarkedEdges().empty() && curve.getMarkedVertices().empty() && curve.getMarkedPoints().empty());
}

TEST(OverlayDrawCurve, findsControlPointsByTheirIds)
{
    OverlayDrawCurve curve;
    curve.addVertex(0.0, 0.0);
    const int a = addEdge(curve, 0, 0, {{1.0, 1.0}});
    const int b = addEdge(curve, 0, 0, {{2.0, 2.0}});
    EXPECT_EQ(curve.addControlPoint(a, 3.0, 3.0), 2);
    EXPECT_EQ(curve.findControlPoint(1), OverlayCurve::ControlPoint(b, 0));
    EXPECT_EQ(curve.findControlPoint(2), OverlayCurve::ControlPoint(a, 1));
    EXPECT_EQ(curve.findControlPoint(3), std::nullopt);
    EXPECT_EQ(curve.findControlPoint(-1), std::nullopt);
    EXPECT_EQ(curve.getControlPointId(a, 1), 2);
    EXPECT_EQ(curve.getControlPointId(b, 1), -1);
}

TEST(OverlayDrawCurve, refusesNumbersThatDoNotExistAndStaysAsItIs)
{
    OverlayDrawCurve curve;
    curve.addVertex(1.0, 2.0);
    addEdge(curve, 0, 0, {{0.0, 0.0}, {1.0, 0.0}});
    EXPECT_THROW(curve.addEdge(0, 1), std::out_of_range);
    EXPECT_THROW(curve.addEdge(-1, 0), std::out_of_range);
    EXPECT_THROW(curve.addControlPoint(1, 0.0, 0.0), std::out_of_range);
    EXPECT_THROW(curve.setVertex(1, 0.0, 0.0), std::out_of_range);
    EXPECT_THROW(curve.setControlPoint(0, 2, 0.0, 0.0), std::out_of_range);
    EXPECT_THROW(static_cast<void>(curve.getDegree(1)), std::out_of_range);
    int count = 0;
    EXPECT_THROW(curve.getRenderVertices(count, -1), std::out_of_range);
    EXPECT_EQ(curve.getNEdges(), 1);
    EXPECT_EQ(curve.getNVertices(), 1);
    EXPECT_EQ(polyline(curve, 0).size(), 2u);
}

} // namespace
} // namespace vxgraphics3d
