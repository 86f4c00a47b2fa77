#include "renderer/axes/gridbox.h"

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/foundation/boundingbox.h"
#include "renderer/axes/labelplacer.h"
#include "tests/renderer/support/squaremetrics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Camera3d;
using vxgraphics3d::Vector3f;

constexpr PixelArea c_area = {40, 20, 800, 600};
constexpr int c_canvasHeight = 700;

void setArea(Camera3d& camera)
{
    camera.setRenderArea(900, c_canvasHeight, c_area.x, c_canvasHeight - c_area.y - c_area.height, c_area.width,
                         c_area.height);
}

/// Looks at the origin from a direction, in parallel projection, at 100 pixels per unit.
void lookParallel(Camera3d& camera, const Vector3f& from, const Vector3f& up)
{
    setArea(camera);
    camera.setProjectionType(Camera3d::ProjectionOrthographic);
    camera.setOrthographicHeight(6.0f);
    camera.lookAt(from, -from, up);
}

GridBoxLayout layoutOf(const BoundingBox& box, const Camera3d& camera)
{
    SquareMetrics metrics;
    return layoutGridBox({.box = box, .camera = camera}, c_area, metrics);
}

/// The texts of tick labels or of titles in their order, with a plain minus.
std::string textOf(const GridBoxLayout& layout, bool isTitle)
{
    std::string text;
    for (const AxisLabel& label : layout.labels) {
        if (label.isTitle == isTitle) {
            text += text.empty() ? "" : " ";
            for (const char c : label.markup) {
                text += c == '\xE2' ? "-" : c == '\x88' || c == '\x92' ? "" : std::string(1, c);
            }
        }
    }
    return text;
}

Vector3f pixelOf(const Camera3d& camera, const Vector3f& point)
{
    const Vector3f screen = camera.worldToScreenRH(point);
    return {static_cast<float>(c_area.x) + screen.x, static_cast<float>(c_area.y + c_area.height) - screen.y, 0.0f};
}

void expectPlace(const AxisLabel& label, const std::string& markup, float x, float y)
{
    EXPECT_EQ(label.markup, markup);
    EXPECT_NEAR(label.x, x, 1e-3) << markup;
    EXPECT_NEAR(label.y, y, 1e-3) << markup;
    EXPECT_EQ(label.alignX, 0.5f);
    EXPECT_EQ(label.alignY, 0.5f);
}

TEST(GridBox, fromAboveIsLabelledBelowAndAtTheLeft)
{
    Camera3d camera;
    lookParallel(camera, {0.0f, 0.0f, 10.0f}, {0.0f, 1.0f, 0.0f});
    const GridBoxLayout layout = layoutOf({-2.0f, 2.0f, -1.0f, 1.0f, -1.0f, 1.0f}, camera);
    EXPECT_EQ(textOf(layout, true), "y x");
    EXPECT_EQ(textOf(layout, false), "-1.0 -0.5 0.0 0.5 1.0 -2.0 -1.5 -1.0 -0.5 0.0 0.5 1.0 1.5 2.0");
    // The box covers 240 to 640 and 220 to 420. Ticks are 4 long, with 3 after them and 5 before the names.
    ASSERT_EQ(layout.labels.size(), 16u);
    expectPlace(layout.labels[4], "1.0", 218.0f, 220.0f);
    expectPlace(layout.labels[9], "0.0", 440.0f, 432.0f);
    expectPlace(layout.labels[14], "y", 183.0f, 320.0f);
    expectPlace(layout.labels[15], "x", 440.0f, 447.0f);
    ASSERT_EQ(layout.ticks.size(), 14u);
    EXPECT_NEAR(layout.ticks[4].to.x, 236.0, 1e-3);
    EXPECT_NEAR(layout.ticks[9].to.y, 424.0, 1e-3);
    // Fifths of 10 pixels each between them, half as long.
    ASSERT_EQ(layout.minorTicks.size(), 4u * 4u + 8u * 4u);
    EXPECT_NEAR(layout.minorTicks[0].to.x, 238.0, 1e-3);
    EXPECT_NEAR(layout.minorTicks[0].to.y, 410.0, 1e-3);
    // The face below, and none of those seen edge-on. The lines at its ends would be its edges.
    EXPECT_EQ(layout.edges.size(), 4u);
    EXPECT_EQ(layout.grid.size(), 10u);
    for (const AxisLine& line : layout.grid) {
        EXPECT_EQ(line.from.z, -1.0f);
        EXPECT_EQ(line.to.z, -1.0f);
    }
}

