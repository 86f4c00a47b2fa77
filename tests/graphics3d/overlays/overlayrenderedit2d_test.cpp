#include "graphics3d/overlays/overlayrenderedit2d.h"

#include "tests/support/editrecord.h"
#include "tests/support/failingallocation.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::RenderDrawEdit2D;
using Polyline = std::vector<Vector3f>;

Polyline polylineOf(const OverlayRenderEdit2d& curve, int edge)
{
    int count = -1;
    const float* values = curve.getRenderVertices(count, edge);
    Polyline polyline;
    for (int i = 0; i < count; ++i, values += 3) {
        polyline.emplace_back(values[0], values[1], values[2]);
    }
    return polyline;
}

std::vector<double> pointOf(const OverlayRenderEdit2d& curve, int edge, int index)
{
    std::vector<double> point(3);
    curve.getControlPoint(edge, index, point);
    return point;
}

void addVertex(Record& record, double x, double y)
{
    record.m_vertices.push_back({.x = x, .y = y});
}

void addEdge(Record& record, EditEdge edge, int start, int end)
{
    edge.m_startVertex = start;
    edge.m_endVertex = end;
    record.m_edges.push_back(std::move(edge));
}

/// A line from vertex 0 to 1, an arc of weight 2 from 1 to 2, a loop at 1, a hidden line from 2 to 1, and a line
/// without vertices.
boost::shared_ptr<Record> sketch()
{
    auto record = boost::make_shared<Record>();
    addVertex(*record, 0, 0);
    addVertex(*record, 2, 0);
    addVertex(*record, 4, 1);
    addEdge(*record, editEdge(1, {{0, 0, 1}, {2, 0, 1}}), 0, 1);
    addEdge(*record, editEdge(2, {{2, 0, 1}, {4, 0, 2}, {4, 1, 4}}), 1, 2);
    addEdge(*record, editEdge(3, {{2, 0, 2}, {3, 1, 1}, {1, 1, 1}, {2, 0, 0.5}}), 1, 1);
    addEdge(*record, editEdge(1, {{4, 1, 1}, {2, 0, 1}}), 2, 1);
    record->m_edges.back().m_hidden = true;
    addEdge(*record, editEdge(1, {{0, 1, 1}, {0, 0.5, 1}}), -1, -1);
    return record;
}

TEST(OverlayRenderEdit2d, connectsTheEdgesThatAreNotHidden)
{
    OverlayRenderEdit2d curve;
    EXPECT_EQ(curve.getType(), OverlayObject::TypeRenderEdit);
    EXPECT_EQ(curve.getTolerance(), 1.0);
    curve.connectRenderDrawEdit(sketch());
    EXPECT_EQ(curve.getNVertices(), 3);
    EXPECT_EQ(curve.getNEdges(), 5);
    EXPECT_EQ(curve.getNControlPoints(2), 4);
    EXPECT_EQ(curve.getDegree(2), 3);
    // The limits are 4 by 1.
    EXPECT_EQ(curve.getTolerance(), 0.002);
    EXPECT_EQ(polylineOf(curve, 0), (Polyline{{0.0f, 0.0f, 0.0f}, {2.0f, 0.0f, 0.0f}}));
    EXPECT_GT(polylineOf(curve, 1).size(), 8);
    EXPECT_FALSE(curve.isEdgeRendered(3));
    EXPECT_TRUE(polylineOf(curve, 3).empty());
    EXPECT_EQ(curve.getControlPointId(2, 3), 8);
    EXPECT_EQ(curve.getControlPointId(3, 0), -1);
    EXPECT_EQ(curve.getControlPointId(4, 1), 10);
    EXPECT_EQ(curve.getVertex(2), Vector3f(4.0f, 1.0f, 0.0f));
    EXPECT_EQ(curve.getControlPoint(1, 1), Vector3f(4.0f, 0.0f, 0.0f));
    std::vector<std::vector<double>> data = {{7}};
    curve.getEdgeData(1, data);
    EXPECT_EQ(data, (std::vector<std::vector<double>>{{2, 0, 1}, {4, 0, 2}, {4, 1, 4}}));
}

