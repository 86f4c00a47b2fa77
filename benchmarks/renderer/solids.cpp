// Frames of a solid of many faces beside frames of a plot surface of the same triangles: 1600 by 1000 pixels, lit, four
// samples per pixel, nothing but the data.

#include "datacarrier/renderdraw3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;
using namespace vxdatacarrier;

/// Cells of the grid of each face, and faces in each direction: 100 triangles and 10,000 faces.
constexpr int c_columns = 10;
constexpr int c_rows = 5;
constexpr int c_faces = 100;
constexpr int c_numTriangles = 2 * c_columns * c_rows * c_faces * c_faces;

double height(double x, double y)
{
    return 0.1 * std::sin(20.0 * x) * std::cos(15.0 * y);
}

CoordsNormal3D vertexAt(double x, double y)
{
    const double slopeX = 2.0 * std::cos(20.0 * x) * std::cos(15.0 * y);
    const double slopeY = -1.5 * std::sin(20.0 * x) * std::sin(15.0 * y);
    const double length = std::sqrt(slopeX * slopeX + slopeY * slopeY + 1.0);
    return {static_cast<float>(x),
            static_cast<float>(y),
            static_cast<float>(height(x, y)),
            static_cast<float>(-slopeX / length),
            static_cast<float>(-slopeY / length),
            static_cast<float>(1.0 / length)};
}

/// A part of the wavy surface over the unit square.
void fillFace(Sheet3D& face, double left, double bottom)
{
    face.m_isValid = true;
    face.m_numVertices = (c_columns + 1) * (c_rows + 1);
    face.m_vertices = std::make_unique<CoordsNormal3D[]>(static_cast<std::size_t>(face.m_numVertices));
    face.m_numTriangles = 2 * c_columns * c_rows;
    face.m_triangles = std::make_unique<Triangle[]>(static_cast<std::size_t>(face.m_numTriangles));
    CoordsNormal3D* vertex = face.m_vertices.get();
    Triangle* triangle = face.m_triangles.get();
    for (int j = 0; j <= c_rows; ++j) {
        for (int i = 0; i <= c_columns; ++i) {
            *vertex++ = vertexAt(left + i / double{c_faces * c_columns}, bottom + j / double{c_faces * c_rows});
            if (i < c_columns && j < c_rows) {
                const int corner = j * (c_columns + 1) + i;
                *triangle++ = {corner, corner + 1, corner + c_columns + 2};
                *triangle++ = {corner, corner + c_columns + 2, corner + c_columns + 1};
            }
        }
    }
}

/// The lower and the left edge of each face, as two curves with a piece for each cell.
void fillEdges(RenderDraw3D& record)
{
    record.m_numCurves = 2 * c_faces * c_faces;
    record.m_curves = std::make_unique<Curve3D[]>(static_cast<std::size_t>(record.m_numCurves));
    for (int i = 0; i < record.m_numCurves; ++i) {
        Curve3D& curve = record.m_curves[static_cast<std::size_t>(i)];
        const bool isLower = i % 2 == 0;
        const int cells = isLower ? c_columns : c_rows;
        curve.m_isValid = true;
        curve.m_numVertices = cells + 1;
        curve.m_vertices = std::make_unique<Coords3D[]>(static_cast<std::size_t>(cells) + 1);
        const double left = i / 2 % c_faces / double{c_faces};
        const double bottom = i / 2 / c_faces / double{c_faces};
        for (int v = 0; v <= cells; ++v) {
            const double along = v / double{c_faces} / cells;
            const CoordsNormal3D at = vertexAt(left + (isLower ? along : 0.0), bottom + (isLower ? 0.0 : along));
            curve.m_vertices[static_cast<std::size_t>(v)] = {at.x, at.y, at.z};
        }
    }
}

RenderDraw3D solidRecord(bool hasEdges)
{
    RenderDraw3D record;
    record.m_id = 1;
    record.m_box.m_xMax = 1.0f;
    record.m_box.m_yMax = 1.0f;
    record.m_box.m_zMin = -0.1f;
    record.m_box.m_zMax = 0.1f;
    record.m_numSheets = c_faces * c_faces;
    record.m_sheets = std::make_unique<Sheet3D[]>(static_cast<std::size_t>(record.m_numSheets));
    for (int i = 0; i < record.m_numSheets; ++i) {
        fillFace(record.m_sheets[static_cast<std::size_t>(i)], i % c_faces / double{c_faces},
                 i / c_faces / double{c_faces});
    }
    if (hasEdges) {
        fillEdges(record);
    }
    return record;
}

void show(OffscreenCanvas& canvas, const TestScene& scene)
{
    SceneLight& light = *scene.scene->getSceneLight();
    LightSource& lamp = *light.lightSource(light.createDirectionLight());
    lamp.setIntensity(0.6f);
    lamp.setActive(true);
    light.setAmbientIntensity(0.4f);
    canvas.setScene(scene.scene);
    canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderObjects | RenderBackground);
    lookFrom(canvas, -50.0, 30.0);
    canvas.zoomExtents();
    canvas.draw();
}

/// Draws and reads frames.
/// @param change what happens between them
template <class Change>
void drawFrames(benchmark::State& state, OffscreenCanvas& canvas, Change change)
{
    std::vector<std::uint8_t> pixels(canvas.imageSize());
    const UploadCounts before = canvas.getUploadCounts();
    for (auto _ : state) {
        change();
        canvas.draw();
        canvas.readImage(pixels.data(), pixels.size());
    }
    if (canvas.getUploadCounts().meshes != before.meshes) {
        state.SkipWithError("geometry was uploaded");
    }
    state.SetItemsProcessed(state.iterations() * c_numTriangles);
}

constexpr int c_width = 1600;
constexpr int c_height = 1000;
constexpr int c_samples = 4;

void drawSolid(benchmark::State& state, bool hasEdges, bool isMarking)
{
    TestScene scene;
    const auto group = SceneGraphGroup::create();
    const auto solid = SceneGraphDrawObjectSolid::create(1);
    scene.root->setChild(group);
    group->addChild(solid);
    solid->fillData(solidRecord(hasEdges));
    OffscreenCanvas canvas(c_width, c_height, c_samples);
    show(canvas, scene);
    int face = 0;
    drawFrames(state, canvas, [&] {
        if (isMarking) {
            solid->mark(PartSheet, face, SceneGraphObject::MarkingPrimary, true);
            solid->mark(PartSheet, face, SceneGraphObject::MarkingHidden, face % 2 == 0);
            face = (face + 7) % (c_faces * c_faces);
        }
    });
    if (isMarking && canvas.getUploadCounts().partTables < 2) {
        state.SkipWithError("no mark was drawn");
    }
}

/// The same triangles as a plot in one colour.
void drawSurface(benchmark::State& state)
{
    TestScene scene;
    GridRecord record;
    record.cells = 707;
    record.height = [](double x, double y) { return height(x, y); };
    const auto plot = scene.add<SceneGraphPlotSurface3d>(1, record, {0xd9d9d9});
    plot->setColor(Color::fromRgb(0xd9d9d9));
    OffscreenCanvas canvas(c_width, c_height, c_samples);
    show(canvas, scene);
    drawFrames(state, canvas, [] {});
}

BENCHMARK_CAPTURE(drawSolid, faces, false, false)->Name("drawSolid")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(drawSurface)->Name("drawSolid_limit")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(drawSolid, marks, false, true)
    ->Name("drawSolid_afterMarks")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(drawSolid, edges, true, false)
    ->Name("drawSolid_withEdges")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
} // namespace vxrenderer
