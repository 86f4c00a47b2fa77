// Edges of a geometry that is edited, next to the bare evaluation of their points.

#include "benchmarks/allocations.h"
#include "graphics3d/overlays/overlayrenderedit2d.h"
#include "tests/support/editrecord.h"

#include <benchmark/benchmark.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = OverlayRenderEdit2d::Record;

constexpr int c_side = 100;
constexpr int c_numEdges = c_side * c_side;

/// Cubic edges of length 1 with two spans, from each vertex of a square grid to its neighbour above; every fourth
/// vertex has four edges.
boost::shared_ptr<Record> makeRecord()
{
    const auto record = boost::make_shared<Record>();
    RandomNumbers random(5);
    for (int i = 0; i < c_numEdges; ++i) {
        const double x = i % c_side;
        const double y = i / c_side;
        record->m_vertices.push_back({.x = x, .y = y});
        const auto shift = [&] { return static_cast<double>(random.uniform(-2, 2)); };
        EditEdge edge = editEdge(
            3, {{x, y, 1}, {x + shift(), y, 2}, {x + shift(), y + 0.5, 0.5}, {x + shift(), y + 1, 1}, {x, y, 1}});
        edge.m_startVertex = edge.m_endVertex = i / 4 * 4;
        record->m_edges.push_back(edge);
    }
    return record;
}

/// All parameters at which the tessellation of an edge evaluates it.
void collectParameters(const EditEdge& edge, double u, double v, double tolerance, std::vector<double>& parameters)
{
    const double m = (u + v) / 2;
    parameters.push_back(m);
    const auto at = [&](double t) {
        const CurvePoint point = curvePoint(edge, t);
        return Vector3f(point.x, point.y, 0.0);
    };
    const CurvePoint middle = curvePoint(edge, m);
    const Vector3f chord = (at(u) + at(v)) / 2.0f;
    if (std::max(std::abs(middle.x - static_cast<double>(chord.x)), std::abs(middle.y - static_cast<double>(chord.y))) >
        tolerance) {
        collectParameters(edge, u, m, tolerance, parameters);
        collectParameters(edge, m, v, tolerance, parameters);
    }
}

std::vector<double> parametersOf(const EditEdge& edge, double tolerance)
{
    std::vector<double> parameters = {edge.m_knots[3]};
    for (std::size_t i = 4; i < edge.m_knots.size() - 3; ++i) {
        const double a = edge.m_knots[i - 1];
        const double b = edge.m_knots[i];
        double u = a;
        for (int part = 1; part <= 3; ++part) {
            const double v = part == 3 ? b : a + part * (b - a) / 3;
            collectParameters(edge, u, v, tolerance, parameters);
            parameters.push_back(v);
            u = v;
        }
    }
    return parameters;
}

int countVertices(const OverlayRenderEdit2d& curve)
{
    int sum = 0;
    for (int edge = 0; edge < curve.getNEdges(); ++edge) {
        int count = 0;
        curve.getRenderVertices(count, edge);
        sum += count;
    }
    return sum;
}

void evaluateEdges(benchmark::State& state)
{
    OverlayRenderEdit2d curve;
    curve.connectRenderDrawEdit(makeRecord());
    const int numVertices = countVertices(curve);
    const std::size_t allocations = numAllocations();
    for (auto _ : state) {
        for (int edge = 0; edge < c_numEdges; ++edge) {
            curve.evaluateSegment(edge);
        }
    }
    if (countVertices(curve) != numVertices || numVertices < 8 * c_numEdges || numAllocations() != allocations) {
        state.SkipWithError("wrong polylines, or allocations");
    }
    state.counters["allowed"] = 1.3;
}

void evaluateEdges_limit(benchmark::State& state)
{
    OverlayRenderEdit2d curve;
    const auto record = makeRecord();
    curve.connectRenderDrawEdit(record);
    std::vector<std::vector<double>> parameters;
    std::size_t numParameters = 0;
    for (const EditEdge& edge : record->m_edges) {
        parameters.push_back(parametersOf(edge, curve.getTolerance()));
        numParameters += parameters.back().size();
    }
    // Each edge evaluates its vertices, and a middle between neighbours that was no vertex.
    if (static_cast<int>(numParameters) != 2 * countVertices(curve) - c_numEdges) {
        state.SkipWithError("not the same parameters");
    }
    std::vector<Vector3f> points;
    for (auto _ : state) {
        for (std::size_t edge = 0; edge < parameters.size(); ++edge) {
            points.clear();
            for (const double u : parameters[edge]) {
                const CurvePoint point = curvePoint(record->m_edges[edge], u);
                points.emplace_back(point.x, point.y, 0.0);
            }
            benchmark::DoNotOptimize(points.data());
        }
    }
}

BENCHMARK(evaluateEdges);
BENCHMARK(evaluateEdges_limit);

// --- one step of dragging a vertex ----------------------------------------------------------------------------------
// The limit evaluates its edges, looks at the vertices of all others, and finds the limits of all boxes and vertices.

constexpr int c_dragged = 5000;

void dragVertex(benchmark::State& state)
{
    OverlayRenderEdit2d curve;
    const auto record = makeRecord();
    curve.connectRenderDrawEdit(record);
    double y = 0;
    for (auto _ : state) {
        y = 50.5 - y;
        curve.setVertex(c_dragged, 0.25, y);
    }
    int modified = 0;
    for (int edge = 0; edge < c_numEdges; ++edge) {
        modified += curve.isEdgeModified(edge) ? 1 : 0;
    }
    if (modified != 4) {
        state.SkipWithError("not four edges");
    }
    state.counters["allowed"] = 1.5;
}

void dragVertex_limit(benchmark::State& state)
{
    OverlayRenderEdit2d curve;
    const auto record = makeRecord();
    curve.connectRenderDrawEdit(record);
    for (auto _ : state) {
        int found = 0;
        for (int i = 0; i < c_numEdges; ++i) {
            const EditEdge& edge = record->m_edges[static_cast<std::size_t>(i)];
            if (edge.m_startVertex == c_dragged || edge.m_endVertex == c_dragged) {
                curve.evaluateSegment(i);
                ++found;
            }
        }
        if (found != 4) {
            state.SkipWithError("not four edges");
        }
        std::array<float, 4> limits = record->m_edges.front().m_box;
        const auto extend = [&limits](float minX, float maxX, float minY, float maxY) {
            limits = {std::min(limits[0], minX), std::max(limits[1], maxX), std::min(limits[2], minY),
                      std::max(limits[3], maxY)};
        };
        for (const EditEdge& edge : record->m_edges) {
            extend(edge.m_box[0], edge.m_box[1], edge.m_box[2], edge.m_box[3]);
        }
        for (const Record::Vertex& vertex : record->m_vertices) {
            const auto x = static_cast<float>(vertex.x);
            const auto y = static_cast<float>(vertex.y);
            extend(x, x, y, y);
        }
        benchmark::DoNotOptimize(limits);
    }
}

BENCHMARK(dragVertex);
BENCHMARK(dragVertex_limit);

} // namespace
} // namespace vxgraphics3d
