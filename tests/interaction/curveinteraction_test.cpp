#include "interaction/curveinteraction.h"

#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaydrawcurve.h"
#include "graphics3d/overlays/overlayrenderedit2d.h"
#include "tests/interaction/testview.h"
#include "tests/support/editrecord.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <limits>
#include <stdexcept>

namespace vxinteraction {
namespace {

using vxgraphics3d::editEdge;
using vxgraphics3d::Overlay;
using vxgraphics3d::OverlayDrawCurve;
using vxgraphics3d::OverlayRenderEdit2d;

/// A view of 0 to 4 by 0 to 2 in 400 by 200 pixels, right of and above an empty margin, and a geometry in it.
class CurveInteractionTest : public testing::Test {
protected:
    CurveInteractionTest()
    {
        m_view.canvasHeight = 260;
        m_view.settings->setRenderMode(vxgraphics3d::Canvas3dSettings::RenderMode2d);
        m_view.camera2d().setRenderArea(450, 260, 50, 40, 400, 200);
        m_view.camera2d().setViewLimits(0, 4, 0, 2, false);
        const auto record = boost::make_shared<vxgraphics3d::OverlayRenderEdit2d::Record>();
        record->m_vertices = {{.x = 1, .y = 1}, {.x = 3, .y = 1}};
        record->m_edges = {editEdge(2, {{1, 1, 1}, {2, 2, 3}, {3, 1, 1}}), editEdge(1, {{3, 1, 1}, {3, 0, 1}}),
                           editEdge(2, {{1, 1, 1}, {2, 0.5, 1}, {3, 1, 1}})};
        record->m_edges[0].m_startVertex = 0;
        record->m_edges[0].m_endVertex = record->m_edges[1].m_startVertex = 1;
        record->m_edges[2].m_hidden = true;
        m_curve->connectRenderDrawEdit(record);
        m_overlay->addOverlayObject(m_curve, 7);
    }

    /// The pixel of a position in the coordinates of the scene.
    static int column(double x) { return 50 + static_cast<int>(x * 100); }
    static int row(double y) { return 260 - 40 - 1 - static_cast<int>(y * 100); }

