// Fills of plots of spheres, edges, labels and dashes, each compared with a bare loop that writes the same records and
// indices into new memory. Both results are compared once; records and indices byte for byte.

#include "graphics3d/plots/vector/scenegraphplotedge2d.h"
#include "graphics3d/plots/vector/scenegraphplotedge3d.h"
#include "graphics3d/plots/vector/scenegraphplotinteractive.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

/// A cloud of points with colours and radii, and elements of four points that follow each other.
PostRecord cloud(std::size_t count)
{
    Record::DoubleArrays axes(3, std::vector<double>(count));
    Record::DoubleArrays data(2, std::vector<double>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const auto t = static_cast<double>(i);
        axes[0][i] = std::sin(0.1 * t);
        axes[1][i] = std::cos(0.37 * t);
        axes[2][i] = std::sin(0.73 * t);
        data[0][i] = t;
        data[1][i] = 0.01 * (1.5 + std::sin(t));
    }
    Record::IntArrays corners(4);
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        for (std::size_t i = 0; i + 3 < count; ++i) {
            corners[corner].push_back(static_cast<int>(i + corner));
        }
    }
    return PostRecord()
        .role(Record::ColorData, 0)
        .role(Record::RadiusData, 1)
        .bounds({{-1, 1}, {-1, 1}, {-1, 1}})
        .group(std::move(axes), std::move(corners), std::move(data));
}

struct Scale {
    explicit Scale(const Record& record)
        : min((*record.m_dataMin[0])[0]), factor(1.0 / ((*record.m_dataMax[0])[0] - min))
    {}
    float operator()(double value) const { return static_cast<float>((value - min) * factor); }
    double min;
    double factor;
};

/// Writes the spheres and finds their box in one pass.
template <class Sphere>
std::unique_ptr<Sphere[]> bareSpheres(const Record& record, BoundingBox& box)
{
    constexpr bool isPlane = sizeof(Sphere) == 16;
    const std::vector<double>& x = (*record.m_coordinates[0])[0];
    const std::vector<double>& y = (*record.m_coordinates[0])[1];
    const std::vector<double>& z = (*record.m_coordinates[0])[2];
    const std::vector<double>& values = (*record.m_data[0])[0];
    const std::vector<double>& radii = (*record.m_data[0])[1];
    const Scale u(record);
    std::unique_ptr<Sphere[]> spheres(new Sphere[x.size()]);
    Sphere* out = spheres.get();
    Vector3f low(x[0], y[0], isPlane ? 0.0 : z[0]);
    Vector3f high = low;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (std::isfinite(isPlane ? x[i] + y[i] : x[i] + y[i] + z[i])) {
            const Vector3f p(x[i], y[i], isPlane ? 0.0 : z[i]);
            low.init(std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z));
            high.init(std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z));
            const auto radius = static_cast<float>(std::max(radii[i], 0.0));
            if constexpr (isPlane) {
                *out++ = {p.x, p.y, u(values[i]), radius};
            } else {
                *out++ = {p.x, p.y, p.z, u(values[i]), radius};
            }
        }
    }
    box = BoundingBox(low.x, high.x, low.y, high.y, low.z, high.z);
    return spheres;
}