TEST(GridBox, isLabelledAlongTheLowestAndTheLeftmostEdge)
{
    Camera3d camera;
    lookParallel(camera, {5.0f, -10.0f, 4.0f}, {0.0f, 0.0f, 1.0f});
    const GridBoxLayout layout = layoutOf({-1.0f, 1.0f, -1.0f, 1.0f, -1.0f, 1.0f}, camera);
    EXPECT_EQ(layout.edges.size(), 9u);
    const auto startsAt = [&](const Vector3f& point) {
        const Vector3f pixel = pixelOf(camera, point);
        return std::any_of(layout.ticks.begin(), layout.ticks.end(),
                           [&](const AxisLine& line) { return (line.from - pixel).length() < 0.01f; });
    };
    EXPECT_TRUE(startsAt({0.0f, -1.0f, -1.0f})) << "x below in front";
    EXPECT_TRUE(startsAt({1.0f, 0.0f, -1.0f})) << "y below at the right";
    EXPECT_TRUE(startsAt({-1.0f, -1.0f, 0.0f})) << "z at the left";
}

TEST(GridBox, shortAxesKeepTwoLabels)
{
    Camera3d camera;
    lookParallel(camera, {0.0f, 0.0f, 10.0f}, {0.0f, 1.0f, 0.0f});
    camera.setOrthographicHeight(1200.0f);
    // 60 pixels by 40: coarse ticks would leave 0 alone on both axes.
    const GridBoxLayout layout = layoutOf({-60.0f, 60.0f, -40.0f, 40.0f, 0.0f, 0.0f}, camera);
    EXPECT_EQ(textOf(layout, false), "-40 -20 0 20 40 -50 0 50");
}

TEST(GridBox, axesOfAnyRangeHaveTwoNumbersThatDoNotOverlap)
{
    SquareMetrics metrics;
    Camera3d camera;
    int numAxes = 0;
    for (const float size : {1e-12f, 3.7e-6f, 1.0f, 123.4f, 8.9e12f}) {
        for (const float offset : {0.0f, -0.37f, 4.1f}) {
            for (const float depth : {1.0f, 0.1f, 0.02f}) {
                for (const float width : {1.0f, 0.07f}) {
                    const float low = offset * size;
                    const BoundingBox box(low, low + width * size, 0.0f, size, low, low + depth * size);
                    setArea(camera);
                    const Vector3f from(5.0f, -8.0f, 4.0f);
                    camera.setRelativeViewOffset(0.0f, 0.0f);
                    camera.lookAt(from, -from, {0.0f, 0.0f, 1.0f});
                    camera.setRotationPoint(box.getCenter());
                    camera.moveToBoundingBox(box, box, 0.0f);
                    camera.setBoundingBox(box);
                    const GridBoxLayout layout = layoutOf(box, camera);
                    std::vector<LabelRect> rects;
                    for (const AxisLabel& label : layout.labels) {
                        rects.push_back(rectOf(label, metrics));
                        for (std::size_t i = 0; i + 1 < rects.size(); ++i) {
                            EXPECT_FALSE(rects[i].left < rects.back().right && rects.back().left < rects[i].right &&
                                         rects[i].top < rects.back().bottom && rects.back().top < rects[i].bottom);
                        }
                    }
                    const auto numNames = std::ranges::count_if(layout.labels, &AxisLabel::isTitle);
                    // Two ticks at least for each axis that has a name; each tick has its number.
                    EXPECT_GE(layout.ticks.size(), 2 * static_cast<std::size_t>(numNames));
                    EXPECT_GE(static_cast<std::ptrdiff_t>(layout.labels.size()) - numNames, 2 * numNames)
                        << size << ' ' << offset << ' ' << depth << ' ' << width << ": " << textOf(layout, false);
                    numAxes += static_cast<int>(numNames);
                }
            }
        }
    }
    EXPECT_GT(numAxes, 200);
}

