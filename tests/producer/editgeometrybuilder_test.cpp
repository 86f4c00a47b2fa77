#include "producer/editgeometrybuilder.h"

#include "graphics3d/overlays/overlayrenderedit2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxproducer {
namespace {

using Points = std::vector<std::vector<double>>;

/// The control points of an edge as an overlay reports them: x, y and weight of each.
Points controlPointsOf(EditGeometryBuilder& builder, int edge)
{
    vxgraphics3d::OverlayRenderEdit2d curve;
    curve.connectRenderDrawEdit(builder.build());
    Points points;
    curve.getEdgeData(edge, points);
    return points;
}

TEST(EditGeometryBuilder, buildsLinesAndSplinesBetweenVertices)
{
    EditGeometryBuilder builder;
    EXPECT_EQ(builder.addVertex(0, 0), 0);
    EXPECT_EQ(builder.addVertex(2, 1), 1);
    EXPECT_EQ(builder.addLine(0, 1), 0);
    const std::vector<double> knots = {0, 0, 0, 1, 1, 1};
    EXPECT_EQ(builder.addSpline(1, -1, {2, knots, {2, 3, 4}, {1, 0, 1}, {1, 2, 0.5}}), 1);
    builder.hideEdge(0);
    builder.hideVertex(0);
    const auto record = builder.build();
    EXPECT_TRUE(record->m_edges.at(0).m_hidden);
    EXPECT_TRUE(record->m_vertices.at(0).m_hidden);
    EXPECT_EQ(record->m_edges.at(0).m_knots, (std::vector<double>{0, 0, 1, 1}));
    const auto& spline = record->m_edges.at(1);
    using ControlPoints = EditGeometryBuilder::Record::Edge::ControlPoints;
    EXPECT_EQ(spline.m_controlPoints, (ControlPoints{{{2, 6, 2}, {1, 0, 0.5}, {1, 2, 0.5}}}));
    EXPECT_EQ(spline.m_startVertex, 1);
    EXPECT_EQ(spline.m_endVertex, -1);
    EXPECT_EQ(spline.m_numControlPoints, 3);
    EXPECT_TRUE(builder.build()->m_vertices.empty()) << "the first record was handed over";
    std::vector<float> box;
    record->getBoundingBox(box);
    EXPECT_EQ(box, (std::vector<float>{2, 4, 0, 1})) << "without what is hidden";
}

TEST(EditGeometryBuilder, buildsArcsOfWholeAndPartialEllipses)
{
    const double w = std::sqrt(0.5);
    EditGeometryBuilder builder;
    builder.addVertex(1, 0);
    builder.addVertex(0, 1);
    EXPECT_EQ(builder.addArc(0, 1, 0, 0), 0);
    const Points quarter = controlPointsOf(builder, 0);
    const Points expected = {{1, 0, 1}, {1, 1, w}, {0, 1, 1}};
    ASSERT_EQ(quarter.size(), 3);
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            EXPECT_NEAR(quarter[i][j], expected[i][j], 1e-15);
        }
    }
    EXPECT_EQ(quarter[2], (std::vector<double>{0, 1, 1})) << "ends are exactly at their vertices";

    // Polylines stay on a turned ellipse, whatever the part of it, and go counter-clockwise.
    const EditEllipse ellipse = {3, -2, 5, 0.5, 0.7};
    const auto vertexAt = [&](double at) {
        const double u = ellipse.semiAxisX * std::cos(at);
        const double v = ellipse.semiAxisY * std::sin(at);
        return builder.addVertex(ellipse.centreX + u * std::cos(ellipse.angle) - v * std::sin(ellipse.angle),
                                 ellipse.centreY + u * std::sin(ellipse.angle) + v * std::cos(ellipse.angle));
    };
    const std::vector<double> sweeps = {0.1, 1.5, std::numbers::pi / 2, 3, std::numbers::pi, 5, 6.28};
    for (std::size_t i = 0; i <= sweeps.size(); ++i) {
        const int start = vertexAt(-2.5);
        builder.addEllipse(start, i < sweeps.size() ? vertexAt(-2.5 + sweeps[i]) : start, ellipse);
    }
    vxgraphics3d::OverlayRenderEdit2d curve;
    curve.connectRenderDrawEdit(builder.build());
    for (int edge = 0; edge < curve.getNEdges(); ++edge) {
        int count = 0;
        const float* xyz = curve.getRenderVertices(count, edge);
        double turned = 0;
        double before = -2.5;
        for (int i = 0; i < count; ++i, xyz += 3) {
            const double dx = static_cast<double>(xyz[0]) - ellipse.centreX;
            const double dy = static_cast<double>(xyz[1]) - ellipse.centreY;
            const double u = (dx * std::cos(ellipse.angle) + dy * std::sin(ellipse.angle)) / ellipse.semiAxisX;
            const double v = (dy * std::cos(ellipse.angle) - dx * std::sin(ellipse.angle)) / ellipse.semiAxisY;
            EXPECT_NEAR(std::hypot(u, v), 1, 2e-6) << edge << ' ' << i;
            const double step = std::remainder(std::atan2(v, u) - before, 2 * std::numbers::pi);
            EXPECT_GE(step, -1e-6);
            turned += step;
            before = std::atan2(v, u);
        }
        const auto i = static_cast<std::size_t>(edge);
        EXPECT_NEAR(turned, i < sweeps.size() ? sweeps[i] : 2 * std::numbers::pi, 1e-5);
    }
}