template <class Plot>
void fillSpheres(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    const PostRecord record = cloud(count);
    {
        Plot plot(1);
        plot.fillPlot(record);
        BoundingBox box;
        const auto bare = bareSpheres<typename Plot::Sphere>(record, box);
        if (plot.getSpheres().size() != count || !(box == plot.getBoundingBox()) ||
            std::memcmp(plot.getSpheres().data(), bare.get(), plot.getSpheres().size_bytes()) != 0) {
            state.SkipWithError("the plot and the bare loop wrote different spheres");
        }
    }
    for (auto _ : state) {
        Plot plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getSpheres().data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}

template <class Plot>
void bareSphereLoop(benchmark::State& state)
{
    const PostRecord record = cloud(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        BoundingBox box;
        const auto spheres = bareSpheres<typename Plot::Sphere>(record, box);
        benchmark::DoNotOptimize(spheres.get());
        benchmark::DoNotOptimize(box);
        benchmark::ClobberMemory();
    }
}

template <class Plot>
constexpr bool c_isRaised = std::is_same_v<Plot, SceneGraphPlotEdge2d>;

struct BareEdges {
    std::unique_ptr<VertexTex[]> vertices;
    std::unique_ptr<unsigned[]> indices;
    std::size_t numIndices;
};

/// The record of an edge plot: in the plane, the radii are heights.
template <class Plot>
PostRecord edgeRecord(std::size_t count)
{
    PostRecord record = cloud(count);
    if (c_isRaised<Plot>) {
        record.role(Record::HeightData, 1);
    }
    return record;
}

/// The six edges of each tetrahedron, or of four points in the plane that are raised by heights.
template <class Plot>
BareEdges bareEdges(const Record& record)
{
    const std::vector<double>& x = (*record.m_coordinates[0])[0];
    const std::vector<double>& y = (*record.m_coordinates[0])[1];
    const std::vector<double>& z = c_isRaised<Plot> ? (*record.m_data[0])[1] : (*record.m_coordinates[0])[2];
    const double heightScale = 2.0 / (*record.m_dataMax[0])[1];
    const std::vector<double>& values = (*record.m_data[0])[0];
    const Scale u(record);
    const Record::IntArrays& corners = *record.m_elements[0];
    const int* a = corners[0].data();
    const int* b = corners[1].data();
    const int* c = corners[2].data();
    const int* d = corners[3].data();
    const std::size_t numElements = corners[0].size();
    BareEdges edges = {std::unique_ptr<VertexTex[]>(new VertexTex[x.size()]),
                       std::unique_ptr<unsigned[]>(new unsigned[12 * numElements]), 12 * numElements};
    for (std::size_t i = 0; i < x.size(); ++i) {
        edges.vertices[i] = {static_cast<float>(x[i]), static_cast<float>(y[i]),
                             static_cast<float>(c_isRaised<Plot> ? z[i] * heightScale : z[i]), u(values[i]), 0.0f};
    }
    unsigned* out = edges.indices.get();
    for (std::size_t i = 0; i < numElements; ++i, out += 12) {
        const auto p = static_cast<unsigned>(a[i]);
        const auto q = static_cast<unsigned>(b[i]);
        const auto r = static_cast<unsigned>(c[i]);
        const auto s = static_cast<unsigned>(d[i]);
        out[0] = out[2] = out[4] = p;
        out[1] = out[6] = out[8] = q;
        out[3] = out[7] = out[10] = r;
        out[5] = out[9] = out[11] = s;
    }
    return edges;
}

template <class Plot>
void fillEdges(benchmark::State& state)
{
    const PostRecord record = edgeRecord<Plot>(static_cast<std::size_t>(state.range(0)));
    {
        Plot plot(1);
        plot.fillPlot(record);
        const BareEdges bare = bareEdges<Plot>(record);
        if (!plot.isValid() || !plot.getLines().uses32BitIndices() ||
            std::memcmp(plot.getVertices().vertexPointer(), bare.vertices.get(),
                        20 * static_cast<std::size_t>(state.range(0))) != 0 ||
            std::memcmp(plot.getLines().getIndices32(), bare.indices.get(), 4 * bare.numIndices) != 0) {
            state.SkipWithError("the plot and the bare loop wrote different edges");
        }
    }
    for (auto _ : state) {
        Plot plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getLines().getIndices32());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}

template <class Plot>
void bareEdgeLoop(benchmark::State& state)
{
    const PostRecord record = edgeRecord<Plot>(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const BareEdges edges = bareEdges<Plot>(record);
        benchmark::DoNotOptimize(edges.indices.get());
        benchmark::ClobberMemory();
    }
}

/// Points as a collection has them: parts that are allocated one by one, because a collection can be derived from and
/// make parts of another class. This is what takes most of the time.
class BarePoints {
public:
    explicit BarePoints(std::size_t count) : m_points(new std::unique_ptr<Point>[count]) {}

    void add(const Vector3f& p)
    {
        auto point = std::make_unique<Point>();
        point->setPosition(p);
        point->setBoundingBox(BoundingBox(p.x, p.x, p.y, p.y, p.z, p.z));
        m_points[m_count++] = std::move(point);
    }
    const std::unique_ptr<Point>* data() const { return m_points.get(); }
    bool operator==(const PointCollection& other) const
    {
        bool isEqual = static_cast<int>(m_count) == other.getNumParts();
        for (std::size_t i = 0; isEqual && i < m_count; ++i) {
            const Point& part = other.getPart(static_cast<int>(i));
            isEqual = part.getPosition() == m_points[i]->getPosition() &&
                      part.getBoundingBox() == m_points[i]->getBoundingBox();
        }
        return isEqual;
    }

private:
    std::unique_ptr<std::unique_ptr<Point>[]> m_points;
    std::size_t m_count = 0;
};

/// The points of labels.
struct Labels {
    static BarePoints bare(const Record& record)
    {
        const Record::DoubleArrays& p = *record.m_coordinates[0];
        BarePoints points(p[0].size());
        for (std::size_t i = 0; i < p[0].size(); ++i) {
            points.add(Vector3f(p[0][i], p[1][i], p[2][i]));
        }
        return points;
    }
    void fill(const Record& record) { plot.fillPlot(record); }
    const PointCollection& points() const { return plot.getLabelPoints(); }

    SceneGraphPlotPointLabel plot{3, 1};
};

/// Lines whose second half is dashed: the points of a record are their ends.
struct Dashes {
    Dashes() { plot.setSolidFraction(0.5f); }

    static BarePoints bare(const Record& record)
    {
        const Record::DoubleArrays& p = *record.m_coordinates[0];
        const std::size_t numLines = p[0].size() / 2;
        BarePoints points(32 * numLines);
        for (std::size_t i = 0; i < 2 * numLines; i += 2) {
            const Vector3f from(p[0][i], p[1][i], p[2][i]);
            const Vector3f to(p[0][i + 1], p[1][i + 1], p[2][i + 1]);
            points.add(from);
            points.add(from * 0.5f + to * 0.5f);
            for (int dash = 0; dash < 15; ++dash) {
                const float start = (static_cast<float>(dash) + 0.3f) / 30.0f;
                const float end = (static_cast<float>(dash) + 0.7f) / 30.0f;
                points.add(to * (1.0f - start) + from * start);
                points.add(to * (1.0f - end) + from * end);
            }
        }
        return points;
    }
    void fill(const Record& record) { plot.setLinePoints(*record.m_coordinates[0]); }
    const PointCollection& points() const { return plot.getDashPoints(); }

    SceneGraphPlotInteractive plot{1};
};

template <class Plot>
void fillPoints(benchmark::State& state)
{
    const PostRecord record = cloud(static_cast<std::size_t>(state.range(0)));
    {
        Plot plot;
        plot.fill(record);
        if (!(Plot::bare(record) == plot.points())) {
            state.SkipWithError("the plot and the bare loop wrote different points");
        }
    }
    for (auto _ : state) {
        Plot plot;
        plot.fill(record);
        benchmark::DoNotOptimize(&plot.points().getPart(0));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}

template <class Plot>
void barePointLoop(benchmark::State& state)
{
    const PostRecord record = cloud(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const BarePoints points = Plot::bare(record);
        benchmark::DoNotOptimize(points.data());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(fillSpheres<SceneGraphPlotSphere2d>)->Name("spheres2d")->Arg(100000)->Arg(1000000);
BENCHMARK(bareSphereLoop<SceneGraphPlotSphere2d>)->Name("spheres2d_limit")->Arg(100000)->Arg(1000000);
BENCHMARK(fillSpheres<SceneGraphPlotSphere3d>)->Name("spheres3d")->Arg(100000)->Arg(1000000);
BENCHMARK(bareSphereLoop<SceneGraphPlotSphere3d>)->Name("spheres3d_limit")->Arg(100000)->Arg(1000000);
BENCHMARK(fillEdges<SceneGraphPlotEdge2d>)->Name("edges2d_height")->Arg(100000)->Arg(1000000);
BENCHMARK(bareEdgeLoop<SceneGraphPlotEdge2d>)->Name("edges2d_height_limit")->Arg(100000)->Arg(1000000);
BENCHMARK(fillEdges<SceneGraphPlotEdge3d>)->Name("edges3d")->Arg(100000)->Arg(1000000);
BENCHMARK(bareEdgeLoop<SceneGraphPlotEdge3d>)->Name("edges3d_limit")->Arg(100000)->Arg(1000000);
BENCHMARK(fillPoints<Labels>)->Name("pointLabels")->Arg(1000)->Arg(100000);
BENCHMARK(barePointLoop<Labels>)->Name("pointLabels_limit")->Arg(1000)->Arg(100000);
BENCHMARK(fillPoints<Dashes>)->Name("interactive_dashes")->Arg(200)->Arg(20000);
BENCHMARK(barePointLoop<Dashes>)->Name("interactive_dashes_limit")->Arg(200)->Arg(20000);

} // namespace
} // namespace vxgraphics3d
