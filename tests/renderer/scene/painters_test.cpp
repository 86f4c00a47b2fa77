// What painters of plots and objects can draw, and how the scene renderer calls them: pixels of a view from above,
// without perspective and without light.

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbufferlinestrips.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/buffers/vertexbuffertex.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "renderer/canvas/sceneview.h"
#include "renderer/frame/frame.h"
#include "renderer/gl/eglcontext.h"
#include "renderer/gl/target.h"
#include "renderer/plots/plotlook.h"
#include "renderer/scene/scenerenderer.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/capturedlog.h"
#include "tests/support/fakeplot.h"
#include "tests/support/testleaf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <set>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Camera3d;
using vxgraphics3d::Color;
using vxgraphics3d::FakePlot;
using vxgraphics3d::SceneGraphObject;
using vxgraphics3d::TestLeaf;
using vxgraphics3d::Vector3f;

constexpr Rgb c_blue = {0, 0, 255};
constexpr Rgb c_red = {255, 0, 0};
constexpr int c_size = 300;

/// Painters that do what a test says.
class TestPlotPainter : public PlotPainter {
public:
    using Draw = std::function<void(const PlotItem&, const PaintContext&)>;
    explicit TestPlotPainter(Draw draw) : m_draw(std::move(draw)) {}
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override
    {
        return type == vxgraphics3d::SceneGraphPlot::PlotType::mesh3d;
    }
    void draw(const PlotItem& item, const PaintContext& context) const override { m_draw(item, context); }

private:
    Draw m_draw;
};

class TestObjectPainter : public ObjectPainter {
public:
    using Draw = std::function<void(const ObjectItem&, const PaintContext&)>;
    explicit TestObjectPainter(Draw draw) : m_draw(std::move(draw)) {}
    bool draws(SceneGraphObject::ObjectType type) const override { return type == SceneGraphObject::ObjectSolid; }
    void draw(const ObjectItem& object, const PaintContext& context) const override { m_draw(object, context); }

private:
    Draw m_draw;
};

/// A square in the plane of x and y about the origin, in one colour coordinate, with normals upwards.
struct Square {
    explicit Square(float half)
    {
        vertices.allocate(4);
        for (const float y : {-half, half}) {
            for (const float x : {-half, half}) {
                vertices.appendVertex(x, y, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f);
            }
        }
        triangles.internalAllocate(2, 1);
        triangles.newSegment();
        triangles.appendTriangle(0, 1, 3);
        triangles.appendTriangle(0, 3, 2);
    }

    vxgraphics3d::VertexBufferNormalTex vertices;
    vxgraphics3d::IndexBufferTriangles triangles{vertices};
};

/// A strip of three points along y = 0.5 whose coordinate is x, or the same as single lines.
template <class Lines>
struct Path {
    Path()
    {
        vertices.allocate(3);
        for (const float x : {0.0f, 0.5f, 1.0f}) {
            vertices.appendVertex(x, 0.5f, 0.0f, x);
        }
        lines.internalAllocate(2, 1);
        lines.newSegment();
        if constexpr (std::is_same_v<Lines, vxgraphics3d::IndexBufferLines>) {
            lines.appendLine(0, 1);
            lines.appendLine(1, 2);
        } else {
            lines.newStrip(0);
            lines.appendStrip(1);
            lines.appendStrip(2);
        }
    }

    vxgraphics3d::VertexBufferTex vertices;
    Lines lines{vertices};
};

