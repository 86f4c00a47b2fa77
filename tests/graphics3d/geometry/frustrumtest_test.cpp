#include "graphics3d/geometry/frustrumtest.h"

#include "graphics3d/buffers/vertexbuffercoords.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vxgraphics3d {
namespace {

/// The prism over a rectangle as seen along the z axis.
SelectionFrustrum prism(float x0, float y0, float x1, float y1)
{
    return {{x0, y0, 1.0f},  {x0, y1, 1.0f},  {x1, y1, 1.0f},  {x1, y0, 1.0f},
            {x0, y0, -1.0f}, {x0, y1, -1.0f}, {x1, y1, -1.0f}, {x1, y0, -1.0f}};
}

bool isInside(const SelectionFrustrum& frustrum, const std::vector<Vector3f>& points)
{
    VertexBufferCoords buffer;
    VertexExtent extent;
    buffer.allocate(static_cast<int>(points.size()));
    for (const Vector3f& p : points) {
        buffer.appendVertex(p);
        extent.include(p);
    }
    return FrustrumTest(frustrum).isInside(extent, buffer);
}

bool areAllInside(const SelectionFrustrum& frustrum, const std::vector<Vector3f>& points)
{
    for (const Vector3f& p : points) {
        if (!frustrum.isInside(p)) {
            return false;
        }
    }
    return true;
}

TEST(FrustrumTest, countsVerticesOnAPlaneAndWhatIsNotANumberAsOutside)
{
    const SelectionFrustrum frustrum = prism(0.0f, 2.0f, 4.0f, 0.0f);
    const Vector3f middle(1.0f, 1.0f, 0.0f);
    const float beside = std::nextafter(4.0f, 0.0f);
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(isInside(frustrum, {}));
    EXPECT_TRUE(isInside(frustrum, {middle}));
    EXPECT_TRUE(isInside(frustrum, {middle, {beside, 1.0f, 1e30f}}));
    EXPECT_FALSE(isInside(frustrum, {middle, {4.0f, 1.0f, 0.0f}})) << "on a plane";
    EXPECT_FALSE(isInside(frustrum, {{0.0f, 0.0f, 0.0f}})) << "on an edge";
    EXPECT_FALSE(isInside(frustrum, {middle, {5.0f, 1.0f, 0.0f}}));
    EXPECT_FALSE(isInside(frustrum, {{0.0f, 1.0f, 0.0f}, {4.0f, 1.0f, 0.0f}})) << "limits on both planes";
    EXPECT_FALSE(isInside(frustrum, {middle, {nan, 1.0f, 0.0f}}));
    EXPECT_FALSE(isInside(frustrum, {middle, {1.0f, infinity, 0.0f}}));
    EXPECT_FALSE(isInside(frustrum, {{1.0f, 1.0f, -infinity}, middle})) << "zero times infinity";
    // The difference of the depths overflows, and zero times infinity is not above 0.
    const auto deep = [](float x, float y, float z) { return Vector3f(0.01f * x, 0.01f * y, 1e38f * z); };
    const SelectionFrustrum remote(deep(0, 2, -2), deep(0, 0, -2), deep(4, 0, -2), deep(4, 2, -2), deep(0, 2, -3),
                                   deep(0, 0, -3), deep(4, 0, -3), deep(4, 2, -3));
    EXPECT_TRUE(isInside(remote, {deep(1, 1, -2)}));
    EXPECT_FALSE(isInside(remote, {deep(1, 1, 3)}));
    const SelectionFrustrum flat = prism(1.0f, 2.0f, 1.0f, 0.0f);
    EXPECT_FALSE(isInside(flat, {middle})) << "no width";
}

TEST(FrustrumTest, agreesWithALoopOverTheVerticesToTheLastBit)
{
    RandomNumbers random(4);
    int numInside = 0;
    int numOutside = 0;
    for (int i = 0; i < 40000; ++i) {
        // From subnormal products to overflows.
        const float scale =
            std::ldexp(1.0f, random.integer(0, 3) > 0 ? random.integer(-8, 8) : random.integer(-75, 126));
        const Vector3f origin = random.vector(random.integer(0, 1) > 0 ? scale : 100.0f * scale);
        const auto at = [&](float x, float y, float z) { return origin + Vector3f(x, y, z) * scale; };
        const float far = random.uniform(1.0f, 3.0f);
        const SelectionFrustrum frustrum(at(-1, 1, 1), at(-1, -1, 1), at(1, -1, 1), at(1, 1, 1), at(-far, far, -1),
                                         at(-far, -far, -1), at(far, -far, -1), at(far, far, -1));
        // Clusters whose limits are just on this or that side of a plane, at any of its points.
        const float z = random.uniform(-1.0f, 1.0f);
        const float half = ((1.0f - z) * far + (1.0f + z)) / 2.0f;
        const float nearby = std::ldexp(1.0f, random.integer(-26, 0));
        const Vector3f centre =
            at(half * (random.integer(0, 1) > 0 ? 1.0f - nearby : 1.0f + nearby), random.uniform(-0.5f, 0.5f), z);
        std::vector<Vector3f> points;
        for (int k = random.integer(1, 4); k > 0; --k) {
            points.push_back(centre + random.vector(nearby * scale * random.uniform(0.1f, 0.9f)));
        }
        const bool expected = areAllInside(frustrum, points);
        ASSERT_EQ(isInside(frustrum, points), expected) << "case " << i;
        ++(expected ? numInside : numOutside);
    }
    EXPECT_GT(numInside, 5000);
    EXPECT_GT(numOutside, 5000);
}

} // namespace
} // namespace vxgraphics3d