    TestView m_view;
    boost::shared_ptr<OverlayRenderEdit2d> m_curve = boost::make_shared<OverlayRenderEdit2d>();
    boost::shared_ptr<Overlay> m_overlay = boost::make_shared<Overlay>();
    CurveInteraction m_interaction{m_view.settings, m_overlay, 260};
};

TEST_F(CurveInteractionTest, movesAVertexWithThePointerAndBack)
{
    // Three columns beside the vertex: the distance to it stays.
    ASSERT_TRUE(m_interaction.press(column(3) + 3, row(1) - 2));
    EXPECT_EQ(m_interaction.getCurve(), m_curve);
    EXPECT_EQ(m_interaction.getVertex(), 1);
    EXPECT_EQ(m_interaction.getControlPoint(), -1);
    EXPECT_FALSE(m_interaction.drag(column(3) + 3, row(1) - 2)) << "it has not moved";
    EXPECT_TRUE(m_interaction.drag(column(3) + 3 + 500, row(1) - 2 - 25)) << "beyond the picture";
    EXPECT_NEAR(double{m_curve->getVertex(1).x}, 8, 1e-5);
    EXPECT_NEAR(double{m_curve->getVertex(1).y}, 1.25, 1e-6);
    EXPECT_EQ(m_curve->getControlPoint(1, 0), m_curve->getVertex(1)) << "its edges follow";
    EXPECT_TRUE(m_interaction.cancel());
    EXPECT_EQ(m_curve->getVertex(1), Vector3f(3.0f, 1.0f, 0.0f));
    EXPECT_FALSE(m_interaction.isDragging());
    EXPECT_FALSE(m_interaction.drag(0, 0));
    EXPECT_FALSE(m_interaction.cancel());
}

TEST_F(CurveInteractionTest, movesAControlPointOfATransformedCurve)
{
    m_curve->scale(0.5f, 2.0f, 1.0f, true);
    m_curve->rotate(0.0f, 0.0f, 1.0f, 0.5f, false);
    const Vector3f before = m_curve->getControlPoint(0, 1);
    const Vector3f shown = before.transformed(m_curve->getTransformation());
    m_view.camera2d().setViewLimits(0, 40, 0, 20, false);
    ASSERT_TRUE(m_interaction.press(50 + static_cast<int>(shown.x * 10.0f), 219 - static_cast<int>(shown.y * 10.0f)));
    EXPECT_EQ(m_interaction.getControlPoint(), m_curve->getControlPointId(0, 1));
    EXPECT_EQ(m_interaction.getVertex(), -1);
    // The drag goes on with the view in which it began.
    m_view.camera2d().setViewLimits(0, 4, 0, 2, false);
    ASSERT_TRUE(
        m_interaction.drag(50 + static_cast<int>(shown.x * 10.0f) + 70, 219 - static_cast<int>(shown.y * 10.0f) + 20));
    const Vector3f moved = m_curve->getControlPoint(0, 1).transformed(m_curve->getTransformation());
    EXPECT_NEAR(moved.x, shown.x + 7, 1e-5);
    EXPECT_NEAR(moved.y, shown.y - 2, 1e-5);
    m_interaction.release();
    EXPECT_EQ(m_curve->getVertex(0), Vector3f(1.0f, 1.0f, 0.0f));
    // A curve without extent on the screen cannot be dragged.
    m_curve->scale(0.0f, 0.0f, 1.0f, true);
    EXPECT_FALSE(m_interaction.press(column(0), row(0)));
}

TEST_F(CurveInteractionTest, takesTheNearestPointOfTheCurveOnTop)
{
    EXPECT_FALSE(m_interaction.press(column(3) + 9, row(1))) << "out of reach";
    EXPECT_FALSE(m_interaction.press(column(2), row(0.5))) << "a hidden edge";
    const auto top = boost::make_shared<OverlayDrawCurve>();
    top->addVertex(3, 1.06);
    top->addEdge(0, top->addVertex(3.5, 1.5));
    for (const double x : {0.5, 0.6, 0.7}) {
        top->addControlPoint(0, x, 1.5);
    }
    m_overlay->addOverlayObject(top, 8);
    ASSERT_TRUE(m_interaction.press(column(3), row(1)));
    EXPECT_EQ(m_interaction.getCurve(), top) << "although a vertex of the curve below is nearer";
    ASSERT_TRUE(m_interaction.press(column(3), row(1) + 5));
    EXPECT_EQ(m_interaction.getCurve(), m_curve) << "a press ends the drag before it";
    EXPECT_FALSE(m_interaction.press(column(0.5), row(1.5))) << "a control point without influence";
    EXPECT_TRUE(m_interaction.press(column(0.6), row(1.5)));
    ASSERT_TRUE(m_interaction.press(column(3), row(0)));
    EXPECT_EQ(m_interaction.getControlPoint(), m_curve->getControlPointId(1, 1)) << "an end without vertex";
    // Pixels outside of the render area show nothing of the overlay.
    EXPECT_FALSE(m_interaction.press(column(3), row(0) + 2));
    m_view.settings->setRenderMode(vxgraphics3d::Canvas3dSettings::RenderMode3d);
    EXPECT_FALSE(m_interaction.press(column(3), row(1)));
    for (const int extreme : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_FALSE(m_interaction.press(extreme, extreme));
    }
    EXPECT_THROW(m_interaction.setCanvasHeight(0), std::invalid_argument);
    EXPECT_THROW(CurveInteraction(m_view.settings, nullptr, 1), std::invalid_argument);
    EXPECT_THROW(CurveInteraction(nullptr, m_overlay, 1), std::invalid_argument);
}

} // namespace
} // namespace vxinteraction
