// What is translucent is mixed in the order of its depths, within one mesh and between several.

#include "renderer/paint/transparency.h"

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace vxrenderer {
namespace {

using vxdatacarrier::PostDataObject;
using vxgraphics3d::SceneGraphPlotSurface3d;
using Point = std::array<double, 3>;

struct Triangle {
    std::array<Point, 3> corners;
    /// Its position in the colour table, 0 to 1.
    double value;
};

/// Triangles in the order of a list, without normals.
PostDataObject recordOf(const std::vector<Triangle>& triangles)
{
    PostDataObject record;
    auto coordinates = boost::make_shared<PostDataObject::DoubleArrays>(3);
    auto data = boost::make_shared<PostDataObject::DoubleArrays>(1);
    auto normals = boost::make_shared<PostDataObject::FloatArrays>(3);
    auto elements = boost::make_shared<PostDataObject::IntArrays>(3);
    auto bounds = boost::make_shared<PostDataObject::DoubleArrays>(3, std::vector<double>{0.0, 1.0});
    for (std::size_t t = 0; t < triangles.size(); ++t) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                (*coordinates)[axis].push_back(triangles[t].corners[corner][axis]);
                (*normals)[axis].push_back(0.0f);
            }
            (*data)[0].push_back(triangles[t].value);
            (*elements)[corner].push_back(static_cast<int>(3 * t + corner));
        }
    }
    record.m_plotKind = PostDataObject::Surface3d;
    record.m_dataIndex[PostDataObject::ColorData] = 0;
    record.m_coordinates = {coordinates};
    record.m_bounds = bounds;
    record.m_elements = {elements};
    record.m_data = {data};
    record.m_dataMin = {boost::make_shared<std::vector<double>>(1, 0.0)};
    record.m_dataMax = {boost::make_shared<std::vector<double>>(1, 1.0)};
    record.m_normals = {normals};
    return record;
}

/// A square in the plane of x and y whose height runs from `left` to `right` along x.
void addSquare(std::vector<Triangle>& triangles, double left, double right, double value)
{
    const Point a = {0.0, 0.0, left};
    const Point b = {1.0, 0.0, right};
    const Point c = {1.0, 1.0, right};
    const Point d = {0.0, 1.0, left};
    triangles.push_back({{a, b, c}, value});
    triangles.push_back({{a, c, d}, value});
}

const std::vector<int> c_colors = {0xff0000, 0x00ff00, 0x0000ff, 0xffff00};

/// A value with one of these colours.
double valueOf(std::size_t color)
{
    return (static_cast<double>(color) + 0.5) / static_cast<double>(c_colors.size());
}

Rgb over(const Rgb& front, double alpha, const Rgb& behind)
{
    Rgb mixed{};
    for (std::size_t i = 0; i < 3; ++i) {
        mixed[i] = static_cast<int>(std::lround(alpha * front[i] + (1.0 - alpha) * behind[i]));
    }
    return mixed;
}

Rgb colorOf(std::size_t color)
{
    const int rgb = c_colors[color];
    return {rgb >> 16, rgb >> 8 & 255, rgb & 255};
}

void expectNear(const Rgb& color, const Rgb& expected, int tolerance, const std::string& what = {})
{
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(color[i], expected[i], tolerance) << what << " channel " << i;
    }
}

class TransparencyTest : public ::testing::Test {
protected:
    boost::shared_ptr<SceneGraphPlotSurface3d> add(const std::vector<Triangle>& triangles)
    {
        const auto plot = boost::make_shared<SceneGraphPlotSurface3d>(++m_lastId);
        std::vector<std::vector<double>> rows;
        for (std::size_t i = 0; i < c_colors.size(); ++i) {
            const Rgb color = colorOf(i);
            rows.push_back({color[0] / 255.0, color[1] / 255.0, color[2] / 255.0});
        }
        plot->setColorTable("transparency", rows, false);
        m_scene.group->addPlot(plot);
        plot->fillPlot(recordOf(triangles));
        return plot;
    }
    void showUnlit(OffscreenCanvas& canvas, float opacity)
    {
        showFromAbove(canvas, m_scene);
        canvas.getSceneSettings()->getLight()->setUseLight(false);
        canvas.getSceneSettings()->setGlobalOpacity(opacity);
    }

    int m_lastId = 0;
    TestScene m_scene;
};

TEST_F(TransparencyTest, trianglesInReverseOrderGiveTheSamePicture)
{
    vxgraphics3d::RandomNumbers random(7);
    const auto number = [&random] { return static_cast<double>(random.uniform(0.0f, 1.0f)); };
    std::vector<Triangle> triangles;
    for (int i = 0; i < 150; ++i) {
        Triangle triangle{};
        for (Point& corner : triangle.corners) {
            corner = {number(), number(), number()};
        }
        triangle.value = number();
        triangles.push_back(triangle);
        // The same face in other colours, from another corner: depths that are equal, and others that almost are.
        triangles.push_back({triangle.corners, number()});
        std::rotate(triangle.corners.begin(), triangle.corners.begin() + 1, triangle.corners.end());
        triangles.push_back({triangle.corners, number()});
    }
    for (const int samples : {1, 4}) {
        OffscreenCanvas canvas(200, 150, samples);
        canvas.setScene(m_scene.scene);
        showPlotsAlone(canvas);
        lookFrom(canvas, -50.0, 30.0);
        canvas.getSceneSettings()->setGlobalOpacity(0.3f);
        // Once, since a camera that is there already is fitted in other steps.
        const int id = add(triangles)->getId();
        canvas.zoomExtents();
        m_scene.group->removePlot(id);
        for (const Quality quality : {Quality::full, Quality::draft}) {
            const auto pictureOf = [&](const std::vector<Triangle>& list) {
                const auto plot = add(list);
                Picture picture = drawnAsIs(canvas, quality);
                EXPECT_TRUE(drawnAsIs(canvas, quality).bytes == picture.bytes) << "drawn again";
                m_scene.group->removePlot(plot->getId());
                return picture;
            };
            const Picture picture = pictureOf(triangles);
            EXPECT_GT(picture.countDrawn(0, 0, 200, 150), 5000);
            EXPECT_TRUE(pictureOf({triangles.rbegin(), triangles.rend()}).bytes == picture.bytes) << samples;
        }
    }
}

