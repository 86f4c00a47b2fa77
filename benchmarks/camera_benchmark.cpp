// One step of a drag: the additional transformation and both matrices that a renderer then reads. The limit is the bare
// arithmetic of the same matrices on arrays of floats, without the camera's state.

#include "benchmarks/allocations.h"
#include "graphics3d/cameras/camera3d.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vxgraphics3d {
namespace {

/// The time limit of a step, as a multiple of the bare arithmetic.
constexpr double c_allowed = 1.3;

using Vector = std::array<float, 3>;
using Rotation = std::array<Vector, 3>;

Vector times(const Rotation& m, const Vector& v)
{
    Vector result;
    for (std::size_t i = 0; i < 3; ++i) {
        result[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
    }
    return result;
}

Vector cross(const Vector& a, const Vector& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

float lengthOf(const Vector& v)
{
    return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
}

Vector unit(const Vector& v)
{
    const float length = lengthOf(v);
    return {v[0] / length, v[1] / length, v[2] / length};
}

Rotation rotationAbout(const Vector& axis, float angle)
{
    const auto [x, y, z] = unit(axis);
    const auto s = static_cast<float>(std::sin(static_cast<double>(angle)));
    const auto c = static_cast<float>(std::cos(static_cast<double>(angle)));
    const float t = 1.0f - c;
    return {{{x * x * t + c, x * y * t - z * s, x * z * t + y * s},
             {x * y * t + z * s, y * y * t + c, y * z * t - x * s},
             {x * z * t - y * s, y * z * t + x * s, z * z * t + c}}};
}

Rotation product(const Rotation& a, const Rotation& b)
{
    Rotation result;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            result[i][j] = a[i][0] * b[0][j] + a[i][1] * b[1][j] + a[i][2] * b[2][j];
        }
    }
    return result;
}

/// The initial state of an orbit, and the resulting matrices.
struct BareOrbit {
    Vector toPoint{-1.0f, -2.0f, -10.0f};
    Vector right{};
    Vector up{};
    Vector forward{};
    std::array<float, 16> view{};
    std::array<float, 16> inverse{};

    BareOrbit()
    {
        forward = unit(toPoint);
        right = unit(cross(forward, {0.0f, 1.0f, 0.0f}));
        up = cross(right, forward);
    }

    void turn(float a, float b)
    {
        const Vector sight = unit(toPoint);
        const Vector horizontal = cross(sight, up);
        const Rotation m = product(rotationAbout(cross(horizontal, sight), b), rotationAbout(horizontal, a));
        const Vector r = times(m, right);
        const Vector u = times(m, up);
        const Vector f = times(m, forward);
        const Vector d = times(m, toPoint);
        const Vector eye{-d[0], -d[1], -d[2]};
        const Rotation rows{r, u, {-f[0], -f[1], -f[2]}};
        const Vector t = times(rows, eye);
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t j = 0; j < 3; ++j) {
                view[4 * j + i] = rows[i][j];
                inverse[4 * i + j] = rows[i][j];
            }
            view[12 + i] = -t[i];
            inverse[12 + i] = rows[0][i] * t[0] + rows[1][i] * t[1] + rows[2][i] * t[2];
        }
        view[15] = 1.0f;
        inverse[15] = 1.0f;
    }
};

Camera3d orbitCamera()
{
    Camera3d camera;
    camera.setProjectionType(Camera3d::ProjectionPerspective);
    camera.lookAt({1.0f, 2.0f, 10.0f}, {-1.0f, -2.0f, -10.0f}, {0.0f, 1.0f, 0.0f});
    return camera;
}

/// The angles of a drag, never the same twice in a row.
float angleOf(int step)
{
    return 0.001f * static_cast<float>(step & 511);
}

/// The factors of a zoom that magnifies as often as it reduces.
float factorOf(int step)
{
    return 0.75f + angleOf(step);
}

/// Fails the benchmark if the camera has allocated memory since it was set up.
void checkNothingAllocated(benchmark::State& state, std::size_t before)
{
    if (numAllocations() != before) {
        state.SkipWithError("A step of a drag takes memory.");
    }
}

bool close(float a, float b)
{
    return std::abs(a - b) < 1e-4f;
}

void orbit3d(benchmark::State& state)
{
    Camera3d camera = orbitCamera();
    const std::size_t allocations = numAllocations();
    int step = 0;
    for (auto _ : state) {
        const float angle = angleOf(++step);
        camera.setAdditionalSceneRotation(angle, -angle, 0.0f);
        benchmark::DoNotOptimize(camera.getViewTransform().data()[12] + camera.getProjectionTransformRH().data()[0]);
        benchmark::ClobberMemory();
    }
    checkNothingAllocated(state, allocations);
    BareOrbit bare;
    bare.turn(angleOf(step), -angleOf(step));
    if (!std::equal(bare.view.begin(), bare.view.end(), camera.getViewTransform().data(), close) ||
        !std::equal(bare.inverse.begin(), bare.inverse.end(), camera.getInvViewTransform().data(), close)) {
        state.SkipWithError("The view matrices are not those of the bare arithmetic.");
    }
    state.counters["allowed"] = c_allowed;
}
BENCHMARK(orbit3d);

