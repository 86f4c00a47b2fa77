#include "renderer/plots/tubepainter.h"

#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "graphics3d/plots/vector/scenegraphplottube.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>

namespace vxrenderer {
namespace {

using vxgraphics3d::IndexBufferTriangles;
using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotRibbon3d;
using vxgraphics3d::SceneGraphPlotTube;
using vxgraphics3d::SurfaceMesh;
using vxgraphics3d::VertexBufferNormalTex;
using PlotType = SceneGraphPlot::PlotType;

/// Calls a function with the vertices and triangles of each part of a plot.
template <class Take>
void forEachPart(const SceneGraphPlot& plot, Take take)
{
    if (plot.getType() == PlotType::ribbon3d) {
        for (const auto& ribbon : static_cast<const SceneGraphPlotRibbon3d&>(plot).getRibbons()) {
            take(ribbon->m_ribbonVertices, ribbon->m_ribbonTriangles);
        }
    } else {
        for (const auto& tube : static_cast<const SceneGraphPlotTube&>(plot).getTubes()) {
            take(tube->m_tubeVertices, tube->m_tubeTriangles);
        }
    }
}

/// All parts of a plot as one mesh.
std::unique_ptr<SurfaceMesh> mergedMesh(const SceneGraphPlot& plot)
{
    std::int64_t numVertices = 0;
    std::int64_t numTriangles = 0;
    forEachPart(plot, [&](const VertexBufferNormalTex& vertices, const IndexBufferTriangles& triangles) {
        numVertices += vertices.getNumberOfVertices();
        numTriangles += triangles.getNumElements(0);
    });
    if (std::max(numVertices, 3 * numTriangles) > std::numeric_limits<int>::max()) {
        throw std::length_error("The tubes of a plot have too many vertices for one mesh.");
    }
    auto mesh = std::make_unique<SurfaceMesh>();
    mesh->allocate(static_cast<int>(numVertices), static_cast<int>(numTriangles));
    forEachPart(plot, [&](const VertexBufferNormalTex& vertices, const IndexBufferTriangles& triangles) {
        const int first = mesh->vertices.getNumberOfVertices();
        const int count = vertices.getNumberOfVertices();
        std::copy_n(vertices.vertices(), count, mesh->vertices.appendUnwritten(count));
        for (int i = 0; i < triangles.getNumElements(0); ++i) {
            int a = 0;
            int b = 0;
            int c = 0;
            triangles.getTriangle(i, a, b, c);
            mesh->indices.appendTriangle(first + a, first + b, first + c);
        }
    });
    return mesh;
}

} // namespace

bool TubePainter::draws(PlotType type) const
{
    return type == PlotType::tube2d || type == PlotType::tube3d || type == PlotType::ribbon3d;
}

void TubePainter::draw(const PlotItem& item, const PaintContext& context) const
{
    if (const std::optional<Look> look = lookOf(item, context)) {
        context.drawBody(context.uploads.mesh(item.plot, 0, item.plot->getGeometryChangeId(),
                                              [&] { return mergedMesh(*item.plot); }),
                         *look);
    }
}

} // namespace vxrenderer