class PaintersTest : public ::testing::Test {
protected:
    PaintersTest()
    {
        const auto camera = m_settings->camera3d();
        camera->setProjectionType(vxgraphics3d::Camera3d::ProjectionOrthographic);
        camera->lookAt({}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
        m_settings->background(vxgraphics3d::Canvas3dSettings::RenderMode3d)
            .setBackgroundColor(Color::fromRgb(0xffffff));
        m_settings->setRenderMask(RenderPlots | RenderObjects | RenderBackground);
        settings().getLight()->setUseLight(false);
        m_plot->setBoundingBox(m_box);
        m_scene.group->addPlot(m_plot);
        m_plot->setColorTable("painters", {{0.0, 0.0, 1.0}, {1.0, 0.0, 0.0}}, false);
    }

    vxgraphics3d::SceneSettings& settings() { return m_view.getSettings(); }

    void drawPlotsBy(TestPlotPainter::Draw draw) { m_drawPlot = std::move(draw); }
    void drawObjectsBy(TestObjectPainter::Draw draw) { m_drawObject = std::move(draw); }

    Picture picture()
    {
        const Appearance look = Appearance::onScreen(*m_settings, &settings());
        const Frame frame = {*m_settings, m_scene.scene.get(), &settings(), *m_settings->camera3d(), look};
        m_renderer.layOut(frame, c_size, c_size);
        m_settings->camera3d()->moveToBoundingBox(m_box, m_box, 0.0f);
        m_renderer.draw(frame, m_renderer.layOut(frame, c_size, c_size), m_target);
        Picture picture = {c_size, c_size, std::vector<std::uint8_t>(std::size_t(4) * c_size * c_size)};
        m_target.read(picture.bytes.data());
        EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR});
        return picture;
    }

    Rgb colorAt(const Picture& picture, const Vector3f& point) const
    {
        const auto [x, y] = pixelOf(m_renderer.getView(), point);
        return picture.at(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)));
    }
    /// The colours of the column through a point, white left out, from above.
    std::vector<Rgb> column(const Picture& picture, float x) const
    {
        std::vector<Rgb> colors;
        const int column = static_cast<int>(pixelOf(m_renderer.getView(), {x, 0.0f, 0.0f})[0]);
        for (int y = 0; y < c_size; ++y) {
            if (picture.at(column, y) != c_white) {
                colors.push_back(picture.at(column, y));
            }
        }
        return colors;
    }
    /// Requires that a column crosses a line of a width and colour, which may cover pixels at its borders in part.
    static void expectLine(const std::vector<Rgb>& column, double width, const Rgb& color)
    {
        double covered = 0.0;
        for (const Rgb& pixel : column) {
            covered += (255 - std::ranges::min(pixel)) / 255.0;
        }
        EXPECT_NEAR(covered, width, 0.02);
        EXPECT_GE(std::ranges::count(column, color), static_cast<int>(width) - 1);
        EXPECT_LE(column.size(), static_cast<std::size_t>(width) + 1);
    }
    static std::set<Rgb> colorsOf(const Picture& picture)
    {
        std::set<Rgb> colors;
        for (int y = 0; y < c_size; ++y) {
            for (int x = 0; x < c_size; ++x) {
                colors.insert(picture.at(x, y));
            }
        }
        return colors;
    }

    BoundingBox m_box{0.0f, 1.0f, 0.0f, 1.0f, -1.0f, 1.0f};
    TestScene m_scene;
    boost::shared_ptr<FakePlot> m_plot =
        boost::make_shared<FakePlot>(1, vxgraphics3d::SceneGraphPlot::PlotType::mesh3d);
    boost::shared_ptr<vxgraphics3d::Canvas3dSettings> m_settings = boost::make_shared<vxgraphics3d::Canvas3dSettings>();
    SceneView m_view{m_scene.scene};
    TestPlotPainter::Draw m_drawPlot = [](const auto&, const auto&) {};
    TestObjectPainter::Draw m_drawObject = [](const auto&, const auto&) {};
    EglContext m_context;
    EglContext::Current m_current{m_context};
    Target m_target{c_size, c_size, 1};
    SceneRenderer m_renderer{plotPainters(), objectPainters()};

private:
    PlotPainters plotPainters()
    {
        PlotPainters painters;
        painters.push_back(std::make_unique<TestPlotPainter>(
            [this](const PlotItem& item, const PaintContext& context) { m_drawPlot(item, context); }));
        return painters;
    }
    ObjectPainters objectPainters()
    {
        ObjectPainters painters;
        painters.push_back(std::make_unique<TestObjectPainter>(
            [this](const ObjectItem& object, const PaintContext& context) { m_drawObject(object, context); }));
        return painters;
    }
};

TEST_F(PaintersTest, linesHaveTheirWidthAndTheColorsOfTheirDataAndAreUploadedOnce)
{
    const Path<vxgraphics3d::IndexBufferLineStrips> strip;
    const Path<vxgraphics3d::IndexBufferLines> singles;
    int changeId = 1;
    bool areSingle = false;
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        if (const auto look = lookOf(item, context)) {
            const auto draw = [&](const auto& path) {
                context.drawLines(context.uploads.lines(item.plot, 0, changeId, path.vertices, path.lines), *look,
                                  5.0f);
            };
            areSingle ? draw(singles) : draw(strip);
        }
    });
    Picture shown = picture();
    expectLine(column(shown, 0.25f), 5.0, c_blue);
    expectLine(column(shown, 0.75f), 5.0, c_red);
    const UploadCounts once = m_renderer.getUploadCounts();
    EXPECT_EQ(once.meshes, 1);
    m_plot->setValueRestrictions(0.3, 0.6);
    shown = picture();
    EXPECT_TRUE(column(shown, 0.25f).empty());
    expectLine(column(shown, 0.4f), 5.0, c_blue);
    EXPECT_TRUE(column(shown, 0.75f).empty());
    EXPECT_EQ(m_renderer.getUploadCounts(), once) << "neither the frame nor the restriction loads lines again";

    m_plot->resetValueRestrictions();
    const Picture asStrip = picture();
    areSingle = true;
    ++changeId;
    EXPECT_EQ(picture().bytes, asStrip.bytes);
    EXPECT_EQ(m_renderer.getUploadCounts().meshes, 2);
}