TEST(OverlayRenderEdit2d, movesAllEdgesAtAVertexAndNoOther)
{
    OverlayRenderEdit2d curve;
    const auto record = sketch();
    curve.connectRenderDrawEdit(record);
    const Polyline before = polylineOf(curve, 4);
    // By the vertex, by the end of an edge, and by the other end of the same loop.
    const std::vector<std::function<void(double, double)>> moves = {
        [&](double x, double y) { curve.setVertex(1, x, y); },
        [&](double x, double y) { curve.setControlPoint(0, 1, x, y); },
        [&](double x, double y) { curve.setControlPoint(2, 3, x, y); },
    };
    for (const auto& move : moves) {
        curve.setVertex(1, 0, 0);
        record->clearModified();
        move(3, 0.5);
        EXPECT_EQ(curve.getVertex(1), Vector3f(3.0f, 0.5f, 0.0f));
        EXPECT_EQ(pointOf(curve, 0, 1), (std::vector<double>{3, 0.5, 1}));
        EXPECT_EQ(pointOf(curve, 1, 0), (std::vector<double>{3, 0.5, 1}));
        EXPECT_EQ(pointOf(curve, 2, 0), (std::vector<double>{3, 0.5, 2}));
        EXPECT_EQ(pointOf(curve, 2, 3), (std::vector<double>{3, 0.5, 0.5}));
        EXPECT_EQ(pointOf(curve, 2, 1), (std::vector<double>{3, 1, 1}));
        EXPECT_EQ(pointOf(curve, 3, 1), (std::vector<double>{3, 0.5, 1}));
        EXPECT_EQ(polylineOf(curve, 0).back(), Vector3f(3.0f, 0.5f, 0.0f));
        EXPECT_EQ(polylineOf(curve, 1).front(), Vector3f(3.0f, 0.5f, 0.0f));
        EXPECT_TRUE(polylineOf(curve, 3).empty());
        EXPECT_EQ(polylineOf(curve, 4), before);
        for (int edge = 0; edge < 5; ++edge) {
            EXPECT_EQ(record->m_edges[static_cast<std::size_t>(edge)].m_modified, edge != 4);
            EXPECT_EQ(curve.isEdgeModified(edge), edge < 3) << "a hidden edge reports nothing";
        }
        EXPECT_TRUE(curve.isVertexModified(1));
        EXPECT_FALSE(curve.isVertexModified(0));
    }
    record->m_vertices[1].m_hidden = true;
    EXPECT_FALSE(curve.isVertexModified(1));
    EXPECT_FALSE(curve.isVertexRendered(1));
}

TEST(OverlayRenderEdit2d, movesAControlPointWithoutVertexAlone)
{
    OverlayRenderEdit2d curve;
    const auto record = sketch();
    curve.connectRenderDrawEdit(record);
    curve.setControlPoint(4, 0, 0, 9);
    curve.setControlPoint(1, 1, 4, -7);
    EXPECT_EQ(pointOf(curve, 4, 0), (std::vector<double>{0, 9, 1}));
    EXPECT_EQ(pointOf(curve, 1, 1), (std::vector<double>{4, -7, 2}));
    EXPECT_EQ(polylineOf(curve, 4).front(), Vector3f(0.0f, 9.0f, 0.0f));
    EXPECT_EQ(curve.getTolerance(), static_cast<double>(std::sqrt(16.0f * 4.0f)) / 1000) << "the limits follow";
    EXPECT_TRUE(std::none_of(record->m_vertices.begin(), record->m_vertices.end(),
                             [](const Record::Vertex& vertex) { return vertex.m_modified; }));
    EXPECT_FALSE(curve.isEdgeModified(0));
    EXPECT_TRUE(curve.isEdgeModified(1));
}

