#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

#include <cstddef>
#include <optional>
#include <vector>

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotIsoSurface3d::Input {
    struct Surface {
        Surface(const PostDataView& record, int group, const Levels& levels, const TriangleCorners& corners)
            : positions(record, group, 3),
              normals(record, group),
              colors(levels.hasColorData ? PointColors(record, group, c_colorData, levels.scale)
                                         : PointColors(levels.scale(levels.levelOf(group)))),
              triangles(corners)
        {}

        PointPositions positions;
        PointNormals normals;
        PointColors colors;
        TriangleCorners triangles;
    };

    explicit Input(const PostDataView& record) : levels(record, 3)
    {
        surfaces.reserve(levels.data.size());
        for (int group = 0; group < record.numGroups(); ++group) {
            const TriangleCorners triangles = TriangleCorners::ofAnyElements(record, group);
            surfaces.emplace_back();
            if (triangles.count > 0) {
                surfaces.back().emplace(record, group, levels, triangles);
            }
        }
    }

    Levels levels;
    std::vector<std::optional<Surface>> surfaces; ///< by group; nothing for one without triangles
};

SceneGraphPlotIsoSurface3d::SceneGraphPlotIsoSurface3d(int id) : SceneGraphPlotIso(PlotType::isoSurface3d, id) {}

SceneGraphPlotIsoSurface3d::~SceneGraphPlotIsoSurface3d() = default;

SceneGraphPlot::Fill SceneGraphPlotIsoSurface3d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotIsoSurface3d::fillPlotImpl(const Input& input)
{
    beginFill(input.levels, [&](IsoData& level, int group) {
        if (const auto& surface = input.surfaces[static_cast<std::size_t>(group)]; surface) {
            level.m_vertices.allocate(surface->positions.count);
            allocateElements(level.m_triangles, surface->triangles.count);
        }
    });
    for (int group = 0; group < getNumberOfLevels(); ++group) {
        if (const auto& surface = input.surfaces[static_cast<std::size_t>(group)]; surface) {
            IsoData& level = *this->surface(group);
            appendPoints(level.m_vertices, surface->positions, surface->normals, surface->colors);
            appendTriangles(level.m_triangles, surface->triangles);
        }
    }
}

} // namespace vxgraphics3d
