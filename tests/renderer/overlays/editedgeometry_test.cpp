// Pixels of a geometry that is edited, over a flat view in which a unit is a pixel, with y upwards.

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlayrenderedit2d.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/editrecord.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

constexpr int c_size = 200;
constexpr Rgb c_black = {0, 0, 0};
constexpr Rgb c_red = {255, 0, 0};

/// A quarter of a circle of radius 100 about (40, 40), a line from its end to (40, 40), and a hidden line back.
class EditedGeometryTest : public testing::Test {
protected:
    EditedGeometryTest()
    {
        const auto record = boost::make_shared<OverlayRenderEdit2d::Record>();
        record->m_vertices = {{.x = 140, .y = 40}, {.x = 40, .y = 140}, {.x = 40, .y = 40}};
        record->m_edges = {editEdge(2, {{140, 40, 1}, {140, 140, std::sqrt(0.5)}, {40, 140, 1}}),
                           editEdge(1, {{40, 140, 1}, {40, 40, 1}}), editEdge(1, {{40, 40, 1}, {140, 40, 1}})};
        for (int i = 0; i < 3; ++i) {
            record->m_edges[static_cast<std::size_t>(i)].m_startVertex = i;
            record->m_edges[static_cast<std::size_t>(i)].m_endVertex = (i + 1) % 3;
        }
        record->m_edges[2].m_hidden = true;
        m_curve->connectRenderDrawEdit(record);
        m_curve->setUseColor(true);
        m_curve->setLineSize(3.0f);
        m_curve->setMarkingColor({255, 0, 0, 255});
        m_overlay->addOverlayObject(m_curve, 1);
        m_canvas.setOverlay(m_overlay);
        showFlat(m_canvas, m_scene);
        showPlotsAlone(m_canvas);
        m_canvas.draw(); // gives the camera its area
        const PixelArea& area = m_canvas.getView().area;
        const auto bottom = static_cast<float>(c_size - area.y - area.height);
        m_canvas.getCanvas3dSettings()->camera2d()->setViewLimits(static_cast<float>(area.x),
                                                                  static_cast<float>(area.x + area.width), bottom,
                                                                  bottom + static_cast<float>(area.height));
    }

    void draw() { m_picture = drawnAsIs(m_canvas); }
    Rgb at(double x, double y) const { return m_picture.at(static_cast<int>(x), c_size - 1 - static_cast<int>(y)); }
    /// How many pixels around a point have a colour.
    int count(int x, int y, int reach, Rgb color) const
    {
        int found = 0;
        for (int i = -reach; i <= reach; ++i) {
            for (int j = -reach; j <= reach; ++j) {
                found += at(x + i, y + j) == color ? 1 : 0;
            }
        }
        return found;
    }

    OffscreenCanvas m_canvas{c_size, c_size, 1};
    TestScene m_scene;
    boost::shared_ptr<Overlay> m_overlay = boost::make_shared<Overlay>();
    boost::shared_ptr<OverlayRenderEdit2d> m_curve = boost::make_shared<OverlayRenderEdit2d>();
    Picture m_picture;
};

TEST_F(EditedGeometryTest, edgesFollowADraggedVertex)
{
    draw();
    for (const double angle : {0.3, 0.6, 0.9, 1.2}) {
        EXPECT_EQ(at(40 + 100 * std::cos(angle), 40 + 100 * std::sin(angle)), c_black) << angle;
        EXPECT_EQ(at(40 + 90 * std::cos(angle), 40 + 90 * std::sin(angle)), c_white) << angle;
    }
    EXPECT_EQ(at(40, 90), c_black);
    EXPECT_EQ(at(90, 40), c_white) << "a hidden edge";
    // The polygon of the arc is a thin faint line; a straight edge has none.
    EXPECT_NE(at(139.5, 90), c_white);
    EXPECT_NE(at(139.5, 90), c_black);

    m_curve->setVertex(1, 100, 140);
    draw();
    EXPECT_EQ(at(40, 90), c_white);
    EXPECT_EQ(at(70, 90), c_black) << "the line to the vertex";
    EXPECT_EQ(at(40 + 100 * std::cos(1.2), 40 + 100 * std::sin(1.2)), c_white) << "the arc, too, has left";
    EXPECT_GT(count(100, 140, 4, c_black), 30) << "the vertex";
}

TEST_F(EditedGeometryTest, marksAndNumbersAreShown)
{
    m_curve->setMarkEdge(0, true);
    draw();
    EXPECT_EQ(at(40 + 100 * std::cos(0.6), 40 + 100 * std::sin(0.6)), c_red);
    EXPECT_EQ(at(40, 90), c_black);
    const int marked = count(140, 40, 8, c_red);
    EXPECT_GT(marked, count(40, 40, 8, c_black) + 20) << "a marked vertex is larger";
    EXPECT_GT(count(140, 140, 8, c_red), 50) << "its control points are marked, too";
    EXPECT_EQ(count(60, 100, 12, c_black), 0);
    m_curve->clearMarkings();
    draw();
    EXPECT_EQ(count(140, 40, 8, c_red), 0);
    const Picture without = m_picture;
    m_curve->setDisplayEdgeNumbers(true);
    draw();
    int changed = 0;
    for (int y = 0; y < c_size; ++y) {
        for (int x = 0; x < c_size; ++x) {
            if (at(x, y) != without.at(x, c_size - 1 - y)) {
                ++changed;
                const bool isAtLine = std::abs(x - 40) < 30 && std::abs(y - 90) < 20;
                const bool isAtArc = std::abs(x - 111) < 30 && std::abs(y - 111) < 20;
                EXPECT_TRUE(isAtLine || isAtArc) << x << ' ' << y;
            }
        }
    }
    EXPECT_GT(changed, 60) << "two numbers, beside the middles of the edges";
}

} // namespace
} // namespace vxrenderer