TEST_F(PaintersTest, translucentLinesAreBlendedOnceAlsoWherePiecesMeet)
{
    const Path<vxgraphics3d::IndexBufferLineStrips> strip;
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        context.drawLines(context.uploads.lines(item.plot, 0, 1, strip.vertices, strip.lines), *lookOf(item, context),
                          9.0f);
    });
    m_plot->setColor(Color::fromRgb(0x0000ff));
    settings().setGlobalOpacity(0.6f);
    const Picture shown = picture();
    // Its borders lie in the middle of pixels.
    EXPECT_EQ(colorsOf(shown), (std::set<Rgb>{c_white, {102, 102, 255}, {178, 178, 254}}));
    EXPECT_EQ(column(shown, 0.5f).size(), 10u);
}

TEST_F(PaintersTest, linesAreSeenWholeOnFacesThroughThemAndHiddenByFacesInFront)
{
    const Path<vxgraphics3d::IndexBufferLineStrips> strip;
    const Square square(2.0f);
    float slope = 0.0f;
    float width = 1.0f;
    float inFront = 0.0f;
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        Look look = *lookOf(item, context);
        context.drawLines(context.uploads.lines(item.plot, 0, 1, strip.vertices, strip.lines),
                          {look.toEye, Material::of(Color::fromRgb(0xff0000))}, width);
        look.toEye.translate(0.0f, 0.5f, inFront).rotateX(slope);
        context.drawMesh(context.uploads.mesh(item.plot, 0, 1, square.vertices, square.triangles), look);
    });
    // On the blue square.
    const auto reds = [&] {
        double covered = 0.0;
        for (const Rgb& pixel : column(picture(), 0.25f)) {
            covered += pixel[1] == 0 ? pixel[0] / 255.0 : 0.0;
        }
        return covered;
    };
    for (const auto type : {Camera3d::ProjectionOrthographic, Camera3d::ProjectionPerspective}) {
        m_settings->camera3d()->setProjectionType(type);
        picture();
        for (width = 1.0f; width <= 7.0f; width += 2.0f) {
            inFront = 0.0f;
            for (slope = -1.3f; slope <= 1.3f; slope += 0.65f) {
                EXPECT_NEAR(reds(), static_cast<double>(width), 0.02) << slope;
            }
            slope = 0.0f;
            inFront = 0.04f * width;
            EXPECT_EQ(reds(), 0.0) << width;
        }
    }
}

TEST_F(PaintersTest, piecesOfLinesWithSomethingNotFiniteAreNotDrawn)
{
    Path<vxgraphics3d::IndexBufferLineStrips> strip;
    strip.vertices.allocate(3);
    strip.vertices.appendVertex(0.0f, 0.5f, 0.0f, std::numeric_limits<float>::quiet_NaN());
    strip.vertices.appendVertex(0.5f, 0.5f, 0.0f, 0.5f);
    strip.vertices.appendVertex(1.0f, 0.5f, 0.0f, 1.0f);
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        context.drawLines(context.uploads.lines(item.plot, 0, 1, strip.vertices, strip.lines), *lookOf(item, context),
                          5.0f);
    });
    const Picture shown = picture();
    EXPECT_TRUE(column(shown, 0.25f).empty());
    expectLine(column(shown, 0.75f), 5.0, c_red);
}