TEST(OverlayRenderEdit2d, marksEdgesWithTheirVerticesAndKeepsMarksOverAnotherRecord)
{
    OverlayRenderEdit2d curve;
    curve.connectRenderDrawEdit(sketch());
    for (const int edge : {3, -1, 5}) {
        curve.setMarkEdge(edge, true);
    }
    EXPECT_TRUE(curve.getMarkedEdges().empty());
    curve.setMarkEdge(4, true); // no vertices
    EXPECT_TRUE(curve.getMarkedVertices().empty());
    curve.setMarkEdge(0, true);
    EXPECT_EQ(curve.getMarkedEdges(), (std::set{0, 4}));
    EXPECT_EQ(curve.getMarkedVertices(), (std::set{0, 1}));
    EXPECT_EQ(curve.getMarkedPoints(), (std::set{0, 1, 9, 10}));

    // A second record with one edge: the ids go on, and those of other edges are known, but lead nowhere.
    const auto small = boost::make_shared<Record>();
    addEdge(*small, editEdge(1, {{0, 0, 1}, {1, 0, 1}}), -1, -1);
    curve.connectRenderDrawEdit(small);
    EXPECT_EQ(curve.getControlPointId(0, 0), 11);
    EXPECT_FALSE(curve.findControlPoint(0));
    EXPECT_EQ(curve.findControlPoint(10), OverlayCurve::ControlPoint(4, 1));
    EXPECT_THROW(curve.setControlPoint(4, 1, 0, 0), std::out_of_range);
    EXPECT_EQ(curve.getMarkedEdges(), (std::set{0, 4}));
}

/// An edit at random: a vertex, or a control point.
void editSomething(RandomNumbers& random, OverlayRenderEdit2d& curve)
{
    const double x = static_cast<double>(random.uniform(-1, 2));
    const double y = static_cast<double>(random.uniform(-1, 2));
    if (random.integer(0, 1) == 0) {
        curve.setVertex(random.integer(0, curve.getNVertices() - 1), x, y);
    } else {
        const int edge = random.integer(0, curve.getNEdges() - 1);
        curve.setControlPoint(edge, random.integer(0, curve.getNControlPoints(edge) - 1), x, y);
    }
}

TEST(OverlayRenderEdit2d, keepsPolylinesEqualToAnEvaluationAtTheToleranceOfTheirMoment)
{
    RandomNumbers random(3);
    for (int run = 0; run < 30; ++run) {
        const auto record = boost::make_shared<Record>();
        for (int i = 0; i < 5; ++i) {
            addVertex(*record, static_cast<double>(random.uniform(0, 1)), static_cast<double>(random.uniform(0, 1)));
        }
        for (int i = 0; i < 12; ++i) {
            addEdge(*record, randomEdge(random, 1 + i), random.integer(-1, 4), random.integer(-1, 4));
            record->m_edges.back().m_hidden = random.integer(0, 5) == 0;
        }
        OverlayRenderEdit2d curve;
        curve.connectRenderDrawEdit(record);
        std::vector<Polyline> expected(12);
        const auto evaluate = [&](std::size_t edge) {
            const Record::Edge& source = record->m_edges[edge];
            std::vector<float> limits;
            record->getBoundingBox(limits);
            vxdatacarrier::BoundingBox2D box;
            box.m_xMin = limits[0];
            box.m_xMax = limits[1];
            box.m_yMin = limits[2];
            box.m_yMax = limits[3];
            expected[edge] =
                source.m_hidden ? Polyline() : SplineTessellator().tessellate(source, curve.getTolerance(), box);
        };
        for (std::size_t edge = 0; edge < 12; ++edge) {
            evaluate(edge);
        }
        for (int step = 0; step < 20; ++step) {
            const std::vector<Record::Edge> before = record->m_edges;
            editSomething(random, curve);
            for (std::size_t edge = 0; edge < 12; ++edge) {
                const Record::Edge& after = record->m_edges[edge];
                ASSERT_EQ(after.m_controlPoints[2], before[edge].m_controlPoints[2]) << "weights stay";
                if (after.m_controlPoints != before[edge].m_controlPoints) {
                    evaluate(edge);
                }
                ASSERT_EQ(polylineOf(curve, static_cast<int>(edge)), expected[edge]) << run << ' ' << step;
            }
            // An edge's ends stay at its vertices.
            for (const Record::Edge& edge : record->m_edges) {
                for (const auto& [vertex, at] :
                     {std::pair(edge.m_startVertex, 0), {edge.m_endVertex, edge.m_numControlPoints - 1}}) {
                    const auto i = static_cast<std::size_t>(at);
                    if (vertex >= 0 && record->m_vertices[static_cast<std::size_t>(vertex)].m_modified) {
                        ASSERT_EQ(edge.m_controlPoints[0][i],
                                  record->m_vertices[static_cast<std::size_t>(vertex)].x * edge.m_controlPoints[2][i]);
                    }
                }
            }
        }
    }
}