TEST(GridBox, heightsAreNumberedInTheirUnits)
{
    Camera3d camera;
    lookParallel(camera, {5.0f, -10.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
    SquareMetrics metrics;
    const BoundingBox box(-1.0f, 1.0f, -1.0f, 1.0f, 0.5f, 1.5f);
    // 0.25 per 100 m over a plane at 0.5.
    const GridBoxLayout layout = layoutGridBox(
        {.box = box, .camera = camera, .names = {"", "", "z"}, .units = {{{}, {}, {0.5, 0.0025}}}}, c_area, metrics);
    const auto zNumber = [&](const std::string& text) {
        return std::ranges::find_if(layout.labels, [&](const AxisLabel& label) { return label.markup == text; });
    };
    ASSERT_NE(zNumber("100"), layout.labels.end()) << textOf(layout, false);
    ASSERT_NE(zNumber("400"), layout.labels.end()) << textOf(layout, false);
    EXPECT_EQ(zNumber("500"), layout.labels.end());
    EXPECT_NEAR(zNumber("100")->y, pixelOf(camera, {-1.0f, -1.0f, 0.75f}).y, 0.1);
    EXPECT_NEAR(zNumber("400")->y, pixelOf(camera, {-1.0f, -1.0f, 1.5f}).y, 0.1);
}

TEST(GridBox, axesNamedInDegreesHaveStepsThatDivideATurn)
{
    Camera3d camera;
    lookParallel(camera, {0.0f, 0.0f, 10.0f}, {0.0f, 1.0f, 0.0f});
    camera.setAxisViewScales(0.01f, 0.01f, 1.0f);
    SquareMetrics metrics;
    const BoundingBox box(-100.0f, 100.0f, -100.0f, 100.0f, 0.0f, 1.0f);
    const GridBoxLayout layout = layoutGridBox(
        {.box = box, .camera = camera, .names = {"\\unicode{Longitude in degrees}", "y", "z"}}, c_area, metrics);
    EXPECT_EQ(textOf(layout, false), "-90 -45 0 45 90 -100 -50 0 50 100");
}

TEST(GridBox, isJudgedAsItIsSeenStretched)
{
    Camera3d camera;
    const BoundingBox box(0.0f, 20000.0f, 0.0f, 3000.0f, 0.0f, 0.0025f);
    camera.setAxisViewScales(1e-4f, 1e-3f, 800.0f);
    lookParallel(camera, {5.0f, -10.0f, 4.0f}, {0.0f, 0.0f, 1.0f});
    EXPECT_EQ(layoutOf(box, camera).edges.size(), 9u);
}

TEST(GridBox, aPowerOfTenIsShownAtTheName)
{
    Camera3d camera;
    lookParallel(camera, {0.0f, 0.0f, 10.0f}, {0.0f, 1.0f, 0.0f});
    camera.setOrthographicHeight(60000.0f);
    SquareMetrics metrics;
    const BoundingBox box(0.0f, 20000.0f, 0.0f, 200.0f, 0.0f, 0.0f);
    const GridBoxLayout layout = layoutGridBox({.box = box, .camera = camera, .names = {"r", "", ""}}, c_area, metrics);
    EXPECT_EQ(textOf(layout, true), "r (\\times10^{4})") << "the height of two pixels is not labelled";
    EXPECT_EQ(textOf(layout, false), "0.0 0.5 1.0 1.5 2.0");
}

TEST(GridBox, keepsWhatMakesSenseOfDegenerateViews)
{
    Camera3d camera;
    lookParallel(camera, {5.0f, -10.0f, 4.0f}, {0.0f, 0.0f, 1.0f});
    const struct {
        BoundingBox box;
        const char* titles;
        std::size_t numEdges;
    } cases[] = {
        {{0.0f, 2.0f, 0.0f, 1.0f, 0.0f, 0.0f}, "y x", 4},
        {{0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 2.0f}, "y z", 4},
        {{0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f}, "x", 1},
        {{1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f}, "", 0},
        {BoundingBox(), "", 0},
        {{0.0f, std::numeric_limits<float>::infinity(), 0.0f, 1.0f, 0.0f, 1.0f}, "", 0},
        {{0.0f, std::nanf(""), 0.0f, 1.0f, 0.0f, 1.0f}, "", 0},
    };
    for (const auto& c : cases) {
        const GridBoxLayout layout = layoutOf(c.box, camera);
        EXPECT_EQ(textOf(layout, true), c.titles) << c.box.getCenter();
        EXPECT_EQ(layout.edges.size(), c.numEdges) << c.box.getCenter();
    }
    const BoundingBox cube(-1.0f, 1.0f, -1.0f, 1.0f, -1.0f, 1.0f);
    camera.setProjectionType(Camera3d::ProjectionPerspective);
    camera.setFOV(20.0f);
    camera.lookAt({0.0f, 0.0f, 0.5f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
    EXPECT_EQ(layoutOf(cube, camera).edges.size(), 12u) << "seen from within";
    EXPECT_TRUE(layoutOf(cube, camera).labels.empty());
    camera.lookAt({0.0f, 5.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
    EXPECT_TRUE(layoutOf(cube, camera).grid.empty()) << "behind the eye";
    camera.lookAt({0.0f, 5.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 1.0f, 0.0f});
    EXPECT_TRUE(layoutOf(cube, camera).edges.empty()) << "a camera without an up direction";
}

TEST(GridBox, showsTheTicksInSightWhenZoomed)
{
    Camera3d camera;
    lookParallel(camera, {0.0f, 0.0f, 10.0f}, {0.0f, 1.0f, 0.0f});
    // The lower left quarter of the box fills the area.
    const GridBoxLayout layout = layoutOf({-4.0f, 12.0f, -3.0f, 9.0f, 0.0f, 0.0f}, camera);
    ASSERT_FALSE(layout.ticks.empty());
    for (const AxisLine& tick : layout.ticks) {
        EXPECT_GE(tick.from.x, 39.0f);
        EXPECT_LE(tick.from.x, 841.0f);
        EXPECT_GE(tick.from.y, 19.0f);
        EXPECT_LE(tick.from.y, 621.0f);
    }
    EXPECT_EQ(textOf(layout, true), "y x");
}

/// Whether a point lies within a triangle, not at its border.
bool isInTriangle(const Vector3f& p, const Vector3f& a, const Vector3f& b, const Vector3f& c)
{
    const auto side = [&p](const Vector3f& from, const Vector3f& to) { return (to - from).cross(p - from).z; };
    const float sides[] = {side(a, b), side(b, c), side(c, a)};
    return (sides[0] > 0.5f && sides[1] > 0.5f && sides[2] > 0.5f) ||
           (sides[0] < -0.5f && sides[1] < -0.5f && sides[2] < -0.5f);
}

bool isOverBox(const Vector3f& point, const Vector3f (&corners)[8])
{
    for (int a = 0; a < 8; ++a) {
        for (int b = 0; b < a; ++b) {
            for (int c = 0; c < b; ++c) {
                if (isInTriangle(point, corners[a], corners[b], corners[c])) {
                    return true;
                }
            }
        }
    }
    return false;
}

/// A box seen by a random camera, which shows the whole of it.
struct RandomView {
    Camera3d camera;
    BoundingBox box;
    /// From the middle of the box to the eye, in the world; a direction in parallel projection.
    Vector3f eye;

    explicit RandomView(std::mt19937& random)
    {
        std::uniform_real_distribution<float> unit(0.0f, 1.0f);
        const auto coordinate = [&] { return 2.0f * unit(random) - 1.0f; };
        const auto extent = [&] { return std::pow(10.0f, 2.0f * unit(random)); };
        box.init(0.0f, extent(), -extent(), 0.0f, 1.0f, 1.0f + extent());
        setArea(camera);
        const bool isParallel = unit(random) < 0.4f;
        camera.setProjectionType(isParallel ? Camera3d::ProjectionOrthographic : Camera3d::ProjectionPerspective);
        if (unit(random) < 0.5f) {
            camera.setAxisViewScales(0.2f + unit(random), 0.2f + 5.0f * unit(random), 1.0f);
        }
        Vector3f from(coordinate(), coordinate(), coordinate());
        if (unit(random) < 0.2f) {
            from.z = 0.0f;
        }
        camera.lookAt(from, -from, {coordinate(), coordinate(), 2.0f});
        camera.setBoundingBox(box);
        camera.moveToBoundingBox(box, box, 0.1f);
        if (!isParallel && unit(random) < 0.5f) {
            // Closer, for more perspective than zooming to a box gives.
            const BoundingBox view = camera.getViewBoundingBox(box);
            const Vector3f at = view.getCenter() + from.normalized() * (1.8f * view.getBoundingRadius());
            camera.lookAt(at, -from, {0.0f, 0.0f, 1.0f});
            camera.setFOV(35.0f);
        }
        eye = isParallel ? -camera.getLookAtDirection() : camera.getActualPosition();
        eye = eye.scaled(1.0f / camera.getAxisViewScaleX(), 1.0f / camera.getAxisViewScaleY(), 1.0f);
        m_isParallel = isParallel;
    }

    /// Whether what lies behind a position, as the eye sees it, is outside the box.
    bool isAtTheBack(const Vector3f& place) const
    {
        const Vector3f behind = place + (m_isParallel ? -eye : place - eye).normalized() * (0.002f * box.getL1Norm());
        const Vector3f distance = behind - box.getCenter();
        return std::abs(distance.x) > box.getHalfSizeX() || std::abs(distance.y) > box.getHalfSizeY() ||
               std::abs(distance.z) > box.getHalfSizeZ();
    }

private:
    bool m_isParallel;
};

TEST(GridBox, neverCoversTheSceneNorItsOwnLabels)
{
    std::mt19937 random(20);
    SquareMetrics metrics;
    std::size_t numLabels = 0;
    for (int round = 0; round < 400; ++round) {
        const RandomView view(random);
        const GridBoxLayout layout = layoutOf(view.box, view.camera);
        SCOPED_TRACE(round);
        for (const std::vector<AxisLine>* lines : {&layout.grid, &layout.edges}) {
            EXPECT_FALSE(lines->empty());
            for (const AxisLine& line : *lines) {
                ASSERT_TRUE(view.isAtTheBack((line.from + line.to) * 0.5f)) << line.from << line.to;
            }
        }
        Vector3f corners[8];
        for (int i = 0; i < 8; ++i) {
            corners[i] = pixelOf(view.camera, view.box.getVertex(i));
        }
        const AxisMargins margins = gridBoxMargins({.box = view.box, .camera = view.camera}, metrics);
        std::vector<LabelRect> rects;
        for (const AxisLabel& label : layout.labels) {
            const LabelRect rect = rectOf(label, metrics);
            const auto x = static_cast<float>(c_area.x);
            const auto y = static_cast<float>(c_area.y);
            ASSERT_TRUE(rect.left >= x - margins.left && rect.right <= x + 800.0f + margins.right) << label.markup;
            ASSERT_TRUE(rect.top >= y - margins.top && rect.bottom <= y + 600.0f + margins.bottom) << label.markup;
            for (const float u : {0.0f, 0.25f, 0.5f, 0.75f, 1.0f}) {
                for (const float v : {0.0f, 0.5f, 1.0f}) {
                    const Vector3f point(rect.left + u * (rect.right - rect.left),
                                         rect.top + v * (rect.bottom - rect.top), 0.0f);
                    ASSERT_FALSE(isOverBox(point, corners)) << label.markup;
                }
            }
            for (const LabelRect& other : rects) {
                ASSERT_FALSE(rect.left < other.right && other.left < rect.right && rect.top < other.bottom &&
                             other.top < rect.bottom)
                    << label.markup;
            }
            rects.push_back(rect);
        }
        for (const AxisLine& tick : layout.ticks) {
            ASSERT_NEAR((tick.to - tick.from).length(), 4.0, 1e-3);
            ASSERT_FALSE(isOverBox(tick.to, corners));
        }
        numLabels += layout.labels.size();
    }
    EXPECT_GT(numLabels, 400u * 8u);
}

} // namespace
} // namespace vxrenderer