TEST_F(PaintersTest, aMeshIsDrawnOncePerInstanceInItsSizeDirectionAndColor)
{
    const Square square(1.0f);
    // A blade along the z axis, which is seen from above only where it is turned down.
    vxgraphics3d::VertexBufferNormalTex blade;
    vxgraphics3d::IndexBufferTriangles bladeTriangles(blade);
    blade.allocate(6);
    for (const bool isAlongX : {true, false}) {
        for (const float side : {-0.2f, 0.2f}) {
            blade.appendVertex(isAlongX ? side : 0.0f, isAlongX ? 0.0f : side, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f);
        }
        blade.appendVertex(0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, 0.0f);
    }
    bladeTriangles.internalAllocate(2, 1);
    bladeTriangles.newSegment();
    bladeTriangles.appendTriangle(0, 1, 2);
    bladeTriangles.appendTriangle(3, 4, 5);
    int made = 0;
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        const Look look = *lookOf(item, context);
        UploadCache& uploads = context.uploads;
        context.drawInstances(uploads.mesh(item.plot, 0, 1, square.vertices, square.triangles),
                              uploads.instances(item.plot, 0, 1,
                                                [&] {
                                                    ++made;
                                                    return std::vector<Instance>{
                                                        {{0.2f, 0.2f, 0.0f}, {0.0f, 0.0f, 0.05f}, 0.0f},
                                                        {{0.8f, 0.2f, 0.0f}, {0.0f, 0.0f, 0.1f}, 1.0f}};
                                                }),
                              look);
        context.drawInstances(uploads.mesh(item.plot, 1, 1, blade, bladeTriangles),
                              uploads.instances(item.plot, 1, 1,
                                                [&] {
                                                    return std::vector<Instance>{
                                                        {{0.2f, 0.7f, 0.0f}, {0.3f, 0.0f, 0.0f}, 0.0f},
                                                        {{0.8f, 0.7f, 0.0f}, {0.0f, -0.3f, 0.0f}, 1.0f}};
                                                }),
                              look);
    });
    picture();
    const Picture shown = picture();
    EXPECT_EQ(made, 1);
    EXPECT_EQ(m_renderer.getUploadCounts().meshes, 4);
    // Squares of half the sides 0.05 and 0.1.
    EXPECT_EQ(colorAt(shown, {0.24f, 0.24f, 0.0f}), c_blue);
    EXPECT_EQ(colorAt(shown, {0.26f, 0.2f, 0.0f}), c_white);
    EXPECT_EQ(colorAt(shown, {0.89f, 0.11f, 0.0f}), c_red);
    EXPECT_EQ(colorAt(shown, {0.8f, 0.31f, 0.0f}), c_white);
    // Blades of length 0.3, one to the right and one downwards, broad at their roots.
    EXPECT_EQ(colorAt(shown, {0.45f, 0.7f, 0.0f}), c_blue);
    EXPECT_EQ(colorAt(shown, {0.22f, 0.74f, 0.0f}), c_blue);
    EXPECT_EQ(colorAt(shown, {0.15f, 0.7f, 0.0f}), c_white);
    EXPECT_EQ(colorAt(shown, {0.2f, 0.8f, 0.0f}), c_white);
    EXPECT_EQ(colorAt(shown, {0.8f, 0.45f, 0.0f}), c_red);
    EXPECT_EQ(colorAt(shown, {0.8f, 0.75f, 0.0f}), c_white);
}

TEST_F(PaintersTest, labelsAreHiddenAsAWholeByWhatLiesInFrontOfTheirPointOrNotAtAll)
{
    const Square square(2.0f);
    float faceHeight = -0.9f;
    bool isHideable = true;
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        Look look = *lookOf(item, context);
        look.toEye.translate(0.5f, 0.5f, faceHeight).rotateX(faceHeight == 0.0f ? 0.5f : 0.0f);
        context.drawLabel({{0.5f, 0.5f, 0.0f}, "M_M", Color::fromRgb(0xff0000), isHideable});
        context.drawMesh(context.uploads.mesh(item.plot, 0, 1, square.vertices, square.triangles), look);
    });
    const auto reds = [&] {
        const Picture shown = picture();
        int count = 0;
        const auto [x, y] = pixelOf(m_renderer.getView(), {0.5f, 0.5f, 0.0f});
        for (int row = 0; row < c_size; ++row) {
            for (int column = 0; column < c_size; ++column) {
                const bool isRed = shown.at(column, row)[0] > 200 && shown.at(column, row)[2] < 60;
                count += isRed ? 1 : 0;
                EXPECT_TRUE(!isRed || (std::abs(row - y) < 12.0 && std::abs(column - x) < 30.0));
            }
        }
        return count;
    };
    const int whole = reds();
    EXPECT_GT(whole, 20);
    faceHeight = 0.9f;
    EXPECT_EQ(reds(), 0);
    isHideable = false;
    EXPECT_EQ(reds(), whole);
    isHideable = true;
    faceHeight = 0.0f;
    EXPECT_EQ(reds(), whole) << "the face that the label lies on rises before its upper half";
}