TEST(OverlayRenderEdit2d, refusesRecordsThatAreNoCurves)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::function<void(EditEdge&)>> flaws = {
        [](EditEdge& edge) { edge.m_degree = 0; },
        [](EditEdge& edge) { edge.m_degree = 4; },
        [](EditEdge& edge) { edge.m_degree = std::numeric_limits<int>::max(); },
        [](EditEdge& edge) { edge.m_knots.pop_back(); },
        [](EditEdge& edge) { edge.m_knots.push_back(9); },
        [](EditEdge& edge) { edge.m_knots[2] = 1; },
        [](EditEdge& edge) { edge.m_knots.assign(8, 1.0); },
        [infinity](EditEdge& edge) { edge.m_knots.back() = infinity; },
        [](EditEdge& edge) { edge.m_numControlPoints = 3; },
        [](EditEdge& edge) { edge.m_numControlPoints = -1; },
        [](EditEdge& edge) { edge.m_controlPoints[2].clear(); },
    };
    OverlayRenderEdit2d curve;
    curve.connectRenderDrawEdit(sketch());
    for (std::size_t i = 0; i < flaws.size(); ++i) {
        const auto record = sketch();
        flaws[i](record->m_edges[2]);
        EXPECT_THROW(curve.connectRenderDrawEdit(record), std::invalid_argument) << i;
        // The same flaw of a hidden edge does not matter before its vertex is moved, and then only without points.
        record->m_edges[2].m_hidden = true;
        OverlayRenderEdit2d other;
        other.connectRenderDrawEdit(record);
        EXPECT_TRUE(polylineOf(other, 2).empty()) << i;
    }
    for (const int vertex : {-2, 3}) {
        const auto record = sketch();
        record->m_edges[1].m_endVertex = vertex;
        EXPECT_THROW(curve.connectRenderDrawEdit(record), std::out_of_range);
    }
    EXPECT_THROW(curve.connectRenderDrawEdit(nullptr), std::invalid_argument);
    curve.setVertex(1, 5, 5);
    EXPECT_EQ(curve.getNEdges(), 5);
}

