#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlayellipse.h"
#include "graphics3d/overlays/overlayline.h"
#include "graphics3d/overlays/overlaytransformation.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <cmath>
#include <stdexcept>
#include <vector>

namespace vxgraphics3d {
namespace {

using Objects = std::vector<boost::shared_ptr<OverlayObject>>;

TEST(Overlay, removesEveryEntryOfAnObjectAndCountsEachCall)
{
    Overlay overlay;
    const auto a = boost::make_shared<OverlayLine>();
    const auto b = boost::make_shared<OverlayLine>();
    a->setObjectPickID(9);
    overlay.addOverlayObject(a, 1);
    overlay.addOverlayObject(b, 2);
    overlay.addOverlayObject(a, 3);
    EXPECT_EQ(overlay.getOverlayObjects(), (Objects{a, b, a}));
    EXPECT_EQ(a->getObjectPickID(), 3);
    EXPECT_EQ(overlay.getChangeId(), 4);
    EXPECT_THROW(overlay.addOverlayObject(nullptr, 1), std::invalid_argument);

    // The argument is an element of the list.
    overlay.removeOverlayObject(overlay.getOverlayObjects()[0]);
    EXPECT_EQ(overlay.getOverlayObjects(), Objects{b});
    overlay.removeOverlayObject(a);
    EXPECT_EQ(overlay.getOverlayObjects(), Objects{b});
    EXPECT_EQ(overlay.getChangeId(), 6);
}

TEST(OverlayObject, stepsOfATransformationApplyToPointsBeforeTheEarlierOnes)
{
    OverlayLine line;
    line.scale(2.0f, 3.0f, 1.0f, false);
    line.translate(1.0f, 1.0f, 0.0f, false);
    EXPECT_EQ(line.getTransformation() * Vector3f(), Vector3f(2.0f, 3.0f, 0.0f));
    line.rotate(0.0f, 0.0f, 1.0f, 1.5707964f, true);
    const Vector3f turned = line.getTransformation() * Vector3f(1.0f, 0.0f, 0.0f);
    EXPECT_NEAR(turned.x, 0.0f, 1e-6f);
    EXPECT_NEAR(turned.y, 1.0f, 1e-6f);
}

TEST(OverlayEllipse, startsAtTheTopAndCloses)
{
    OverlayEllipse ellipse;
    ellipse.setStart(10.0, 20.0);
    ellipse.setEnd(7.0, 25.0); // radii 3 and 5
    int count = 0;
    const float* xyz = ellipse.getVertices(count);
    ASSERT_EQ(count, 180);
    EXPECT_EQ(xyz[0], 10.0f);
    EXPECT_EQ(xyz[1], 25.0f);
    EXPECT_NEAR(xyz[3 * 179], 10.0f, 1e-5f);
    EXPECT_NEAR(xyz[3 * 179 + 1], 25.0f, 1e-5f);
    EXPECT_GT(xyz[3], 10.0f) << "clockwise";
    for (int i = 0; i < count; ++i) {
        EXPECT_NEAR(std::hypot((xyz[3 * i] - 10.0f) / 3.0f, (xyz[3 * i + 1] - 20.0f) / 5.0f), 1.0f, 1e-6f);
        EXPECT_EQ(xyz[3 * i + 2], 0.0f);
    }
    ellipse.setEnd(10.0, 20.0);
    EXPECT_EQ(ellipse.getVertices(count), xyz) << "the array is the object's own";
    for (int i = 0; i < 180; ++i) {
        EXPECT_EQ(Vector3f(xyz[3 * i], xyz[3 * i + 1], xyz[3 * i + 2]), Vector3f(10.0f, 20.0f, 0.0f));
    }
}

TEST(OverlayTransformation, hasTwelveEdgesOfTheBoxAndHandlesAroundItsRectangle)
{
    OverlayTransformation frame;
    int count = -1;
    const float* xyz = frame.getVertices(BoundingBox(), count);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(frame.getHandlePos(4), Vector3f());

    frame.getVertices(BoundingBox(0.0f, 2.0f, 10.0f, 14.0f, 5.0f, 9.0f), count);
    ASSERT_EQ(count, 24);
    const auto vertex = [&](int i) { return Vector3f(xyz[3 * i], xyz[3 * i + 1], xyz[3 * i + 2]); };
    // The first edge of each direction, and the second, which differs in the coordinate that varies first.
    EXPECT_EQ(vertex(0), Vector3f(0.0f, 10.0f, 5.0f));
    EXPECT_EQ(vertex(1), Vector3f(2.0f, 10.0f, 5.0f));
    EXPECT_EQ(vertex(2), Vector3f(0.0f, 14.0f, 5.0f));
    EXPECT_EQ(vertex(9), Vector3f(0.0f, 14.0f, 5.0f));
    EXPECT_EQ(vertex(10), Vector3f(2.0f, 10.0f, 5.0f));
    EXPECT_EQ(vertex(17), Vector3f(0.0f, 10.0f, 9.0f));
    EXPECT_EQ(vertex(18), Vector3f(2.0f, 10.0f, 5.0f));
    EXPECT_EQ(vertex(23), Vector3f(2.0f, 14.0f, 9.0f));
    const Vector3f handles[] = {{0.0f, 10.0f, 0.0f}, {1.0f, 10.0f, 0.0f}, {2.0f, 10.0f, 0.0f}, {2.0f, 12.0f, 0.0f},
                                {2.0f, 14.0f, 0.0f}, {1.0f, 14.0f, 0.0f}, {0.0f, 14.0f, 0.0f}, {0.0f, 12.0f, 0.0f}};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(frame.getHandlePos(i), handles[i]) << i;
    }

    frame.getVertices(BoundingBox(), count);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(vertex(23), Vector3f(2.0f, 14.0f, 9.0f)) << "an empty box leaves all as it was";
    frame.scale(10.0f, 10.0f, 1.0f, true);
    std::vector<double> out(4, 7.0);
    frame.getTransformedHandlePos(3, out);
    EXPECT_EQ(out, (std::vector<double>{20.0, 120.0, 0.0, 7.0}));
    EXPECT_EQ(frame.getHandlePos(3), handles[3]);
}

TEST(OverlayTransformation, refusesHandlesThatDoNotExist)
{
    OverlayTransformation frame;
    std::vector<double> out(3);
    for (const int handle : {-1, 8}) {
        EXPECT_THROW(frame.setMarkedHandle(handle, true), std::out_of_range);
        EXPECT_THROW(frame.getTransformedHandlePos(handle, out), std::out_of_range);
    }
    std::vector<double> tooShort(2);
    EXPECT_THROW(frame.getTransformedHandlePos(0, tooShort), std::invalid_argument);
    frame.setMarkedHandle(7, true);
    EXPECT_TRUE(frame.isHandleMarked(7));
    EXPECT_FALSE(frame.isHandleMarked(0));
}

} // namespace
} // namespace vxgraphics3d
