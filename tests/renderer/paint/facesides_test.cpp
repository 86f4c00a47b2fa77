// Which side of a face is seen: pixels of lit closed surfaces and of holes in them.

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace vxrenderer {
namespace {

using vxdatacarrier::PostDataObject;
using vxgraphics3d::Camera3d;
using vxgraphics3d::SceneGraphPlotSurface3d;
using vxgraphics3d::Vector3f;

constexpr int c_size = 240;
constexpr int c_cells = 16;
constexpr float c_nan = std::numeric_limits<float>::quiet_NaN();
constexpr float c_infinity = std::numeric_limits<float>::infinity();

GridRecord grid(int cells)
{
    GridRecord record;
    record.cells = cells;
    record.height = [](double, double) { return 0.0; };
    return record;
}

/// The unit sphere as a closed surface, with corners counter-clockwise seen from outside and normals outwards.
PostDataObject sphere()
{
    PostDataObject record = grid(c_cells).make();
    std::vector<std::vector<double>>& axes = *record.m_coordinates[0];
    for (std::size_t i = 0; i < axes[0].size(); ++i) {
        // The last column of the grid meets the first one, its first and last rows lie on the poles.
        const auto column = static_cast<double>(std::lround(axes[0][i] * c_cells) % c_cells);
        const double around = column * 2.0 * std::numbers::pi / c_cells;
        const double up = (axes[1][i] - 0.5) * std::numbers::pi;
        const double point[] = {std::cos(up) * std::cos(around), std::cos(up) * std::sin(around), std::sin(up)};
        for (std::size_t axis = 0; axis < 3; ++axis) {
            axes[axis][i] = point[axis];
            (*record.m_normals[0])[axis][i] = static_cast<float>(point[axis]);
        }
    }
    record.m_bounds->assign(3, {-1.0, 1.0});
    return record;
}

/// Lit surfaces in one colour.
class FaceSidesTest : public ::testing::Test {
protected:
    FaceSidesTest()
    {
        m_plot = m_scene.addSquare(1, 0xc0c0c0);
        showFromAbove(m_canvas, m_scene);
        auto& light = *m_scene.scene->getSceneLight();
        auto& lamp = static_cast<vxgraphics3d::DirectionLightSource&>(*light.lightSource(light.createDirectionLight()));
        lamp.setFromDirection(true, Vector3f(0.5f, -0.6f, 0.8f));
        lamp.setIntensity(0.7f);
        lamp.setSpecularIntensity(0.3f);
        lamp.setActive(true);
        light.setAmbientIntensity(0.3f);
    }

    Camera3d& camera() { return *m_canvas.getCanvas3dSettings()->camera3d(); }

    Picture pictureOf(const PostDataObject& record)
    {
        m_plot->fillPlot(record);
        return drawn(m_canvas);
    }

    /// Pixels that differ by more than rounding.
    static int numDifferent(const Picture& a, const Picture& b)
    {
        int count = 0;
        for (std::size_t i = 0; i < a.bytes.size(); i += 4) {
            bool differs = false;
            for (std::size_t channel = i; channel < i + 3; ++channel) {
                differs |= std::abs(a.bytes[channel] - b.bytes[channel]) > 1;
            }
            count += differs ? 1 : 0;
        }
        return count;
    }

    /// The triangles of a record that turn their outside to the eye of the view drawn last.
    PostDataObject withoutBackFaces(PostDataObject record)
    {
        const View& view = m_canvas.getView();
        const std::vector<std::vector<double>>& axes = *record.m_coordinates[0];
        std::vector<std::vector<int>>& corners = *record.m_elements[0];
        const std::vector<std::vector<int>> all = corners;
        corners.assign(3, {});
        for (std::size_t t = 0; t < all[0].size(); ++t) {
            const auto inEye = [&](std::size_t corner) {
                const auto i = static_cast<std::size_t>(all[corner][t]);
                return view.sceneToEye * Vector3f(axes[0][i], axes[1][i], axes[2][i]);
            };
            const Vector3f a = inEye(0);
            const Vector3f outward = (inEye(1) - a).cross(inEye(2) - a);
            if (view.isPerspective ? outward.dot(a) < 0.0f : outward.z > 0.0f) {
                for (std::size_t corner = 0; corner < 3; ++corner) {
                    corners[corner].push_back(all[corner][t]);
                }
            }
        }
        return record;
    }

    OffscreenCanvas m_canvas{c_size, c_size, 4};
    TestScene m_scene;
    boost::shared_ptr<SceneGraphPlotSurface3d> m_plot;
};

TEST_F(FaceSidesTest, aClosedSphereLooksTheSameWithoutItsBackFaces)
{
    for (const bool isStudio : {false, true}) {
        m_canvas.setStyle({.isStudio = isStudio});
        for (const auto type : {Camera3d::ProjectionOrthographic, Camera3d::ProjectionPerspective}) {
            camera().setProjectionType(type);
            for (const double azimuth : {11.0, 57.0, 200.0}) {
                lookFrom(m_canvas, azimuth, 23.0);
                const Picture whole = pictureOf(sphere());
                const PostDataObject front = withoutBackFaces(sphere());
                m_plot->fillPlot(front);
                EXPECT_EQ(numDifferent(drawnAsIs(m_canvas), whole), 0) << type << ' ' << azimuth;
                EXPECT_LT((*front.m_elements[0])[0].size(), c_cells * c_cells * 3u / 2u);
                EXPECT_GT(whole.countDrawn(0, 0, c_size, c_size), 10000);
            }
        }
    }
}

TEST_F(FaceSidesTest, neitherTheOrderOfCornersNorTheDirectionOfNormalsNorAMirrorImageMatters)
{
    lookFrom(m_canvas, 31.0, 17.0);
    const Picture expected = pictureOf(sphere());
    const auto turnCorners = [](PostDataObject& record, std::size_t step) {
        std::vector<std::vector<int>>& corners = *record.m_elements[0];
        for (std::size_t t = 0; t < corners[0].size(); t += step) {
            std::swap(corners[0][t], corners[2][t]);
        }
    };
    const auto turnNormals = [](PostDataObject& record) {
        for (std::vector<float>& axis : *record.m_normals[0]) {
            std::ranges::transform(axis, axis.begin(), std::negate());
        }
    };
    PostDataObject record = sphere();
    turnCorners(record, 1);
    EXPECT_EQ(numDifferent(pictureOf(record), expected), 0);
    turnNormals(record);
    EXPECT_EQ(numDifferent(pictureOf(record), expected), 0);
    turnCorners(record, 3);
    EXPECT_EQ(numDifferent(pictureOf(record), expected), 0);

    record = sphere();
    std::vector<double>& x = (*record.m_coordinates[0])[0];
    std::vector<float>& nx = (*record.m_normals[0])[0];
    std::ranges::transform(x, x.begin(), std::negate());
    std::ranges::transform(nx, nx.begin(), std::negate());
    camera().setAxisViewScales(-1.0f, 1.0f, 1.0f);
    EXPECT_EQ(numDifferent(pictureOf(record), expected), 0);
}

// A step up within a steep fall: the normals next to it are those of the fall, and no crease replaces them.
TEST_F(FaceSidesTest, aStepWhoseNormalsPointToItsOtherSideIsLitLikeWhatSurroundsIt)
{
    m_canvas.setStyle({.creaseAngle = RenderStyle::c_widestAngle});
    GridRecord fall = grid(8);
    fall.height = [](double x, double) { return -5.0 * x + 6.0 * std::clamp(x - 0.5, 0.0, 0.125); };
    PostDataObject record = fall.make();
    std::vector<std::vector<float>>& normals = *record.m_normals[0];
    for (std::size_t i = 0; i < normals[0].size(); ++i) {
        normals[0][i] = 5.0f;
        normals[1][i] = 0.001f * static_cast<float>(i % 2);
        normals[2][i] = 1.0f;
    }
    const Picture shown = pictureOf(record);
    const Rgb around = colorAt(m_canvas, shown, {0.3f, 0.5f, -1.5f});
    for (const float y : {0.2f, 0.55f, 0.8f}) {
        EXPECT_NEAR(colorAt(m_canvas, shown, {0.55f, y, -2.45f})[0], around[0], 1);
    }
    EXPECT_GT(around[0], 80);
}

// As along the outline of a coarse mesh: the surface bends away from the eye within the last triangles that are seen.
TEST_F(FaceSidesTest, aNormalThatBendsAwayFromTheEyeIsLitOnTheSideThatItsTriangleShows)
{
    constexpr int cells = 4;
    PostDataObject record = grid(cells).make();
    std::vector<std::vector<float>>& normals = *record.m_normals[0];
    for (std::size_t i = cells; i < normals[0].size(); i += cells + 1) {
        normals[0][i] = 0.5f;
        normals[1][i] = -0.6f;
        normals[2][i] = -0.3f;
    }
    const Picture shown = pictureOf(record);
    // There the normal is (0.53, -0.63, -0.2), and light falls at the cosine 0.51: 192 (0.3 + 0.7 * 0.51).
    EXPECT_NEAR(colorAt(m_canvas, shown, {0.97f, 0.4f, 0.0f})[0], 127, 6);
}

TEST_F(FaceSidesTest, trianglesWithSomethingNotFiniteAreNotDrawn)
{
    // The middle of five by five points has six triangles about it, of 32 in all.
    constexpr int cells = 4;
    constexpr std::size_t middle = 12;
    const PostDataObject sound = grid(cells).make();
    const int all = pictureOf(sound).countDrawn(0, 0, c_size, c_size);
    for (const double bad :
         {static_cast<double>(c_nan), static_cast<double>(c_infinity), -static_cast<double>(c_infinity)}) {
        PostDataObject record = grid(cells).make();
        (*record.m_data[0])[0][middle] = bad;
        Picture shown = pictureOf(record);
        EXPECT_NEAR(shown.countDrawn(0, 0, c_size, c_size), all * 26 / 32, 0.01 * all) << bad;
        EXPECT_EQ(colorAt(m_canvas, shown, {0.45f, 0.55f, 0.0f}), c_white);
        EXPECT_NE(colorAt(m_canvas, shown, {0.3f, 0.7f, 0.0f}), c_white);
        m_plot->setValueRestrictions(-1.0, 0.6);
        shown = drawn(m_canvas);
        EXPECT_EQ(colorAt(m_canvas, shown, {0.45f, 0.55f, 0.0f}), c_white);

        record = grid(cells).make();
        (*record.m_coordinates[0])[2][middle] = bad;
        EXPECT_NEAR(pictureOf(record).countDrawn(0, 0, c_size, c_size), all * 26 / 32, 0.01 * all) << bad;
    }
    EXPECT_EQ(pictureOf(sound).countDrawn(0, 0, c_size, c_size), all);
}

TEST_F(FaceSidesTest, aVertexWithoutAUsableNormalIsLitByTheSlopeOfItsTriangles)
{
    lookFrom(m_canvas, -40.0, 50.0);
    PostDataObject record = grid(2).make();
    const Picture expected = pictureOf(record);
    for (const float bad : {0.0f, c_nan, c_infinity}) {
        for (std::vector<float>& axis : *record.m_normals[0]) {
            std::ranges::fill(axis, bad);
        }
        EXPECT_EQ(numDifferent(pictureOf(record), expected), 0) << bad;
    }
    // A single one, as next to a hole of a raised map.
    record = grid(2).make();
    (*record.m_normals[0])[2][4] = c_nan;
    EXPECT_EQ(numDifferent(pictureOf(record), expected), 0);
}

} // namespace
} // namespace vxrenderer
