// Fills of plots of arrows and of principal values, each compared with a bare loop that writes the same records into
// new memory and finds the same box. Both results are compared once, the records byte for byte.

#include "benchmarks/wave.h"
#include "graphics3d/plots/vector/scenegraphplotarrow2d.h"
#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"
#include "graphics3d/plots/vector/scenegraphplotprincipal.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

template <class Arrow>
constexpr std::size_t c_numAxes = std::is_same_v<Arrow, ArrowRecord2d> ? 2 : 3;

/// The records of a plot without the plot.
template <class Arrow>
struct BareArrows {
    std::unique_ptr<Arrow[]> arrows;
    double box[6];
};

/// Points with colours, to which data is added, and with bounds from -1 to 1.
PostRecord pointRecord(std::size_t count, std::size_t numAxes, Record::DoubleArrays data)
{
    Record::DoubleArrays points;
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        points.push_back(wave(count, 0.1 * static_cast<double>(axis + 1)));
    }
    PostRecord record;
    record.role(Record::ColorData, static_cast<int>(data.size()));
    data.push_back(wave(count, 0.01));
    record.bounds(Record::DoubleArrays(numAxes, {-1.0, 1.0})).group(std::move(points), {}, std::move(data));
    return record;
}

template <class Arrow>
PostRecord recordFor(std::size_t count)
{
    const double frequencies[] = {0.11, 0.23, 0.37};
    Record::DoubleArrays vectors;
    for (std::size_t axis = 0; axis < c_numAxes<Arrow>; ++axis) {
        vectors.push_back(wave(count, frequencies[axis]));
    }
    PostRecord record = pointRecord(count, c_numAxes<Arrow>, std::move(vectors));
    for (int axis = 0; axis < static_cast<int>(c_numAxes<Arrow>); ++axis) {
        record.role(Record::VectorX + axis, axis);
    }
    return record;
}

/// Three axes with their lengths, which are negative in part.
template <>
PostRecord recordFor<PrincipalRecord>(std::size_t count)
{
    Record::DoubleArrays data;
    for (int array = 0; array < 12; ++array) {
        data.push_back(wave(count, 0.11 + 0.07 * array));
    }
    PostRecord record = pointRecord(count, 3, std::move(data));
    for (int array = 0; array < 12; ++array) {
        record.role(Record::PrincipalLengths + array, array);
    }
    return record;
}

float lengthOf(const Vector3f& vector)
{
    return std::sqrt(vector.x * vector.x + vector.y * vector.y + vector.z * vector.z);
}

float azimuthOf(const Vector3f& vector, float length)
{
    return std::atan2(vector.y / length, vector.x / length);
}

float polarAngleOf(const Vector3f& vector, float length)
{
    return std::acos(std::clamp(vector.z / length, -1.0f, 1.0f));
}

/// Angles, lengths and colours of arrows, scaled so that the longest is a little shorter than the distance of points.
template <class Arrow>
BareArrows<Arrow> bareArrows(const Record& record)
{
    constexpr bool isPlane = c_numAxes<Arrow> == 2;
    const Record::DoubleArrays& p = *record.m_coordinates[0];
    const Record::DoubleArrays& v = *record.m_data[0];
    const std::vector<double>& values = v.back();
    const std::size_t count = p[0].size();
    const double min = record.m_dataMin[0]->back();
    const double scale = 1.0 / (record.m_dataMax[0]->back() - min);
    BareArrows<Arrow> result{std::unique_ptr<Arrow[]>(new Arrow[count]), {}};
    Arrow* out = result.arrows.get();
    float longest = 0.0f;
    for (std::size_t i = 0; i < count; ++i) {
        const auto u = static_cast<float>((values[i] - min) * scale);
        if constexpr (isPlane) {
            const auto vx = static_cast<float>(v[0][i]);
            const auto vy = static_cast<float>(v[1][i]);
            out[i] = {static_cast<float>(p[0][i]), static_cast<float>(p[1][i]), std::atan2(vy, vx),
                      std::sqrt(vx * vx + vy * vy), u};
        } else {
            const Vector3f vector(v[0][i], v[1][i], v[2][i]);
            const float length = lengthOf(vector);
            out[i] = {static_cast<float>(p[0][i]),
                      static_cast<float>(p[1][i]),
                      static_cast<float>(p[2][i]),
                      azimuthOf(vector, length),
                      polarAngleOf(vector, length),
                      length,
                      u};
        }
        longest = std::max(longest, out[i].length);
    }
    const float pointsPerAxis = std::pow(static_cast<float>(count), isPlane ? 0.5f : 0.33333334f);
    const double factor = 2.0 / static_cast<double>(pointsPerAxis) * 0.85 / static_cast<double>(longest);
    for (std::size_t i = 0; i < count; ++i) {
        out[i].length = static_cast<float>(static_cast<double>(out[i].length) * factor);
    }
    for (std::size_t axis = 0; axis < c_numAxes<Arrow>; ++axis) {
        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        for (std::size_t i = 0; i < count; ++i) {
            const double tip = p[axis][i] + v[axis][i] * factor;
            low = std::min({low, p[axis][i], tip});
            high = std::max({high, p[axis][i], tip});
        }
        result.box[2 * axis] = low;
        result.box[2 * axis + 1] = high;
    }
    return result;
}

