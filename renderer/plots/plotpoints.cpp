#include "renderer/plots/plotpoints.h"

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"
#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"
#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "graphics3d/plots/vector/scenegraphplotarrow.h"
#include "graphics3d/plots/vector/scenegraphplotedge.h"
#include "graphics3d/plots/vector/scenegraphplotinteractive.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "graphics3d/plots/vector/scenegraphplottube.h"
#include "renderer/plots/arrowpainter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Passes on the points of one plot, raised as it is drawn.
class Visit {
public:
    Visit(const SceneGraphPlot& plot, const TakePoints& take)
        : m_scale(plot.getHeightScale()), m_offset(plot.getPlotPlaneOffset()), m_take(take)
    {}

    void vertices(const VertexBuffer& buffer) const
    {
        if (buffer.getNumberOfVertices() > 0) {
            run({.first = static_cast<const float*>(buffer.vertexPointer()),
                 .stride = static_cast<std::size_t>(buffer.getVertexSize()) / sizeof(float),
                 .count = static_cast<std::size_t>(buffer.getNumberOfVertices())});
        }
    }
    void points(const PointCollection& points) const
    {
        for (int i = 0; i < points.getNumParts(); ++i) {
            point(points.getPart(i).getPosition());
        }
    }
    void point(const Vector3f& point) const { run({.first = &point.x, .count = 1}); }
    /// Groups of x, y, z and radius.
    void spheres(const std::vector<std::array<float, 4>>& spheres, float radiusScale) const
    {
        if (!spheres.empty()) {
            run({.first = spheres[0].data(),
                 .stride = 4,
                 .count = spheres.size(),
                 .radius = &spheres[0][3],
                 .radiusScale = radiusScale});
        }
    }
    void run(PointRun points) const
    {
        points.heightScale = m_scale;
        points.planeOffset = m_offset;
        m_take(points);
    }

private:
    float m_scale;
    float m_offset;
    const TakePoints& m_take;
};

void visitSpheres(const SceneGraphPlotSphere& plot, const Visit& visit)
{
    std::vector<std::array<float, 4>> spheres;
    if (plot.getType() == PlotType::sphere2d) {
        for (const auto& sphere : static_cast<const SceneGraphPlotSphere2d&>(plot).getSpheres()) {
            spheres.push_back({sphere.x, sphere.y, 0.0f, sphere.radius});
        }
        visit.spheres(spheres, plot.getRadiusScaleFactor());
    } else if (const auto all = static_cast<const SceneGraphPlotSphere3d&>(plot).getSpheres(); !all.empty()) {
        visit.run({.first = &all[0].x,
                   .stride = sizeof(all[0]) / sizeof(float),
                   .count = all.size(),
                   .radius = &all[0].radius,
                   .radiusScale = plot.getRadiusScaleFactor()});
    }
}

/// The ends of arrows, and a sphere about the widest part of each head.
void visitArrows(const SceneGraphPlotArrow& plot, const Visit& visit)
{
    std::vector<std::array<float, 4>> ends;
    forEachDrawnArrow(plot, [&](const Vector3f& tail, const Vector3f& tip, float headLength, float radius) {
        const Vector3f base = tip - (tip - tail) * headLength;
        ends.push_back({tail.x, tail.y, tail.z, 0.0f});
        ends.push_back({tip.x, tip.y, tip.z, 0.0f});
        ends.push_back({base.x, base.y, base.z, headLength > 0.0f ? radius : 0.0f});
    });
    visit.spheres(ends, 1.0f);
}

void visitIso(const SceneGraphPlotIso& plot, const Visit& visit)
{
    for (int i = 0; i < plot.getNumberOfLevels(); ++i) {
        if (plot.getSurface(i)->m_shown) {
            visit.vertices(plot.getSurface(i)->m_vertices);
        }
    }
}

void visitGraph(const SceneGraphPlotGraph& plot, const Visit& visit)
{
    for (const auto& line : plot.getLines()) {
        visit.vertices(line->getVersion(0).vertices);
    }
    if (plot.isShowUnitCircle()) {
        for (const float side : {-1.0f, 1.0f}) {
            visit.point({side, 0.0f, 0.0f});
            visit.point({0.0f, side, 0.0f});
        }
    }
}

} // namespace

void visitPlotPoints(const SceneGraphPlot& plot, const TakePoints& take)
{
    const Visit visit(plot, take);
    switch (plot.getType()) {
    case PlotType::surface2d:
    case PlotType::surface3d:
        visit.vertices(static_cast<const SceneGraphPlotSurface&>(plot).getVertices());
        break;
    case PlotType::domain3d:
        visit.vertices(static_cast<const SceneGraphPlotDomain3d&>(plot).getVertices());
        break;
    case PlotType::edge2d:
    case PlotType::edge3d:
        visit.vertices(static_cast<const SceneGraphPlotEdge&>(plot).getVertices());
        break;
    case PlotType::isoSurface3d:
    case PlotType::contour:
        visitIso(static_cast<const SceneGraphPlotIso&>(plot), visit);
        break;
    case PlotType::slice3d: {
        const auto& slices = static_cast<const SceneGraphPlotSlice3d&>(plot);
        for (int i = 0; i < slices.getNumberOfSlices(); ++i) {
            visit.vertices(slices.getSlice(i)->m_vertices);
        }
        break;
    }
    case PlotType::mesh2d:
    case PlotType::mesh3d: {
        const auto& mesh = static_cast<const SceneGraphPlotMesh3d&>(plot);
        for (int i = 0; i < mesh.getNumberOfGroups(); ++i) {
            visit.vertices(mesh.getVertexBuffer(i));
        }
        break;
    }
    case PlotType::tube2d:
    case PlotType::tube3d:
        for (const auto& tube : static_cast<const SceneGraphPlotTube&>(plot).getTubes()) {
            visit.vertices(tube->m_tubeVertices);
        }
        break;
    case PlotType::ribbon3d:
        for (const auto& ribbon : static_cast<const SceneGraphPlotRibbon3d&>(plot).getRibbons()) {
            visit.vertices(ribbon->m_ribbonVertices);
        }
        break;
    case PlotType::sphere2d:
    case PlotType::sphere3d:
        visitSpheres(static_cast<const SceneGraphPlotSphere&>(plot), visit);
        break;
    case PlotType::arrow2d:
    case PlotType::arrow3d:
    case PlotType::coordSys2d:
    case PlotType::coordSys3d:
    case PlotType::principal2d:
    case PlotType::principal3d:
        visitArrows(static_cast<const SceneGraphPlotArrow&>(plot), visit);
        break;
    case PlotType::graph:
        visitGraph(static_cast<const SceneGraphPlotGraph&>(plot), visit);
        break;
    case PlotType::interactive: {
        const auto& interactive = static_cast<const SceneGraphPlotInteractive&>(plot);
        visit.points(interactive.getInteractivePoints());
        visit.points(interactive.getDashPoints());
        visit.points(interactive.getLinePoints());
        break;
    }
    case PlotType::pointLabel2d:
    case PlotType::pointLabel3d:
        visit.points(static_cast<const SceneGraphPlotPointLabel&>(plot).getLabelPoints());
        break;
    default:
        // A box already has the scale of the heights.
        for (int corner = 0; corner < 8 && plot.getBoundingBox().isValid(); ++corner) {
            const Vector3f point = plot.getBoundingBox().getVertex(corner);
            take({.first = &point.x, .count = 1});
        }
        break;
    }
}

} // namespace vxrenderer