TEST_F(PaintersTest, objectsAreDrawnWithPlotsUnderActiveNodesAndByTheirMask)
{
    const Square square(2.0f);
    const auto root = vxgraphics3d::SceneGraphGroup::create();
    const auto group = vxgraphics3d::SceneGraphGroup::create();
    const auto leaf = TestLeaf::create(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.5f, 0.5f));
    const auto otherKind = TestLeaf::create(m_box, SceneGraphObject::ObjectCurve);
    m_scene.root->setChild(root);
    root->addChild(m_scene.group);
    root->addChild(group);
    group->addChild(leaf);
    group->addChild(otherKind);
    m_plot->setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    const auto drawSquare = [&](const auto& owner, const PaintContext& context, float height, const Color& color) {
        Look look = {context.view.sceneToEye, Material::of(color)};
        look.toEye.translate(0.0f, 0.0f, height);
        context.drawMesh(context.uploads.mesh(owner, 0, 1, square.vertices, square.triangles), look);
    };
    float objectHeight = 0.5f;
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        drawSquare(item.plot, context, 0.0f, Color::fromRgb(0x0000ff));
    });
    drawObjectsBy([&](const ObjectItem& object, const PaintContext& context) {
        EXPECT_EQ(object, leaf);
        drawSquare(object, context, objectHeight, Color::fromRgb(0xff0000));
    });
    const auto middle = [&] { return colorAt(picture(), {0.5f, 0.5f, 0.0f}); };
    EXPECT_EQ(middle(), c_red);
    settings().setGlobalOpacity(0.6f);
    EXPECT_EQ(middle(), (Rgb{194, 41, 102})) << "0.6 of red over 0.6 of blue, which left 102 of the white";
    objectHeight = -0.5f;
    leaf->setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, -0.5f, -0.5f));
    EXPECT_EQ(middle(), (Rgb{102, 41, 194})) << "by distance, not in the order of the tree";
    settings().setGlobalOpacity(1.0f);
    EXPECT_EQ(middle(), c_blue);
    m_settings->removeRenderMask(RenderPlots);
    EXPECT_EQ(middle(), c_red);
    m_settings->removeRenderMask(RenderObjects);
    EXPECT_EQ(middle(), c_white);
    m_settings->addRenderMask(RenderObjects);
    group->setActive(false);
    EXPECT_EQ(middle(), c_white);
}

TEST_F(PaintersTest, unknownPrimitivesAreReportedOnceAndNotDrawn)
{
    const Path<vxgraphics3d::IndexBufferLines> lines;
    const Square square(2.0f);
    drawPlotsBy([&](const PlotItem& item, const PaintContext& context) {
        const Look look = *lookOf(item, context);
        context.drawMesh(context.uploads.mesh(item.plot, 0, 1, lines.vertices, lines.lines), look);
        context.drawLines(context.uploads.lines(item.plot, 0, 1, square.vertices, square.triangles), look, 5.0f);
    });
    const vxgraphics3d::CapturedLog log(vxgraphics3d::ErrorLog::Level::error);
    picture();
    EXPECT_EQ(colorsOf(picture()), std::set<Rgb>{c_white});
    EXPECT_EQ(log.messages(),
              (std::vector<std::string>{"A mesh is not drawn: Elements of type 0 cannot be drawn as triangles.",
                                        "A mesh is not drawn: Elements of type 2 cannot be drawn as lines."}));
    EXPECT_EQ(m_renderer.getUploadCounts().meshes, 0);
}

TEST_F(PaintersTest, aPictureShowsWhatWasLaidOut)
{
    m_settings->addRenderMask(RenderTitle);
    m_plot->setTitle(TextFormat::plain, "One");
    const Appearance look = Appearance::onScreen(*m_settings, &settings());
    const Frame frame = {*m_settings, m_scene.scene.get(), &settings(), *m_settings->camera3d(), look};
    const FrameLayout layout = m_renderer.layOut(frame, c_size, c_size);
    m_plot->setTitle(TextFormat::plain, "");
    m_renderer.draw(frame, layout, m_target);
    Picture shown = {c_size, c_size, std::vector<std::uint8_t>(std::size_t(4) * c_size * c_size)};
    m_target.read(shown.bytes.data());
    EXPECT_GT(shown.countDrawn(0, 0, c_size, layout.area.whole.y), 20);
    EXPECT_EQ(m_renderer.getView().area.y, layout.area.whole.y);
    EXPECT_LT(m_renderer.layOut(frame, c_size, c_size).area.whole.y, layout.area.whole.y);
}

} // namespace
} // namespace vxrenderer