TEST_F(TransparencyTest, layersAreMixedFromFrontToBackWithinAMeshAndBetweenMeshes)
{
    // Crossing squares: each is in front of the other on one side.
    for (const bool areOneMesh : {true, false}) {
        std::vector<Triangle> falling;
        addSquare(falling, 0.9, 0.1, valueOf(0));
        std::vector<Triangle> rising;
        addSquare(rising, 0.1, 0.9, valueOf(2));
        std::vector<int> ids;
        if (areOneMesh) {
            falling.insert(falling.end(), rising.begin(), rising.end());
        } else {
            ids.push_back(add(rising)->getId());
        }
        ids.push_back(add(falling)->getId());
        for (const int samples : {1, 4}) {
            OffscreenCanvas canvas(200, 200, samples);
            showUnlit(canvas, 0.6f);
            const Picture picture = drawn(canvas);
            const Rgb redBehind = over(colorOf(0), 0.6, c_white);
            const Rgb blueBehind = over(colorOf(2), 0.6, c_white);
            for (const float x : {0.1f, 0.48f}) {
                expectNear(colorAt(canvas, picture, {x, 0.4f, 0.5f}), over(colorOf(0), 0.6, blueBehind), 1);
                expectNear(colorAt(canvas, picture, {1.0f - x, 0.4f, 0.5f}), over(colorOf(2), 0.6, redBehind), 1);
            }
        }
        for (const int id : ids) {
            m_scene.group->removePlot(id);
        }
    }
}

TEST_F(TransparencyTest, whatIsBehindTheLastLayerIsMixedWithoutAJump)
{
    OffscreenCanvas canvas(100, 100, 1);
    std::vector<Triangle> triangles;
    Rgb former = c_white;
    for (std::size_t numSquares = 1; numSquares <= 14; ++numSquares) {
        // The next square is added behind the others.
        addSquare(triangles, 1.0 - 0.05 * static_cast<double>(numSquares), 1.0 - 0.05 * static_cast<double>(numSquares),
                  valueOf(numSquares % c_colors.size()));
        const auto plot = add(triangles);
        showUnlit(canvas, 0.25f);
        const Rgb shown = colorAt(canvas, drawn(canvas), {0.4f, 0.3f, 0.5f});
        // By hand, from the rearmost to the nearest.
        Rgb mixed = c_white;
        for (std::size_t i = numSquares; i >= 1; --i) {
            mixed = over(colorOf(i % c_colors.size()), 0.25, mixed);
        }
        const bool isExact = numSquares <= Transparency::c_fullLayers + 1;
        expectNear(shown, mixed, isExact ? 2 : 8, std::to_string(numSquares));
        const double part = std::pow(0.75, static_cast<double>(numSquares - 1));
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_LE(std::abs(shown[i] - former[i]), 255.0 * 0.25 * part + 6.0) << numSquares;
        }
        former = shown;
        m_scene.group->removePlot(plot->getId());
    }
}

TEST_F(TransparencyTest, draftsLetThroughAsMuchAndShowTheNearestMost)
{
    std::vector<Triangle> triangles;
    addSquare(triangles, 0.0, 0.0, valueOf(2));
    addSquare(triangles, 1.0, 1.0, valueOf(0));
    add(triangles);
    OffscreenCanvas canvas(100, 100, 4);
    showUnlit(canvas, 0.5f);
    canvas.zoomExtents();
    const Rgb shown = colorAt(canvas, drawnAsIs(canvas, Quality::draft), {0.4f, 0.3f, 0.5f});
    // Half of the green of the background is let through by each of the squares.
    EXPECT_NEAR(shown[1], 64, 1);
    EXPECT_GT(shown[0], shown[2] + 64);
    EXPECT_NEAR(shown[0] + shown[2], 2 * 64 + 191, 2);
}

TEST_F(TransparencyTest, bordersAreSmoothAndFacesOfOneDepthAreOneLayer)
{
    std::vector<Triangle> triangles;
    triangles.push_back({{{{0.0, 0.0, 0.5}, {1.0, 0.13, 0.5}, {0.3, 1.0, 0.5}}}, valueOf(0)});
    // The other side of the same face, and the box of the scene.
    triangles.push_back({{{{0.0, 0.0, 0.5}, {0.3, 1.0, 0.5}, {1.0, 0.13, 0.5}}}, valueOf(0)});
    triangles.push_back({{{{0.0, 0.0, 0.0}, {0.0, 0.0, 1.0}, {0.0, 0.0, 0.5}}}, valueOf(0)});
    add(triangles);
    OffscreenCanvas canvas(200, 200, 4);
    showUnlit(canvas, 0.5f);
    const Picture picture = drawn(canvas);
    std::array<int, 5> counts{};
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 200; ++x) {
            const int green = picture.at(x, y)[1];
            const int covered = static_cast<int>(std::lround((255 - green) / (0.125 * 255.0)));
            ++counts.at(static_cast<std::size_t>(covered));
            EXPECT_NEAR(255 - green, 0.125 * 255.0 * covered, 1.0) << "one, two, three or four samples once";
        }
    }
    for (const int count : counts) {
        EXPECT_GT(count, 50);
    }
}

} // namespace
} // namespace vxrenderer
