// Picks by a rectangle over the sheets of a solid, compared with a bare loop that tests each vertex until the first one
// outside. Both must find the same sheets, a tenth of all.

#include "datacarrier/renderdraw3d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/picking/selectionfrustrum.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

constexpr int c_numColumns = 10;

/// Square patches in rows of ten, in the plane of the screen, with a gap between them.
void fillSheet(vxdatacarrier::Sheet3D& sheet, int index, int numVertices)
{
    const auto left = static_cast<float>(index % c_numColumns);
    const auto bottom = static_cast<float>(index / c_numColumns);
    sheet.m_isValid = true;
    sheet.m_numVertices = numVertices;
    sheet.m_vertices = std::make_unique<vxdatacarrier::CoordsNormal3D[]>(static_cast<std::size_t>(numVertices));
    for (int i = 0; i < numVertices; ++i) {
        const float x = left + 0.1f * static_cast<float>(i % 8 + 1);
        const float y = bottom + 0.8f * static_cast<float>(i / 8 + 1) / static_cast<float>(numVertices / 8);
        sheet.m_vertices[static_cast<std::size_t>(i)] = {x, y, 0.01f * static_cast<float>(i % 7), 0.0f, 0.0f, 1.0f};
    }
    sheet.m_numTriangles = 1;
    sheet.m_triangles = std::make_unique<vxdatacarrier::Triangle[]>(1);
    sheet.m_triangles[0] = {0, 1, 8};
}

boost::shared_ptr<SceneGraphDrawObjectSolid> makeSolid(int numSheets, int numVertices)
{
    vxdatacarrier::RenderDraw3D record;
    record.m_numSheets = numSheets;
    record.m_sheets = std::make_unique<vxdatacarrier::Sheet3D[]>(static_cast<std::size_t>(numSheets));
    for (int i = 0; i < numSheets; ++i) {
        fillSheet(record.m_sheets[static_cast<std::size_t>(i)], i, numVertices);
    }
    auto solid = SceneGraphDrawObjectSolid::create(0);
    solid->fillData(record);
    return solid;
}

/// Looks at all patches; a pixel is a hundredth of a patch in each direction.
void aim(Camera3d& camera, int numSheets)
{
    const int height = numSheets / c_numColumns;
    camera.setProjectionType(Camera3d::ProjectionOrthographic);
    camera.setOverrideResizeBehaviour(true, Canvas3dGlobalSettings::ResizeHeight);
    camera.setRenderArea(100 * c_numColumns, 100 * height, 0, 0, 100 * c_numColumns, 100 * height);
    camera.lookAt({0.5f * static_cast<float>(c_numColumns), 0.5f * static_cast<float>(height), 10.0f},
                  {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    camera.setOrthographicSize(static_cast<float>(height));
}

class PickedSheets {
public:
    explicit PickedSheets(const benchmark::State& state)
        : m_numSheets(static_cast<int>(state.range(0))),
          m_solid(makeSolid(m_numSheets, static_cast<int>(state.range(1))))
    {
        aim(m_camera, m_numSheets);
        m_settings.pickTarget = CanvasPickSettings::PickSheet;
        m_settings.pickMask = CanvasPickSettings::PickMaskSheets;
    }

    /// Around the first column.
    SelectionFrustrum frustrum() const { return {m_camera, 0, 10 * m_numSheets, 101, 0}; }

    void pick(PickedObjectCollection& result) const { m_solid->getSelection(frustrum(), m_settings, result, false); }

    void pickByLoop(PickedObjectCollection& result) const
    {
        const SelectionFrustrum frustrum = this->frustrum();
        const SheetCollection& sheets = m_solid->getParts().getSheets();
        for (int i = 0; i < sheets.getNumParts(); ++i) {
            if (areAllInside(sheets.getPart(i).getVertices(), frustrum)) {
                result.addPickedObjectSolidPart(0, PartTypeSheet, i);
            }
        }
    }

    void check(benchmark::State& state) const
    {
        PickedObjectCollection picked;
        PickedObjectCollection expected;
        pick(picked);
        pickByLoop(expected);
        bool areEqual = picked.getNumberOfPickedObjects() == expected.getNumberOfPickedObjects();
        for (int i = 0; areEqual && i < picked.getNumberOfPickedObjects(); ++i) {
            areEqual = picked.getPickedObject(i) == expected.getPickedObject(i);
        }
        if (!areEqual || picked.getNumberOfPickedObjects() * c_numColumns != m_numSheets) {
            state.SkipWithError("the pick is wrong");
        }
    }

private:
    static bool areAllInside(const VertexBufferNormal& vertices, const SelectionFrustrum& frustrum)
    {
        const VertexBufferNormal::Vertex* vertex = vertices.vertices();
        for (const VertexBufferNormal::Vertex* end = vertex + vertices.getNumberOfVertices(); vertex != end; ++vertex) {
            if (!frustrum.isInside(vertex->x, vertex->y, vertex->z)) {
                return false;
            }
        }
        return true;
    }

    int m_numSheets;
    boost::shared_ptr<SceneGraphDrawObjectSolid> m_solid;
    Camera3d m_camera;
    CanvasPickSettings m_settings;
};

void pickSheets(benchmark::State& state)
{
    const PickedSheets sheets(state);
    PickedObjectCollection result;
    for (auto _ : state) {
        result.reset();
        sheets.pick(result);
        benchmark::DoNotOptimize(result);
    }
    sheets.check(state);
    state.counters["allowed"] = 0.3;
}

void pickSheets_limit(benchmark::State& state)
{
    const PickedSheets sheets(state);
    PickedObjectCollection result;
    for (auto _ : state) {
        result.reset();
        sheets.pickByLoop(result);
        benchmark::DoNotOptimize(result);
    }
    sheets.check(state);
}

BENCHMARK(pickSheets)->Args({10000, 128})->Args({100, 2048});
BENCHMARK(pickSheets_limit)->Args({10000, 128})->Args({100, 2048});

} // namespace
} // namespace vxgraphics3d
