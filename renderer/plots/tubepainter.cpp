#include "renderer/plots/tubepainter.h"

#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "graphics3d/plots/vector/scenegraphplottube.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <stdexcept>

namespace vxrenderer {
namespace {

using vxgraphics3d::IndexBufferTriangles;
using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotRibbon3d;
using vxgraphics3d::SceneGraphPlotTube;
using vxgraphics3d::SurfaceMesh;
using vxgraphics3d::Vector3f;
using vxgraphics3d::VertexBufferNormalTex;
using vxgraphics3d::VertexNormalTex;
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

/// The rings of a tube in space, from its start to its end. The last vertex of a ring is at the first.
class TubeRings {
public:
    TubeRings(std::span<VertexNormalTex> vertices, int resolution)
        : m_vertices(vertices),
          m_resolution(static_cast<std::size_t>(resolution)),
          m_numRings(vertices.size() / (m_resolution + 1))
    {}

    /// Gives the normals of spheres to hemispheres at the ends: as rings of a tube they have radial ones.
    void roundEnds()
    {
        const std::size_t half = m_resolution / 2;
        if (m_numRings > half) {
            roundEnd(half, 0);
            roundEnd(m_numRings - 1 - half, m_numRings - half);
        }
    }

    /// Joins the ends of a closed tube: its last ring is tilted and turned against the first by a step of the tube, so
    /// that one could look into it between them.
    void joinEnds()
    {
        const auto first = ring(0);
        const auto last = ring(m_numRings - 1);
        const float radius = (positionOf(first[0]) - centreOf(first)).length();
        if ((centreOf(last) - centreOf(first)).length() > c_same * radius ||
            axisOf(first).dot(axisOf(last)) < c_continued) {
            return;
        }
        const auto distance = [&](const VertexNormalTex& it) {
            return (positionOf(it) - positionOf(last[0])).length();
        };
        const auto start = std::ranges::min_element(first.first(m_resolution), {}, distance) - first.begin();
        for (std::size_t i = 0; i <= m_resolution; ++i) {
            const VertexNormalTex& its = first[(static_cast<std::size_t>(start) + i) % m_resolution];
            last[i] = {its.x, its.y, its.z, its.nx, its.ny, its.nz, last[i].u, last[i].v};
        }
    }

private:
    using Ring = std::span<VertexNormalTex>;

    /// Lengths that differ by less than this part of the radius are the same, except for rounding.
    static constexpr float c_same = 1e-3f;
    /// The cosine of the angle by which a closed tube may turn at its ends, which are at a corner otherwise.
    static constexpr float c_continued = 0.9f;

    static Vector3f positionOf(const VertexNormalTex& vertex) { return {vertex.x, vertex.y, vertex.z}; }
    Ring ring(std::size_t index) const { return m_vertices.subspan(index * (m_resolution + 1), m_resolution + 1); }
    Vector3f centreOf(Ring its) const
    {
        Vector3f sum;
        for (const VertexNormalTex& vertex : its.first(m_resolution)) {
            sum += positionOf(vertex);
        }
        return sum / static_cast<float>(m_resolution);
    }
    Vector3f axisOf(Ring its) const
    {
        const Vector3f centre = centreOf(its);
        return (positionOf(its[0]) - centre).cross(positionOf(its[m_resolution / 4]) - centre).normalized();
    }
    /// @param base the ring at which a hemisphere would end
    /// @param first its first ring of the others
    void roundEnd(std::size_t base, std::size_t first)
    {
        const Vector3f centre = centreOf(ring(base));
        const float radius = (positionOf(ring(base)[0]) - centre).length();
        const auto others = m_vertices.subspan(first * (m_resolution + 1), m_resolution / 2 * (m_resolution + 1));
        const auto isOnSphere = [&](const VertexNormalTex& it) {
            return std::abs((positionOf(it) - centre).length() - radius) < c_same * radius;
        };
        if (!std::ranges::all_of(others, isOnSphere)) {
            return;
        }
        for (VertexNormalTex& it : others) {
            const Vector3f normal = (positionOf(it) - centre).normalized();
            it = {it.x, it.y, it.z, normal.x, normal.y, normal.z, it.u, it.v};
        }
    }

    std::span<VertexNormalTex> m_vertices;
    std::size_t m_resolution;
    std::size_t m_numRings;
};

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
    const bool isInSpace =
        plot.getType() == PlotType::tube3d || (plot.getType() == PlotType::tube2d && plot.hasHeightData());
    const int resolution = isInSpace ? static_cast<const SceneGraphPlotTube&>(plot).getResolution() : 0;
    auto mesh = std::make_unique<SurfaceMesh>();
    mesh->allocate(static_cast<int>(numVertices), static_cast<int>(numTriangles));
    forEachPart(plot, [&](const VertexBufferNormalTex& vertices, const IndexBufferTriangles& triangles) {
        const int first = mesh->vertices.getNumberOfVertices();
        const int count = vertices.getNumberOfVertices();
        const std::span copied(mesh->vertices.appendUnwritten(count), static_cast<std::size_t>(count));
        std::copy_n(vertices.vertices(), count, copied.begin());
        if (resolution > 0 && count > resolution) {
            TubeRings rings(copied, resolution);
            rings.roundEnds();
            rings.joinEnds();
        }
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
