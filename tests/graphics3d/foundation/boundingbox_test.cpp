#include "graphics3d/foundation/boundingbox.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace vxgraphics3d {
namespace {

const BoundingBox c_box(-1.0f, 3.0f, 2.0f, 4.0f, 0.0f, 8.0f);

TEST(BoundingBox, keepsCentreAndHalfSizes)
{
    EXPECT_TRUE(c_box.isValid());
    EXPECT_EQ(c_box.getCenter(), Vector3f(1.0f, 3.0f, 4.0f));
    EXPECT_EQ(c_box.getHalfSize(), Vector3f(2.0f, 1.0f, 4.0f));
    EXPECT_EQ(BoundingBox(-1.0, 3.0, 2.0, 4.0, 0.0, 8.0), c_box);
    EXPECT_EQ(BoundingBox({{-1.0, 3.0}, {2.0, 4.0}, {0.0, 8.0}}), c_box);
    EXPECT_THROW(BoundingBox({{-1.0, 3.0}, {2.0}, {0.0, 8.0}}), std::out_of_range);
    // Doubles are narrowed before the centre is computed: 1 + 2^-30 is 1 in float.
    EXPECT_EQ(BoundingBox(1.0 + 0x1p-30, 1.0 + 0x1p-30, 0.0, 0.0, 0.0, 0.0).getCenter().x, 1.0f);
}

TEST(BoundingBox, anEmptyBoxEqualsNothing)
{
    EXPECT_FALSE(BoundingBox() == BoundingBox());
    EXPECT_FALSE(BoundingBox() == c_box);
    EXPECT_FALSE(c_box == BoundingBox());
    BoundingBox other = c_box;
    EXPECT_TRUE(other == c_box);
    other.translate(0.0f, 0.0f, 1.0f);
    EXPECT_FALSE(other == c_box);
}

TEST(BoundingBox, initCopiesOnlyValidBoxes)
{
    BoundingBox box = c_box;
    box.init(BoundingBox());
    EXPECT_EQ(box, c_box);
    BoundingBox empty;
    empty.init(c_box);
    EXPECT_EQ(empty, c_box);
    box.reset();
    EXPECT_FALSE(box.isValid());
    EXPECT_EQ(box.getCenter(), Vector3f());
}

TEST(BoundingBox, mergeCoversBothAndIgnoresEmptyBoxes)
{
    BoundingBox box = c_box;
    box.merge(BoundingBox(1.0f, 5.0f, 3.0f, 3.5f, -4.0f, 1.0f));
    EXPECT_EQ(box, BoundingBox(-1.0f, 5.0f, 2.0f, 4.0f, -4.0f, 8.0f));
    box = c_box;
    box.merge(BoundingBox());
    EXPECT_EQ(box, c_box);
    BoundingBox empty;
    empty.merge(c_box);
    EXPECT_EQ(empty, c_box);
    empty.reset();
    empty.merge(BoundingBox());
    EXPECT_FALSE(empty.isValid());
}

TEST(BoundingBox, nanLimitsExtendNothing)
{
    const float none = std::numeric_limits<float>::quiet_NaN();
    BoundingBox box = c_box;
    box.merge(BoundingBox(none, none, 0.0f, 5.0f, none, 9.0f));
    EXPECT_EQ(box, BoundingBox(-1.0f, 3.0f, 0.0f, 5.0f, 0.0f, 8.0f));
    box.expandWithPoint({none, 6.0f, none});
    EXPECT_EQ(box, BoundingBox(-1.0f, 3.0f, 0.0f, 6.0f, 0.0f, 8.0f));
}

TEST(BoundingBox, mergeRoundsTheLimits)
{
    // The limits become centre 8388608 minus and plus half size 8388607.5: the minimum has moved from 1 to 0.5.
    BoundingBox box(1.0f, 16777216.0f, 0.0f, 1.0f, 0.0f, 1.0f);
    box.merge(box);
    EXPECT_EQ(box, BoundingBox(0.5f, 16777216.0f, 0.0f, 1.0f, 0.0f, 1.0f));
}

TEST(BoundingBox, expandWithPointNeverStartsABox)
{
    BoundingBox box;
    box.expandWithPoint({1.0f, 2.0f, 3.0f});
    EXPECT_FALSE(box.isValid());
    box = c_box;
    box.expandWithPoint({5.0f, 3.0f, -2.0f});
    EXPECT_EQ(box, BoundingBox(-1.0f, 5.0f, 2.0f, 4.0f, -2.0f, 8.0f));
}

TEST(BoundingBox, changesOfSizeAndPositionLeaveAnEmptyBoxUnchanged)
{
    BoundingBox box = c_box;
    box.expand(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(box, BoundingBox(-2.0f, 4.0f, 0.0f, 6.0f, -3.0f, 11.0f));
    box = c_box;
    box.scale(2.0f, 3.0f, 0.5f);
    EXPECT_EQ(box, BoundingBox(-3.0f, 5.0f, 0.0f, 6.0f, 2.0f, 6.0f));
    box = c_box;
    box.translate(1.0f, -2.0f, 3.0f);
    EXPECT_EQ(box, BoundingBox(0.0f, 4.0f, 0.0f, 2.0f, 3.0f, 11.0f));
    box.scale(0.0f, 0.0f, 0.0f);
    EXPECT_EQ(box, BoundingBox(2.0f, 2.0f, 1.0f, 1.0f, 7.0f, 7.0f));
    BoundingBox empty;
    empty.expand(1.0f, 1.0f, 1.0f);
    empty.scale(2.0f, 2.0f, 2.0f);
    empty.translate(1.0f, 1.0f, 1.0f);
    EXPECT_TRUE(empty.isZeroSize());
    EXPECT_EQ(empty.getCenter(), Vector3f());
}

TEST(BoundingBox, cornersAreNumberedAroundTheTwoFaces)
{
    const Vector3f corners[] = {{-1.0f, 2.0f, 0.0f}, {3.0f, 2.0f, 0.0f},  {3.0f, 4.0f, 0.0f}, {-1.0f, 4.0f, 0.0f},
                                {3.0f, 2.0f, 8.0f},  {-1.0f, 2.0f, 8.0f}, {3.0f, 4.0f, 8.0f}, {-1.0f, 4.0f, 8.0f}};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(c_box.getVertex(i), corners[i]) << "corner " << i;
    }
    EXPECT_EQ(c_box.getVertex(8), Vector3f());
    EXPECT_EQ(c_box.getVertex(-1), Vector3f());
    EXPECT_EQ(c_box.getMin(), corners[0]);
    EXPECT_EQ(c_box.getMax(), corners[6]);
}

TEST(BoundingBox, measures)
{
    EXPECT_EQ(c_box.getL1Norm(), 14.0f);
    EXPECT_EQ(BoundingBox(0.0f, 4.0f, 0.0f, 6.0f, 0.0f, 12.0f).getBoundingRadius(), 7.0f);
    // The squares would overflow in float.
    EXPECT_FLOAT_EQ(BoundingBox(-3e30f, 3e30f, -4e30f, 4e30f, 0.0f, 0.0f).getBoundingRadius(), 5e30f);
    EXPECT_TRUE(BoundingBox().isZeroSize());
    EXPECT_TRUE(BoundingBox(1.0f, 1.0f, 2.0f, 2.0f, 3.0f, 3.0f).isZeroSize());
    EXPECT_FALSE(BoundingBox(1.0f, 1.0f, 2.0f, 2.0f, 3.0f, 4.0f).isZeroSize());
}

TEST(BoundingBox, doesLineIntersectTestsTheSegment)
{
    struct Case {
        const char* what;
        Vector3f a;
        Vector3f b;
        bool meets;
    };
    const BoundingBox unit(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f);
    const Case cases[] = {
        {"through the box", {-1.0f, 0.5f, 0.5f}, {2.0f, 0.5f, 0.5f}, true},
        {"wholly inside", {0.2f, 0.2f, 0.2f}, {0.8f, 0.8f, 0.8f}, true},
        {"ends before the box", {-1.0f, 0.5f, 0.5f}, {-0.1f, 0.5f, 0.5f}, false},
        {"past an edge, though every axis overlaps", {-1.0f, 0.5f, 0.5f}, {0.5f, 2.1f, 0.5f}, false},
        {"touches a face", {-1.0f, 0.5f, 1.0f}, {2.0f, 0.5f, 1.0f}, true},
        {"a point inside", {0.5f, 0.5f, 0.5f}, {0.5f, 0.5f, 0.5f}, true},
        {"a point outside", {0.5f, 0.5f, 1.5f}, {0.5f, 0.5f, 1.5f}, false},
        {"backwards through the box", {0.5f, 3.0f, 0.5f}, {0.5f, -3.0f, 0.5f}, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(unit.doesLineIntersect(c.a, c.b), c.meets) << c.what;
    }
    EXPECT_FALSE(BoundingBox().doesLineIntersect({-1.0f, 0.0f, 0.0f}, {1.0f, 0.0f, 0.0f}));
}

} // namespace
} // namespace vxgraphics3d
