#include "interaction/overlayinteraction.h"

#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaydrawcurve.h"
#include "graphics3d/overlays/overlayellipse.h"
#include "graphics3d/overlays/overlayrectangle.h"
#include "graphics3d/overlays/overlaysymbol.h"
#include "graphics3d/overlays/overlaytransformation.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "interaction/curvedrawing.h"
#include "interaction/curveediting.h"
#include "interaction/frameinteraction.h"
#include "interaction/overlaypicker.h"
#include "interaction/rubberband.h"
#include "tests/interaction/testview.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <array>
#include <cmath>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vxinteraction {
namespace {

using namespace vxgraphics3d;

/// A flat view of 400 by 300 pixels in a taller canvas, in which ten pixels are a unit: the origin is at the corner of
/// the pixels (100, 250) and (99, 249).
struct FlatView {
    static constexpr int c_originX = 100;
    static constexpr int c_originY = 250;

    TestView view;

    FlatView()
    {
        view.canvasHeight = 400;
        view.settings->setRenderMode(Canvas3dSettings::RenderMode2d);
        view.camera2d().setRenderArea(500, 400, 50, 60, 400, 300);
        view.camera2d().setViewLimits(-5.0f, 35.0f, -9.0f, 21.0f);
    }
    operator OverlayView() const { return {view.settings, view.canvasHeight}; }
};

/// The pixel whose upper left corner is a point of the flat view, so that its middle is 0.05 to the right and below.
std::array<int, 2> pixelAt(double x, double y)
{
    return {FlatView::c_originX + static_cast<int>(std::lround(10.0 * x)),
            FlatView::c_originY - static_cast<int>(std::lround(10.0 * y))};
}

bool press(OverlayInteraction& interaction, double x, double y)
{
    const auto [column, row] = pixelAt(x, y);
    return interaction.press(column, row);
}

bool drag(OverlayInteraction& interaction, double x, double y)
{
    const auto [column, row] = pixelAt(x, y);
    return interaction.drag(column, row);
}

void expectNear(const Vector3f& a, const Vector3f& b, float error = 1e-3f)
{
    EXPECT_LT((a - b).length(), error) << a << " and " << b;
}

TEST(OverlayPlane, convertsBetweenThePictureAndThePlaneInViewsOfAllKinds)
{
    int numSeen = 0;
    forRandomViews({Perspective, Orthographic, Planar}, [&](TestView& view) {
        const OverlayPlane plane(view.camera(), view.canvasHeight);
        for (int i = 0; i < 10; ++i) {
            const Vector3f point = view.camera().getRotationPoint() + view.vector(1.0f);
            const AreaPoint expected = view.project(point);
            const auto seen = plane.toPicture(point);
            ASSERT_TRUE(seen);
            EXPECT_NEAR(seen->x - view.camera().getRenderAreaLeft(), expected.x, 0.1);
            EXPECT_NEAR(view.canvasHeight - seen->y - view.camera().getRenderAreaBottom(), expected.y, 0.1);

            const PlanePoint pixel = {static_cast<double>(view.uniform(0.0f, 900.0f)),
                                      static_cast<double>(view.uniform(0.0f, 900.0f))};
            if (const auto inPlane = plane.toPlane(pixel)) {
                const auto back = plane.toPicture(Vector3f(inPlane->x, inPlane->y, 0.0));
                ASSERT_TRUE(back);
                EXPECT_NEAR(back->x, pixel.x, 0.1);
                EXPECT_NEAR(back->y, pixel.y, 0.1);
                ++numSeen;
            }
        }
    });
    EXPECT_GT(numSeen, 2000);
}

TEST(OverlayPlane, hasNoPointsBehindTheEyeOrBeyondTheHorizon)
{
    TestView view = frontView(Perspective);
    view.camera3d().lookAt({0.0f, 0.0f, 1.0f}, {0.0f, 1.0f, -0.05f}, {0.0f, 0.0f, 1.0f});
    const OverlayPlane plane(view.camera(), view.canvasHeight);
    EXPECT_TRUE(plane.toPlane({200.0, 199.0}));
    EXPECT_FALSE(plane.toPlane({200.0, 1.0})) << "the sky";
    EXPECT_FALSE(plane.toPicture({0.0f, -5.0f, 0.0f}));
    view.camera3d().lookAt({0.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
    EXPECT_FALSE(OverlayPlane(view.camera(), view.canvasHeight).toPlane({200.0, 100.0})) << "along the plane";
    EXPECT_THROW(OverlayView(nullptr, 10), std::invalid_argument);
    EXPECT_THROW(OverlayView(view.settings, 0), std::invalid_argument);
}

TEST(RubberBand, isInTheOverlayFromItsFirstMovementToItsEnd)
{
    const auto overlay = boost::make_shared<Overlay>();
    const auto rectangle = boost::make_shared<OverlayRectangle>();
    RubberBand band(overlay, rectangle);
    EXPECT_FALSE(band.drag(1, 1));
    band.press(10, 20);
    EXPECT_FALSE(band.drag(10, 20));
    EXPECT_TRUE(overlay->getOverlayObjects().empty());
    EXPECT_TRUE(band.drag(40, 5));
    EXPECT_TRUE(band.drag(50, 6));
    ASSERT_EQ(overlay->getOverlayObjects().size(), 1u);
    EXPECT_EQ(rectangle->getStartX(), 10.5);
    EXPECT_EQ(rectangle->getEndY(), 6.5);
    EXPECT_EQ(band.release(), (RubberBand::Corners{10, 20, 50, 6}));
    EXPECT_TRUE(overlay->getOverlayObjects().empty());
    EXPECT_FALSE(band.isActive());
    band.press(1, 1);
    EXPECT_FALSE(band.release()) << "a click is no rectangle";
    EXPECT_FALSE(band.cancel());
}

class FrameInteractionTest : public testing::Test {
protected:
    FrameInteractionTest() { m_frame->setupWithBoundingbox(BoundingBox(2.0f, 6.0f, 1.0f, 3.0f, 0.0f, 0.0f)); }

    Vector3f moved(float x, float y) const { return m_frame->getTransformation() * Vector3f(x, y, 0.0f); }

    FlatView m_view;
    boost::shared_ptr<OverlayTransformation> m_frame = boost::make_shared<OverlayTransformation>();
    FrameInteraction m_interaction{m_view, m_frame};
};

TEST_F(FrameInteractionTest, insideMovesTheFrameAndCancelMovesItBack)
{
    EXPECT_FALSE(press(m_interaction, 0.0, 0.0)) << "outside";
    EXPECT_FALSE(drag(m_interaction, 1.0, 0.0));
    EXPECT_TRUE(press(m_interaction, 3.0, 2.0));
    EXPECT_TRUE(drag(m_interaction, 8.0, -1.0));
    EXPECT_TRUE(drag(m_interaction, 13.0, 7.0));
    expectNear(moved(2.0f, 1.0f), {12.0f, 6.0f, 0.0f});
    m_interaction.release();
    // The frame is where it was moved to.
    EXPECT_FALSE(press(m_interaction, 3.0, 2.0));
    EXPECT_TRUE(press(m_interaction, 13.0, 7.0));
    drag(m_interaction, 0.0, 0.0);
    EXPECT_TRUE(m_interaction.cancel());
    expectNear(moved(2.0f, 1.0f), {12.0f, 6.0f, 0.0f});
    EXPECT_FALSE(m_interaction.isActive());
}

TEST_F(FrameInteractionTest, handlesScaleAboutTheOppositeOne)
{
    ASSERT_TRUE(press(m_interaction, 6.0, 3.0));
    drag(m_interaction, 10.0, 4.0);
    expectNear(moved(2.0f, 1.0f), {2.0f, 1.0f, 0.0f});
    expectNear(moved(6.0f, 3.0f), {10.0f, 4.0f, 0.0f});
    m_interaction.release();

    // The right side, now at x = 10; the height of the pointer does not matter.
    ASSERT_TRUE(press(m_interaction, 10.0, 2.5));
    drag(m_interaction, 6.0, 20.0);
    expectNear(moved(6.0f, 3.0f), {6.0f, 4.0f, 0.0f});
    // Beyond the opposite side: not mirrored.
    drag(m_interaction, -4.0, 0.0);
    expectNear(moved(6.0f, 3.0f), {2.08f, 4.0f, 0.0f});
    m_interaction.cancel();
    expectNear(moved(6.0f, 3.0f), {10.0f, 4.0f, 0.0f});
}

TEST_F(FrameInteractionTest, rotatedFrameIsScaledAlongItsOwnAxes)
{
    m_frame->rotate(0.0f, 0.0f, 1.0f, 1.5707964f, true); // (x, y) comes to (-y, x)
    ASSERT_TRUE(press(m_interaction, -1.0, 4.0)) << "the middle of the lower side";
    drag(m_interaction, 1.0, 4.0);
    expectNear(moved(2.0f, 1.0f), {1.0f, 2.0f, 0.0f});
    expectNear(moved(6.0f, 3.0f), {-3.0f, 6.0f, 0.0f});
    expectNear(m_interaction.getTransformation() * Vector3f(4.0f, 2.0f, 0.0f), {-1.0f, 4.0f, 0.0f});
}

TEST_F(FrameInteractionTest, handleUnderThePointerIsMarked)
{
    EXPECT_TRUE(drag(m_interaction, 6.0, 3.0));
    EXPECT_TRUE(m_frame->isHandleMarked(4));
    EXPECT_FALSE(drag(m_interaction, 6.1, 3.0));
    EXPECT_TRUE(drag(m_interaction, 4.0, 1.0));
    EXPECT_FALSE(m_frame->isHandleMarked(4));
    EXPECT_TRUE(m_frame->isHandleMarked(1));
    EXPECT_TRUE(drag(m_interaction, 3.0, 2.0));
    EXPECT_FALSE(m_frame->isHandleMarked(1));
    FrameInteraction undrawn(m_view, boost::make_shared<OverlayTransformation>());
    EXPECT_FALSE(press(undrawn, 0.0, 0.0)) << "its handles are not known";
}

class CurveTest : public testing::Test {
protected:
    int addEdge(int start, int end, const std::vector<std::pair<double, double>>& points)
    {
        const int edge = m_curve->addEdge(start, end);
        for (const auto& [x, y] : points) {
            m_curve->addControlPoint(edge, x, y);
        }
        return edge;
    }
    Vector3f endOf(int edge, bool isLast) const
    {
        int count = 0;
        const float* xyz = m_curve->getRenderVertices(count, edge);
        const float* at = isLast ? xyz + 3 * (count - 1) : xyz;
        return {at[0], at[1], at[2]};
    }

    FlatView m_view;
    boost::shared_ptr<Overlay> m_overlay = boost::make_shared<Overlay>();
    boost::shared_ptr<OverlayDrawCurve> m_curve = boost::make_shared<OverlayDrawCurve>();
};

TEST_F(CurveTest, drawingAddsAnEdgeWithItsLastPointAndShowsItBefore)
{
    CurveDrawing drawing(m_view, m_overlay, m_curve);
    drawing.setDegree(3);
    press(drawing, 0.0, 0.0);
    EXPECT_TRUE(drag(drawing, 5.0, 5.0));
    press(drawing, 0.0, 5.0);
    press(drawing, 10.0, 5.0);
    ASSERT_EQ(m_overlay->getOverlayObjects().size(), 1u);
    const auto preview = boost::dynamic_pointer_cast<OverlayDrawCurve>(m_overlay->getOverlayObjects()[0]);
    drag(drawing, 10.0, 1.0);
    expectNear(preview->getControlPoint(0, 1), {0.05f, 4.95f, 0.0f});
    expectNear(preview->getVertex(1), {10.05f, 0.95f, 0.0f});
    EXPECT_EQ(m_curve->getNVertices(), 0);
    press(drawing, 10.0, 0.0);
    ASSERT_EQ(m_curve->getNEdges(), 1);
    EXPECT_EQ(m_curve->getDegree(0), 3);
    expectNear(m_curve->getControlPoint(0, 2), {10.05f, 4.95f, 0.0f});
    expectNear(endOf(0, true), {10.05f, -0.05f, 0.0f});

    drawing.setDegree(1);
    press(drawing, 5.0, -5.0);
    press(drawing, 0.2, 0.1); // within the tolerance of the first vertex
    EXPECT_EQ(m_curve->getNEdges(), 3);
    EXPECT_EQ(m_curve->getNVertices(), 3);
    EXPECT_EQ(endOf(2, true), m_curve->getVertex(0));
    EXPECT_FALSE(drawing.isActive()) << "the chain is closed";
    EXPECT_TRUE(m_overlay->getOverlayObjects().empty());
}

TEST_F(CurveTest, finishDropsThePointsOfAnUnfinishedEdge)
{
    CurveDrawing drawing(m_view, m_overlay, m_curve);
    drawing.setDegree(2);
    for (const double x : {0.0, 1.0, 2.0, 3.0}) {
        press(drawing, x, x * x);
    }
    EXPECT_TRUE(drawing.finish());
    EXPECT_FALSE(drawing.cancel());
    EXPECT_TRUE(m_overlay->getOverlayObjects().empty());
    EXPECT_EQ(m_curve->getNEdges(), 1);
    EXPECT_EQ(m_curve->getNVertices(), 2);
    press(drawing, 9.0, 9.0);
    EXPECT_EQ(m_curve->getNVertices(), 2) << "a new chain begins with its first edge";
    EXPECT_THROW(drawing.setDegree(4), std::invalid_argument);
}

TEST_F(CurveTest, draggedVertexTakesAllItsEdgesAlong)
{
    for (const auto& [x, y] : {std::pair(5.0, 5.0), std::pair(0.0, 0.0), std::pair(10.0, 0.0), std::pair(5.0, 10.0)}) {
        m_curve->addVertex(x, y);
    }
    for (int i = 1; i < 4; ++i) {
        addEdge(0, i, {{5.0, 5.0}, {0.0, 0.0}});
    }
    CurveEditing editing(m_view, m_curve);
    EXPECT_FALSE(press(editing, 20.0, 10.0));
    EXPECT_TRUE(press(editing, 5.2, 5.2));
    EXPECT_EQ(editing.getVertex(), 0);
    EXPECT_TRUE(drag(editing, 7.2, 6.2));
    for (int edge = 0; edge < 3; ++edge) {
        expectNear(endOf(edge, false), {7.0f, 6.0f, 0.0f});
    }
    EXPECT_EQ(m_curve->getMarkedVertices(), std::set<int>{0});
    EXPECT_TRUE(editing.cancel());
    expectNear(endOf(1, false), {5.0f, 5.0f, 0.0f});
    press(editing, 20.0, 10.0);
    EXPECT_TRUE(m_curve->getMarkedVertices().empty());
    EXPECT_FALSE(drag(editing, 0.0, 0.0));
}

TEST_F(CurveTest, draggedControlPointBendsItsEdgeAlsoOfATransformedCurve)
{
    m_curve->addVertex(0.0, 0.0);
    m_curve->addVertex(4.0, 0.0);
    addEdge(0, 1, {{0.0, 0.0}, {2.0, 2.0}, {4.0, 0.0}});
    m_curve->scale(2.0f, 2.0f, 1.0f, true);
    CurveEditing editing(m_view, m_curve);
    EXPECT_TRUE(press(editing, 4.0, 4.0));
    EXPECT_EQ(editing.getControlPoint(), 1);
    EXPECT_EQ(editing.getVertex(), -1);
    drag(editing, 6.0, 8.0);
    editing.release();
    expectNear(m_curve->getControlPoint(0, 1), {3.0f, 4.0f, 0.0f});
    EXPECT_EQ(m_curve->getMarkedPoints(), std::set<int>{1});
}

TEST_F(CurveTest, pickerFindsPartsAndAreasFromTheTopToTheBottom)
{
    const auto pick = [&](double x, double y) {
        PickedObjectCollection picked;
        const auto [column, row] = pixelAt(x, y);
        OverlayPicker(m_view, m_overlay).pick(column, row, picked);
        std::vector<PickedObject> results;
        for (int i = 0; i < picked.getNumberOfPickedObjects(); ++i) {
            results.push_back(picked.getPickedObject(i));
        }
        return results;
    };
    const auto hit = [](int id, PartType type = PartTypeNone, int part = -1) {
        return PickedObject(PickedObject::PickedOverlay, id, type, part);
    };
    using Hits = std::vector<PickedObject>;

    const auto ellipse = boost::make_shared<OverlayEllipse>();
    ellipse->setStart(10.0, 10.0);
    ellipse->setEnd(20.0, 15.0);
    m_overlay->addOverlayObject(ellipse, 11);
    EXPECT_EQ(pick(20.0, 10.0), Hits{hit(11)});
    EXPECT_EQ(pick(10.0, 5.3), Hits{hit(11)});
    EXPECT_EQ(pick(10.0, 10.0), Hits{}) << "not filled";
    ellipse->setFilled(true);
    EXPECT_EQ(pick(10.0, 10.0), Hits{hit(11)});
    EXPECT_EQ(pick(19.0, 14.0), Hits{}) << "a corner of the rectangle around it";

    m_curve->addVertex(10.0, 10.0);
    m_curve->addVertex(14.0, 10.0);
    addEdge(0, 1, {{10.0, 10.0}, {12.0, 14.0}, {14.0, 10.0}});
    m_overlay->addOverlayObject(m_curve, 12);
    EXPECT_EQ(pick(10.0, 10.0), (Hits{hit(12, PartTypePoint, 0), hit(11)}));
    EXPECT_EQ(pick(12.0, 14.0), (Hits{hit(12, OverlayPicker::c_controlPoint, 1), hit(11)}));
    int count = 0;
    const float* middle = m_curve->getRenderVertices(count, 0) + 3 * 10;
    EXPECT_EQ(pick(static_cast<double>(middle[0]), static_cast<double>(middle[1])),
              (Hits{hit(12, PartTypeLine, 0), hit(11)}));
    EXPECT_EQ(pick(12.0, 10.5), Hits{hit(11)});

    const auto frame = boost::make_shared<OverlayTransformation>();
    frame->setupWithBoundingbox(BoundingBox(-4.0f, 30.0f, -8.0f, 20.0f, 0.0f, 0.0f));
    m_overlay->addOverlayObject(frame, 13);
    EXPECT_EQ(pick(30.0, 6.0), Hits{hit(13, OverlayPicker::c_handle, 3)});
    EXPECT_EQ(pick(30.0, 0.0), Hits{hit(13)});
    const auto symbol = boost::make_shared<OverlaySymbol>(RenderSymbol::triangleDown);
    symbol->translate(25.0f, 0.0f, 0.0f, true);
    m_overlay->addOverlayObject(symbol, 14);
    EXPECT_EQ(pick(25.5, 0.5), Hits{hit(14)});
    symbol->setIsOutlined(false);
    EXPECT_EQ(pick(25.5, 0.5), Hits{}) << "what is not drawn is not hit";
}

} // namespace
} // namespace vxinteraction
