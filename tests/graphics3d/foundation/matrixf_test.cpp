#include "graphics3d/foundation/matrixf.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <utility>

namespace vxgraphics3d {
namespace {

const Matrixf c_counted(1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 6.0f, 7.0f, 8.0f, 9.0f, 10.0f, 11.0f, 12.0f, 13.0f, 14.0f, 15.0f,
                        16.0f);
const Matrixf c_identity(Matrixf::MatrixIdentity);

void expectNear(const Matrixf& actual, const Matrixf& expected, float tolerance)
{
    for (int i = 0; i < 16; ++i) {
        EXPECT_NEAR(actual.data()[i], expected.data()[i], tolerance) << "element " << i;
    }
}

TEST(Matrixf, takesRowsAndStoresColumns)
{
    EXPECT_EQ(c_counted.data()[1], 5.0f);
    EXPECT_EQ(c_counted.data()[4], 2.0f);
    EXPECT_EQ(c_counted.get(1, 1), 1.0f);
    EXPECT_EQ(c_counted.get(2, 3), 7.0f);
    Matrixf m(Matrixf::MatrixZero);
    m.set(2, 3, 1.0f);
    EXPECT_EQ(m.data()[9], 1.0f);
    m.init(1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 6.0f, 7.0f, 8.0f, 9.0f, 10.0f, 11.0f, 12.0f, 13.0f, 14.0f, 15.0f, 16.0f);
    EXPECT_EQ(m, c_counted);
}

TEST(Matrixf, translationIsInTheLastColumn)
{
    Matrixf m = c_counted;
    m.initTranslation(7.0f, 8.0f, 9.0f);
    EXPECT_EQ(m,
              Matrixf(1.0f, 0.0f, 0.0f, 7.0f, 0.0f, 1.0f, 0.0f, 8.0f, 0.0f, 0.0f, 1.0f, 9.0f, 0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_EQ(m.data()[13], 8.0f);
}

TEST(Matrixf, operatorsMultiplyOnTheRight)
{
    Matrixf translation(Matrixf::MatrixIdentity);
    translation.initTranslation(1.0f, 2.0f, 3.0f);
    Matrixf scaling(Matrixf::MatrixIdentity);
    scaling.initScale(2.0f, 3.0f, 4.0f);
    EXPECT_EQ(c_counted * translation, c_counted.translated(1.0f, 2.0f, 3.0f));
    EXPECT_EQ(c_counted * scaling, Matrixf(c_counted).scale(2.0f, 3.0f, 4.0f));
    EXPECT_EQ((Matrixf(c_counted) *= c_counted),
              Matrixf(90.0f, 100.0f, 110.0f, 120.0f, 202.0f, 228.0f, 254.0f, 280.0f, 314.0f, 356.0f, 398.0f, 440.0f,
                      426.0f, 484.0f, 542.0f, 600.0f));
    // The translation is applied to the point first.
    EXPECT_EQ(scaling * translation * Vector3f(1.0f, 1.0f, 1.0f), Vector3f(4.0f, 9.0f, 16.0f));
}

TEST(Matrixf, translateUpdatesAllFourRowsOfTheLastColumnOnly)
{
    EXPECT_EQ(Matrixf(c_counted).translate(Vector3f(1.0f, 1.0f, 1.0f)),
              Matrixf(1.0f, 2.0f, 3.0f, 10.0f, 5.0f, 6.0f, 7.0f, 26.0f, 9.0f, 10.0f, 11.0f, 42.0f, 13.0f, 14.0f, 15.0f,
                      58.0f));
    EXPECT_EQ(Matrixf(c_counted).translate(2.0f, 3.0f, 4.0f).translateNeg({2.0f, 3.0f, 4.0f}), c_counted);
    EXPECT_EQ(Matrixf(c_counted).scale(2.0f), Matrixf(c_counted).scale(2.0f, 2.0f, 2.0f));
}

TEST(Matrixf, rotationsAreRightHanded)
{
    constexpr float quarter = 1.57079633f;
    const Matrixf aboutX(1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, -1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f,
                         1.0f);
    const Matrixf aboutY(0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, -1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f,
                         1.0f);
    const Matrixf aboutZ(0.0f, -1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f,
                         1.0f);
    expectNear(Matrixf(c_identity).rotateX(quarter), aboutX, 1e-6f);
    expectNear(Matrixf(c_identity).rotateY(quarter), aboutY, 1e-6f);
    expectNear(Matrixf(c_identity).rotateZ(quarter), aboutZ, 1e-6f);
    expectNear(Matrixf(c_identity).rotate(5.0f, 0.0f, 0.0f, quarter), aboutX, 1e-6f);
    expectNear(Matrixf(c_identity).rotate({0.0f, 0.5f, 0.0f}, quarter), aboutY, 1e-6f);
    expectNear(Matrixf(c_identity).rotate({0.0f, 0.0f, 2.0f}, quarter), aboutZ, 1e-6f);
    expectNear(Matrixf(c_counted).rotate(1.0f, 2.0f, 3.0f, 0.7f),
               c_counted * Matrixf(c_identity).rotate(1.0f, 2.0f, 3.0f, 0.7f), 0.0f);
}

TEST(Matrixf, rotateAcceptsAnAxisOfAnyLength)
{
    // A third of a rotation about the space diagonal takes x to y, y to z and z to x.
    const Matrixf m = Matrixf(c_identity).rotate(3.0f, 3.0f, 3.0f, 2.0943951f);
    const Vector3f image = m * Vector3f(1.0f, 2.0f, 3.0f);
    EXPECT_NEAR(image.x, 3.0f, 1e-6f);
    EXPECT_NEAR(image.y, 1.0f, 1e-6f);
    EXPECT_NEAR(image.z, 2.0f, 1e-6f);
}

TEST(Matrixf, sineAndCosineComeFromDouble)
{
    const float angle = 1.0e6f;
    const Matrixf m = Matrixf(c_identity).rotateZ(angle);
    EXPECT_EQ(m.get(1, 1), static_cast<float>(std::cos(1.0e6)));
    EXPECT_EQ(m.get(2, 1), static_cast<float>(std::sin(1.0e6)));
}

TEST(Matrixf, invertGivesTheInverse)
{
    const Matrixf m(2.0f, 1.0f, 0.0f, 3.0f, 0.0f, 1.0f, 4.0f, -1.0f, 1.0f, 0.0f, 2.0f, 5.0f, 3.0f, -2.0f, 1.0f, 1.0f);
    expectNear(m * Matrixf(m).invert(), c_identity, 1e-6f);
    expectNear(Matrixf(m).invert() * m, c_identity, 1e-6f);
    Matrixf known(Matrixf::MatrixIdentity);
    known.translate(1.0f, 2.0f, 3.0f).scale(2.0f, 4.0f, 8.0f);
    EXPECT_EQ(known.invert(), Matrixf(0.5f, 0.0f, 0.0f, -0.5f, 0.0f, 0.25f, 0.0f, -0.5f, 0.0f, 0.0f, 0.125f, -0.375f,
                                      0.0f, 0.0f, 0.0f, 1.0f));
}

TEST(Matrixf, aSingularMatrixIsUnchanged)
{
    EXPECT_EQ(Matrixf(Matrixf::MatrixZero).invert(), Matrixf(Matrixf::MatrixZero));
    EXPECT_EQ(Matrixf(c_counted).invert(), c_counted);
    Matrixf out = c_identity;
    EXPECT_FALSE(Matrixf::invertMatrixf(c_counted.data(), out.data()));
    EXPECT_EQ(out, c_identity);
    EXPECT_TRUE(Matrixf::invertMatrixf(c_identity.data(), out.data()));
}

TEST(Matrixf, isWrittenRowByRow)
{
    std::ostringstream stream;
    stream << c_counted;
    EXPECT_EQ(stream.str(), "[1 2 3 4] [5 6 7 8] [9 10 11 12] [13 14 15 16]");
    // Only infinite numbers are short enough for the field width of the constant form.
    Matrixf m = c_counted;
    m.set(2, 3, std::numeric_limits<float>::infinity());
    testing::internal::CaptureStdout();
    m.print();
    std::as_const(m).print();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "1.000000 2.000000 3.000000 4.000000\n5.000000 6.000000 inf 8.000000\n"
              "9.000000 10.000000 11.000000 12.000000\n13.000000 14.000000 15.000000 16.000000\n"
              "1.000000 2.000000 3.000000 4.000000\n5.000000 6.000000      inf 8.000000\n"
              "9.000000 10.000000 11.000000 12.000000\n13.000000 14.000000 15.000000 16.000000\n");
}

} // namespace
} // namespace vxgraphics3d
