// Curves that are drawn and edited, next to the bare evaluation of their points.

#include "graphics3d/overlays/overlaydrawcurve.h"
#include "graphics3d/overlays/overlayoutline.h"
#include "tests/support/randomnumbers.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {
namespace {

using Polygon = std::array<Vector3f, 4>;

constexpr std::size_t c_numVertices = 20;

std::vector<Polygon> randomPolygons(benchmark::State& state)
{
    RandomNumbers random(3);
    std::vector<Polygon> polygons(static_cast<std::size_t>(state.range(0)));
    for (Polygon& polygon : polygons) {
        for (Vector3f& point : polygon) {
            point = random.vector(1.0f).scaled(1.0f, 1.0f, 0.0f);
        }
    }
    return polygons;
}

/// A curve of cubic edges, each between two vertices of its own. The ids of its control points are 0 to 4 n - 1.
void addEdges(OverlayDrawCurve& curve, const std::vector<Polygon>& polygons)
{
    const auto addVertex = [&](const Vector3f& point) {
        return curve.addVertex(static_cast<double>(point.x), static_cast<double>(point.y));
    };
    for (const Polygon& polygon : polygons) {
        const int start = addVertex(polygon.front());
        const int edge = curve.addEdge(start, addVertex(polygon.back()));
        for (const Vector3f& point : polygon) {
            curve.addControlPoint(edge, static_cast<double>(point.x), static_cast<double>(point.y));
        }
    }
}

void evaluate(const Polygon& p, Vector3f* vertices)
{
    for (std::size_t i = 0; i < c_numVertices; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(c_numVertices - 1);
        const float r = 1.0f - t;
        vertices[i] = r * r * r * p[0] + 3.0f * r * r * t * p[1] + 3.0f * r * t * t * p[2] + t * t * t * p[3];
    }
}

/// Drags one control point of each edge.
void dragControlPoints(benchmark::State& state)
{
    const std::vector<Polygon> polygons = randomPolygons(state);
    OverlayDrawCurve curve;
    addEdges(curve, polygons);
    std::array<Vector3f, c_numVertices> expected;
    evaluate(polygons.back(), expected.data());
    int count = 0;
    const float* xyz = curve.getRenderVertices(count, curve.getNEdges() - 1);
    if (count != static_cast<int>(c_numVertices) || xyz[3 * 7] != expected[7].x || xyz[3 * 7 + 1] != expected[7].y) {
        state.SkipWithError("the curve and the bare evaluation have different points");
    }
    for (auto _ : state) {
        int id = 1;
        for (const Polygon& polygon : polygons) {
            const auto point = curve.findControlPoint(id);
            curve.setControlPoint(point->first, point->second, static_cast<double>(polygon[1].x),
                                  static_cast<double>(polygon[1].y));
            id += 4;
        }
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 2.0;
}

void evaluateBare(benchmark::State& state)
{
    std::vector<Polygon> polygons = randomPolygons(state);
    std::vector<std::array<Vector3f, c_numVertices>> vertices(polygons.size());
    for (auto _ : state) {
        benchmark::DoNotOptimize(polygons.data());
        for (std::size_t i = 0; i < polygons.size(); ++i) {
            evaluate(polygons[i], vertices[i].data());
        }
        benchmark::ClobberMemory();
    }
}

/// The lines of all edges, which a renderer asks for with each picture.
void collectOutline(benchmark::State& state)
{
    const std::vector<Polygon> polygons = randomPolygons(state);
    OverlayDrawCurve curve;
    addEdges(curve, polygons);
    for (auto _ : state) {
        const std::vector<Vector3f> outline = outlineOf(curve);
        benchmark::DoNotOptimize(outline.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 2.0;
}

void writeLines(benchmark::State& state)
{
    const std::vector<Polygon> polygons = randomPolygons(state);
    std::vector<std::array<Vector3f, c_numVertices>> vertices(polygons.size());
    for (std::size_t i = 0; i < polygons.size(); ++i) {
        evaluate(polygons[i], vertices[i].data());
    }
    for (auto _ : state) {
        std::vector<Vector3f> lines(2 * (c_numVertices - 1) * vertices.size());
        Vector3f* line = lines.data();
        for (const auto& polyline : vertices) {
            for (std::size_t i = 1; i < c_numVertices; ++i) {
                *line++ = polyline[i - 1];
                *line++ = polyline[i];
            }
        }
        benchmark::DoNotOptimize(lines.data());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(dragControlPoints)->Arg(10000);
BENCHMARK(evaluateBare)->Name("dragControlPoints_limit")->Arg(10000);
BENCHMARK(collectOutline)->Arg(10000);
BENCHMARK(writeLines)->Name("collectOutline_limit")->Arg(10000);

} // namespace
} // namespace vxgraphics3d