/// Checks that something is refused with a message, and adds nothing.
template <class Failure>
void expectRefusal(const std::function<void(EditGeometryBuilder&)>& add, const std::string& message)
{
    EditGeometryBuilder builder;
    builder.addVertex(0, 0);
    builder.addVertex(2, 0);
    builder.addVertex(0, 1);
    try {
        add(builder);
        ADD_FAILURE() << "not refused: " << message;
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.what(), message);
    }
    const auto record = builder.build();
    EXPECT_EQ(record->m_vertices.size(), 3);
    EXPECT_TRUE(record->m_edges.empty());
}

TEST(EditGeometryBuilder, refusesWhatDoesNotFitTogether)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    using Builder = EditGeometryBuilder;
    const auto refuse = expectRefusal<std::invalid_argument>;
    refuse([nan](Builder& b) { b.addVertex(0, nan); }, "vertex 3: x or y is not finite");
    refuse([](Builder& b) { b.addLine(1, 1); }, "edge 0: a line needs two different vertices");
    refuse([](Builder& b) { b.addArc(0, 1, 0, 0); }, "edge 0: a semi-axis is not a finite number above 0: 0.000000");
    refuse([](Builder& b) { b.addArc(0, 1, 0.5, 0); },
           "edge 0: endVertex is at 3.000000 of the distance from the centre that it should have");
    refuse(
        [](Builder& b) {
            b.addEllipse(1, 2, {0, 0, 2, 2, 0});
        },
        "edge 0: endVertex is at 0.500000 of the distance from the centre that it should have");
    refuse(
        [nan](Builder& b) {
            b.addEllipse(1, 2, {nan, 0, 2, 1, 0});
        },
        "edge 0: the centre or the angle of the ellipse is not finite");

    const EditSpline good = {2, {0, 0, 0, 1, 1, 1}, {0, 1, 2}, {0, 1, 0}, {1, 1, 1}};
    const auto refuseSpline = [&](const std::function<void(EditSpline&)>& spoil, const std::string& message) {
        EditSpline spline = good;
        spoil(spline);
        refuse([&](Builder& b) { b.addSpline(0, 1, spline); }, "edge 0: " + message);
    };
    refuseSpline([](EditSpline& s) { s.y.pop_back(); }, "y has 2 entries for 3 control points");
    refuseSpline([](EditSpline& s) { s.weights.push_back(1); }, "weights has 4 entries for 3 control points");
    refuseSpline([](EditSpline& s) { s.weights[1] = 0; }, "weights[1] is not a finite number above 0");
    refuseSpline([nan](EditSpline& s) { s.x[1] = nan; }, "x[1] or y[1], times its weight, is not finite");
    refuseSpline([](EditSpline& s) { s.degree = 0; }, "degree 0 is below 1");
    refuseSpline([](EditSpline& s) { s.degree = 101; }, "degree 101 is above 100");
    refuseSpline([](EditSpline& s) { s.degree = 3; }, "controlPoints has 3 entries, which are too few for degree 3");
    refuseSpline([](EditSpline& s) { s = EditSpline(); }, "there are no control points");
    refuseSpline([](EditSpline& s) { s.knots.pop_back(); },
                 "knots has 5 entries, 6 are needed for 3 control points of degree 2");
    refuseSpline([](EditSpline& s) { s.knots[4] = 0.5; }, "knots[4] is less than the knot before it");
    refuseSpline([nan](EditSpline& s) { s.knots[0] = nan; }, "knots[0] is not finite");
    refuseSpline([](EditSpline& s) { s.knots = {0, 0, 1, 1, 1, 1}; },
                 "knots: the last span, from knots[2] to knots[3], has no length");
    refuseSpline([](EditSpline& s) { s.knots[5] = 2; },
                 "knots: the last 3 are not equal, so the curve does not reach its vertex");
    refuseSpline([](EditSpline& s) { s.x[2] = 2.001; },
                 "control point 2 is at (2.001000, 0.000000), its vertex at (2.000000, 0.000000)");

    const auto refuseNumber = expectRefusal<std::out_of_range>;
    refuseNumber([](Builder& b) { b.addLine(0, 3); }, "edge 0: endVertex: there is no vertex 3");
    refuseNumber([](Builder& b) { b.addArc(-1, 0, 0, 0); }, "edge 0: startVertex: there is no vertex -1");
    refuseNumber([&](Builder& b) { b.addSpline(-2, -1, good); }, "edge 0: startVertex: there is no vertex -2");
    refuseNumber([](Builder& b) { b.hideEdge(0); }, "There is no edge 0");
    refuseNumber([](Builder& b) { b.hideVertex(3); }, "There is no vertex 3");
}

} // namespace
} // namespace vxproducer