/// The three axes of each point, with lengths from -1 to 1 times the distance of points. Their box is that of the
/// record, extended by the longest.
template <>
BareArrows<PrincipalRecord> bareArrows(const Record& record)
{
    const Record::DoubleArrays& p = *record.m_coordinates[0];
    const Record::DoubleArrays& data = *record.m_data[0];
    const std::size_t count = p[0].size();
    const double min = record.m_dataMin[0]->back();
    const double scale = 1.0 / (record.m_dataMax[0]->back() - min);
    BareArrows<PrincipalRecord> result{std::unique_ptr<PrincipalRecord[]>(new PrincipalRecord[count]), {}};
    PrincipalRecord* out = result.arrows.get();
    float longest = 0.0f;
    for (std::size_t i = 0; i < count; ++i) {
        PrincipalRecord& r = out[i];
        r.x = static_cast<float>(p[0][i]);
        r.y = static_cast<float>(p[1][i]);
        r.z = static_cast<float>(p[2][i]);
        r.u = static_cast<float>((data[12][i] - min) * scale);
        r.largestLength = 0.0f;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const Vector3f direction(data[3 + axis][i], data[6 + axis][i], data[9 + axis][i]);
            const float length = lengthOf(direction);
            r.length[axis] = static_cast<float>(data[axis][i]);
            r.azimuth[axis] = azimuthOf(direction, length);
            r.polarAngle[axis] = polarAngleOf(direction, length);
            r.largestLength = std::max(r.largestLength, std::fabs(r.length[axis]));
        }
        longest = std::max(longest, r.largestLength);
    }
    const float factor = 3.0f / std::pow(static_cast<float>(count), 0.33333334f) * 0.85f / longest;
    for (std::size_t i = 0; i < count; ++i) {
        for (float& length : out[i].length) {
            length *= factor;
        }
        out[i].largestLength *= factor;
    }
    const auto reach = static_cast<double>(longest * factor * SceneGraphPlotPrincipal::c_lengthScale);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        result.box[2 * axis] = -1.0 - reach;
        result.box[2 * axis + 1] = 1.0 + reach;
    }
    return result;
}

struct Principal3d : SceneGraphPlotPrincipal {
    explicit Principal3d(int id) : SceneGraphPlotPrincipal(3, true, id) {}
};

template <class Plot>
void fill(benchmark::State& state)
{
    using Arrow = typename Plot::Arrow;
    const auto count = static_cast<std::size_t>(state.range(0));
    const PostRecord record = recordFor<Arrow>(count);
    {
        Plot plot(1);
        plot.fillPlot(record);
        const auto [arrows, b] = bareArrows<Arrow>(record);
        if (std::memcmp(plot.getArrows(), arrows.get(), count * sizeof(Arrow)) != 0 ||
            !(plot.getBoundingBox() == BoundingBox(b[0], b[1], b[2], b[3], b[4], b[5]))) {
            state.SkipWithError("The bare loop gives other arrows.");
        }
    }
    for (auto _ : state) {
        Plot plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getArrows());
    }
    state.counters["allowed"] = std::is_same_v<Arrow, PrincipalRecord> ? 1.3 : 1.15;
}

template <class Plot>
void bareLoop(benchmark::State& state)
{
    using Arrow = typename Plot::Arrow;
    const PostRecord record = recordFor<Arrow>(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        auto bare = bareArrows<Arrow>(record);
        benchmark::DoNotOptimize(bare.arrows.get());
        benchmark::DoNotOptimize(bare.box);
    }
}

BENCHMARK(fill<SceneGraphPlotArrow2d>)->Name("arrows2d")->Arg(10'000)->Arg(1'000'000);
BENCHMARK(bareLoop<SceneGraphPlotArrow2d>)->Name("arrows2d_limit")->Arg(10'000)->Arg(1'000'000);
BENCHMARK(fill<SceneGraphPlotArrow3d>)->Name("arrows3d")->Arg(10'000)->Arg(1'000'000);
BENCHMARK(bareLoop<SceneGraphPlotArrow3d>)->Name("arrows3d_limit")->Arg(10'000)->Arg(1'000'000);
BENCHMARK(fill<Principal3d>)->Name("principal3d")->Arg(10'000)->Arg(300'000);
BENCHMARK(bareLoop<Principal3d>)->Name("principal3d_limit")->Arg(10'000)->Arg(300'000);

} // namespace
} // namespace vxgraphics3d