TEST(OverlayRenderEdit2d, survivesRecordsThatTheirOwnerChanges)
{
    OverlayRenderEdit2d curve;
    const auto record = sketch();
    curve.connectRenderDrawEdit(record);
    record->m_edges[2].m_knots.clear();
    EXPECT_THROW(curve.setVertex(1, 5, 5), std::invalid_argument);
    EXPECT_EQ(curve.getVertex(1), Vector3f(2.0f, 0.0f, 0.0f)) << "nothing changes";
    EXPECT_THROW(curve.evaluateSegment(2), std::invalid_argument);
    record->m_edges.pop_back();
    int count = 0;
    EXPECT_THROW(curve.getRenderVertices(count, 4), std::out_of_range);
    record->m_edges.resize(7);
    EXPECT_EQ(curve.getRenderVertices(count, 6), nullptr);
    EXPECT_EQ(count, 0);
    EXPECT_THROW(curve.evaluateSegment(6), std::out_of_range);
    EXPECT_THROW(curve.getControlPoint(6, 0), std::invalid_argument);
    curve.setVertex(0, 1, 1);
    curve.connectRenderDrawEdit(sketch());
    curve.setVertex(1, 5, 5);
}

TEST(OverlayRenderEdit2d, refusesNumbersThatDoNotExist)
{
    OverlayRenderEdit2d curve;
    std::vector<double> out(3);
    std::vector<std::vector<double>> rows;
    int count = 0;
    const auto refuseAll = [&](int edge, int index, int vertex) {
        EXPECT_THROW(curve.setVertex(vertex, 0, 0), std::out_of_range);
        EXPECT_THROW(curve.getVertex(vertex, out), std::out_of_range);
        EXPECT_THROW(curve.isVertexModified(vertex), std::out_of_range);
        EXPECT_THROW(curve.setControlPoint(edge, index, 0, 0), std::out_of_range);
        EXPECT_THROW(curve.getControlPoint(edge, index, out), std::out_of_range);
        EXPECT_THROW(curve.getControlPoint(edge, index), std::out_of_range);
    };
    refuseAll(0, 0, 0); // before a record is connected
    EXPECT_EQ(curve.getNEdges() + curve.getNVertices(), 0);
    curve.setMarkEdge(0, true);
    curve.connectRenderDrawEdit(sketch());
    for (const int number : {-1, 5, std::numeric_limits<int>::max()}) {
        refuseAll(number, 0, number);
        refuseAll(0, number, number);
        EXPECT_THROW(curve.getEdgeData(number, rows), std::out_of_range);
        EXPECT_THROW(curve.getRenderVertices(count, number), std::out_of_range);
        EXPECT_THROW(curve.evaluateSegment(number), std::out_of_range);
        EXPECT_THROW(curve.getDegree(number), std::out_of_range);
        EXPECT_THROW(curve.isEdgeModified(number), std::out_of_range);
    }
    std::vector<double> tooShort(2);
    EXPECT_THROW(curve.getControlPoint(0, 0, tooShort), std::out_of_range);
}

TEST(OverlayRenderEdit2d, evaluatesUpToDegree9WithoutAllocation)
{
    RandomNumbers random(4);
    const auto record = boost::make_shared<Record>();
    for (const int degree : {1, 9, 10}) {
        addEdge(*record, randomEdge(random, degree), -1, -1);
    }
    OverlayRenderEdit2d curve;
    curve.connectRenderDrawEdit(record);
    for (const int edge : {0, 1, 2}) {
        const auto evaluate = [&] { curve.evaluateSegment(edge); };
        EXPECT_EQ(failEachAllocation(evaluate, [] {}) > 0, edge == 2);
    }
}

TEST(OverlayRenderEdit2d, canBeUsedAfterFailedAllocations)
{
    OverlayRenderEdit2d curve;
    const auto record = sketch();
    const auto use = [&] {
        int count = 0;
        for (int edge = 0; edge < curve.getNEdges(); ++edge) {
            curve.getRenderVertices(count, edge);
        }
    };
    EXPECT_GT(failEachAllocation([&] { curve.connectRenderDrawEdit(record); }, use), 5);
    EXPECT_GT(failEachAllocation([&] { curve.setVertex(1, 3, 3); }, use), 1);
    EXPECT_EQ(polylineOf(curve, 0).back(), Vector3f(3.0f, 3.0f, 0.0f));
}

} // namespace
} // namespace vxgraphics3d