void orbit3d_limit(benchmark::State& state)
{
    BareOrbit bare;
    int step = 0;
    for (auto _ : state) {
        const float angle = angleOf(++step);
        bare.turn(angle, -angle);
        benchmark::DoNotOptimize(bare.view[12] + bare.inverse[12]);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(orbit3d_limit);

/// The projections of a perspective view that stays completely visible, with no assumptions about its angles, clipping
/// distances and area.
struct BareZoom {
    std::array<float, 16> rightHanded{};
    std::array<float, 16> leftHanded{};
    std::array<float, 16> inverse{};
    float horizontalFov = 20.0f * 3.1415927f / 180.0f;
    float verticalFov = 20.0f * 3.1415927f / 180.0f;
    float aspect = 1.0f;
    float n = 0.1f;
    float f = 100.0f;
    float actualHorizontalFov = horizontalFov;
    float actualVerticalFov = verticalFov;
    Vector toPoint{-1.0f, -2.0f, -10.0f};

    void scale(float cx, float cy, float s)
    {
        // A view that is tiny relative to the clipping range is not magnified further.
        if (s < 1.0f) {
            const auto angle = static_cast<double>(std::min(actualHorizontalFov, actualVerticalFov));
            if (std::tan(angle) * static_cast<double>(lengthOf(toPoint)) < static_cast<double>((f - n) * 1e-05f)) {
                return;
            }
        }
        const float k = 1.0f - 1.0f / s;
        const float ox = (cx - 0.5f) * k;
        const float oy = (cy - 0.5f) * k;
        const double tangentX = std::tan(static_cast<double>(horizontalFov));
        const double tangentY = std::tan(static_cast<double>(verticalFov));
        const double scale = static_cast<double>(s) * static_cast<double>(2.0f * n);
        float w = 0.0f;
        float h = 0.0f;
        if (static_cast<double>(aspect) < tangentY / tangentX) {
            h = static_cast<float>(scale * tangentY);
            w = h / aspect;
        } else {
            w = static_cast<float>(scale * tangentX);
            h = w * aspect;
        }
        actualHorizontalFov = static_cast<float>(std::atan(0.5 * static_cast<double>(w) / static_cast<double>(n)));
        actualVerticalFov = static_cast<float>(std::atan(0.5 * static_cast<double>(h) / static_cast<double>(n)));
        rightHanded = {2.0f * n / w,
                       0.0f,
                       0.0f,
                       0.0f,
                       0.0f,
                       2.0f * n / h,
                       0.0f,
                       0.0f,
                       -2.0f * ox,
                       -2.0f * oy,
                       -(f + n) / (f - n),
                       -1.0f,
                       0.0f,
                       0.0f,
                       -2.0f * f * n / (f - n),
                       0.0f};
        leftHanded = rightHanded;
        leftHanded[10] = -f / (f - n);
        leftHanded[14] = -f * n / (f - n);
        inverse = {w / (2.0f * n), 0.0f,           0.0f,  0.0f,
                   0.0f,           h / (2.0f * n), 0.0f,  0.0f,
                   0.0f,           0.0f,           0.0f,  -(f - n) / (2.0f * f * n),
                   -ox * w / n,    -oy * h / n,    -1.0f, (n + f) / (2.0f * n * f)};
    }
};

void zoom3d(benchmark::State& state)
{
    Camera3d camera = orbitCamera();
    const std::size_t allocations = numAllocations();
    int step = 0;
    for (auto _ : state) {
        camera.setAdditionalScale(0.25f, 0.75f, factorOf(++step));
        benchmark::DoNotOptimize(camera.getViewTransform().data()[12] + camera.getProjectionTransformRH().data()[0]);
        benchmark::ClobberMemory();
    }
    checkNothingAllocated(state, allocations);
    BareZoom bare;
    bare.scale(0.25f, 0.75f, factorOf(step));
    if (!std::equal(bare.rightHanded.begin(), bare.rightHanded.end(), camera.getProjectionTransformRH().data(),
                    close) ||
        !std::equal(bare.leftHanded.begin(), bare.leftHanded.end(), camera.getProjectionTransformLH().data(), close) ||
        !std::equal(bare.inverse.begin(), bare.inverse.end(), camera.getInvProjectionTransformRH().data(), close)) {
        state.SkipWithError("The projections are not those of the bare arithmetic.");
    }
    state.counters["allowed"] = c_allowed;
}
BENCHMARK(zoom3d);

void zoom3d_limit(benchmark::State& state)
{
    BareZoom bare;
    int step = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(bare);
        bare.scale(0.25f, 0.75f, factorOf(++step));
        benchmark::DoNotOptimize(bare.rightHanded[0] + bare.inverse[0] + bare.actualHorizontalFov);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(zoom3d_limit);

} // namespace
} // namespace vxgraphics3d
