#include "graphics3d/foundation/vector3f.h"

#include "graphics3d/foundation/matrixf.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace vxgraphics3d {
namespace {

constexpr float c_infinity = std::numeric_limits<float>::infinity();
constexpr float c_nan = std::numeric_limits<float>::quiet_NaN();

TEST(Vector3f, arithmeticIsComponentWise)
{
    const Vector3f a(1.0f, -2.0f, 3.0f);
    const Vector3f b(4.0f, 5.0f, -6.0f);
    const std::pair<Vector3f, Vector3f> cases[] = {
        {Vector3f(), {0.0f, 0.0f, 0.0f}},
        {a + b, {5.0f, 3.0f, -3.0f}},
        {a - b, {-3.0f, -7.0f, 9.0f}},
        {-a, {-1.0f, 2.0f, -3.0f}},
        {a * 2.0f, {2.0f, -4.0f, 6.0f}},
        {2.0f * a, {2.0f, -4.0f, 6.0f}},
        {a / 2.0f, {0.5f, -1.0f, 1.5f}},
        {a.cross(b), {-3.0f, 18.0f, 13.0f}},
        {a.translated(1.0f, 2.0f, 3.0f), {2.0f, 0.0f, 6.0f}},
        {a.scaled(2.0f, 3.0f, 4.0f), {2.0f, -6.0f, 12.0f}},
        {Vector3f(a).translate(1.0f, 2.0f, 3.0f), {2.0f, 0.0f, 6.0f}},
        {Vector3f(a).scale(2.0f, 3.0f, 4.0f), {2.0f, -6.0f, 12.0f}},
        {Vector3f(0.1, 0.2, 0.3), {0.1f, 0.2f, 0.3f}},
    };
    for (const auto& [actual, expected] : cases) {
        EXPECT_EQ(actual, expected);
    }
    EXPECT_EQ(a.dot(b), -24.0f);
    EXPECT_EQ(a.lengthSquared(), 14.0f);
    EXPECT_EQ(Vector3f(2.0f, -3.0f, 6.0f).length(), 7.0f);
}

TEST(Vector3f, normalizeLeavesAVectorWithoutAFiniteLengthUnchanged)
{
    Vector3f v(0.0f, 3.0f, 4.0f);
    EXPECT_EQ(v.normalize(), Vector3f(0.0f, 0.6f, 0.8f));
    Vector3f zero;
    EXPECT_EQ(zero.normalize(), Vector3f());
    Vector3f endless(c_infinity, 1.0f, 2.0f);
    EXPECT_EQ(endless.normalize(), Vector3f(c_infinity, 1.0f, 2.0f));
    Vector3f undefined(c_nan, 1.0f, 2.0f);
    EXPECT_EQ(undefined.normalize().y, 1.0f);
}

TEST(Vector3f, normalizedOfAVectorOfLengthZeroIsZero)
{
    EXPECT_EQ(Vector3f().normalized(), Vector3f());
    // The square of 1e-30 underflows, so the length is 0: the copy is zero, but normalising in place changes nothing.
    EXPECT_EQ(Vector3f(1e-30f, 0.0f, 0.0f).normalized(), Vector3f());
    Vector3f tiny(1e-30f, 0.0f, 0.0f);
    EXPECT_EQ(tiny.normalize(), Vector3f(1e-30f, 0.0f, 0.0f));
    EXPECT_EQ(Vector3f(0.0f, 0.0f, -5.0f).normalized(), Vector3f(0.0f, 0.0f, -1.0f));
}

TEST(Vector3f, orthogonalTakesTheFirstOfTheLongestProducts)
{
    EXPECT_EQ(Vector3f(0.0f, 0.0f, 1.0f).orthogonal(), Vector3f(0.0f, 1.0f, 0.0f));
    EXPECT_EQ(Vector3f(0.0f, 2.0f, 0.0f).orthogonal(), Vector3f(0.0f, 0.0f, -1.0f));
    EXPECT_EQ(Vector3f(3.0f, 0.0f, 0.0f).orthogonal(), Vector3f(0.0f, 0.0f, 1.0f));
    // (3, 4, 1): the lengths squared are 17, 10 and 25, so the z axis wins: (4, -3, 0) / 5.
    EXPECT_EQ(Vector3f(3.0f, 4.0f, 1.0f).orthogonal(), Vector3f(0.8f, -0.6f, 0.0f));
}

TEST(Vector3f, toSphericalGivesAzimuthAndPolarAngle)
{
    constexpr float pi = 3.14159265f;
    const auto [azimuth, polar] = Vector3f(0.0f, 5.0f, 0.0f).toSpherical();
    EXPECT_FLOAT_EQ(azimuth, pi / 2.0f);
    EXPECT_FLOAT_EQ(polar, pi / 2.0f);
    EXPECT_EQ(Vector3f(0.0f, 0.0f, -2.0f).toSpherical(), std::make_pair(0.0f, std::acos(-1.0f)));
    EXPECT_EQ(Vector3f().toSpherical(), std::make_pair(0.0f, 0.0f));
    // Squares near the smallest float lose their digits, and the quotient may come out above 1.
    for (float z = 1e-23f; z < 1e-21f; z *= 1.01f) {
        EXPECT_FALSE(std::isnan(Vector3f(0.0f, 0.0f, z).toSpherical().second)) << z;
    }
}

TEST(Vector3f, transformDividesByTheFullW)
{
    const Matrixf perspective(1.0f, 0.0f, 0.0f, 2.0f,  //
                              0.0f, 2.0f, 0.0f, 0.0f,  //
                              0.0f, 0.0f, 1.0f, -1.0f, //
                              0.0f, 0.0f, 2.0f, 0.0f);
    const Vector3f point(2.0f, 3.0f, 4.0f);
    EXPECT_EQ(point.transformed(perspective), Vector3f(0.5f, 0.75f, 0.375f));
    EXPECT_EQ(Vector3f(point).transform(perspective), Vector3f(0.5f, 0.75f, 0.375f));
    EXPECT_EQ(Vector3f(1.0f, 1.0f, 0.0f).transformed(perspective).x, c_infinity);
}

TEST(Vector3f, transformMultipliesByOneReciprocalOfW)
{
    // The first x for which x / 49 and x times the rounded reciprocal of 49 differ.
    Matrixf m(Matrixf::MatrixIdentity);
    m.set(4, 4, 49.0f);
    const float reciprocal = 1.0f / 49.0f;
    float x = 1.0f;
    while (x * reciprocal == x / 49.0f) {
        x += 1.0f;
    }
    EXPECT_EQ(Vector3f(x, 0.0f, 0.0f).transformed(m).x, x * reciprocal);
}

TEST(Vector3f, isWrittenInBrackets)
{
    std::ostringstream stream;
    stream << Vector3f(1.0f, -2.5f, 0.0f);
    EXPECT_EQ(stream.str(), "[1 -2.5 0]");
    testing::internal::CaptureStdout();
    Vector3f(1.0f, -2.5f, 0.0f).print();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "{1.000000, -2.500000, 0.000000}\n");
}

} // namespace
} // namespace vxgraphics3d
