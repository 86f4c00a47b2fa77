#include "graphics3d/plots/scalar/scenegraphplotcontour.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"
#include "graphics3d/plots/scalar/contourlabels.h"

#include <cstddef>
#include <optional>
#include <vector>

using vxdatacarrier::c_colorData;
using vxdatacarrier::c_isoLevelData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotContour::Input {
    struct Contours {
        Contours(const PostDataView& record, int group, const Levels& levels, int numAxes)
            : Contours(record, group, levels, numAxes, record.elements(group, 0).size())
        {}

        PointPositions positions;
        PointNormals normals;
        PointColors colors;
        std::optional<TriangleCorners> triangles; ///< of a filled band
        LineEnds lines{0, nullptr, nullptr};

    private:
        Contours(const PostDataView& record, int group, const Levels& levels, int numAxes, std::size_t numCorners)
            : positions(record, group, numAxes),
              normals(numCorners == 3 && numAxes == 3 ? PointNormals(record, group)
                                                      : PointNormals(Vector3f(0.0f, 0.0f, 1.0f))),
              colors(colorsOf(record, group, levels, numCorners == 3))
        {
            if (numCorners == 3) {
                triangles.emplace(record, group);
            } else if (numCorners >= 2) {
                lines = LineEnds::ofElements(record, group);
            }
        }

        /// Without colour data, lines have their level, bands the levels of their points.
        static PointColors colorsOf(const PostDataView& record, int group, const Levels& levels, bool isBand)
        {
            if (levels.hasColorData) {
                return {record, group, c_colorData, levels.scale};
            }
            if (isBand && levels.data[static_cast<std::size_t>(group)]->size() != 1) {
                return {record, group, c_isoLevelData, levels.scale};
            }
            return PointColors(levels.scale(levels.levelOf(group)));
        }
    };

    explicit Input(const PostDataView& record)
        : numAxes(record.plotKind() == PostDataObject::Contour3d ? 3 : 2),
          margins(record.plotKind() == PostDataObject::Contour2d ? ContourLabels::Margins::plane
                                                                 : ContourLabels::Margins::none),
          bounds(&record.bounds(numAxes)),
          levels(record, numAxes)
    {
        contours.reserve(levels.data.size());
        for (int group = 0; group < record.numGroups(); ++group) {
            contours.emplace_back(record, group, levels, numAxes);
        }
    }

    int numAxes;
    ContourLabels::Margins margins;
    const PostDataView::DoubleArrays* bounds;
    Levels levels;
    std::vector<Contours> contours; ///< by group
};

SceneGraphPlotContour::SceneGraphPlotContour(int id) : SceneGraphPlotIso(PlotType::contour, id) {}

SceneGraphPlotContour::~SceneGraphPlotContour() = default;

SceneGraphPlot::Fill SceneGraphPlotContour::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotContour::fillPlotImpl(const Input& input)
{
    std::optional<ContourLabels> labels;
    beginFill(input.levels, [&](IsoData& level, int group) {
        if (!labels) { // allocates as well
            labels.emplace(*input.bounds, input.numAxes, input.margins, static_cast<int>(input.contours.size()));
        }
        const Input::Contours& contours = input.contours[static_cast<std::size_t>(group)];
        level.m_vertices.allocate(contours.positions.count);
        if (contours.triangles) {
            allocateElements(level.m_triangles, contours.triangles->count);
        } else {
            allocateElements(level.m_lines, contours.lines.count);
        }
    });
    for (int group = 0; group < getNumberOfLevels(); ++group) {
        const Input::Contours& contours = input.contours[static_cast<std::size_t>(group)];
        IsoData& level = *surface(group);
        appendPoints(level.m_vertices, contours.positions, contours.normals, contours.colors);
        if (contours.triangles) {
            appendTriangles(level.m_triangles, *contours.triangles);
            labels->skip();
        } else {
            level.m_labelPosition = labels->place(contours.positions);
            appendLines(level.m_lines, contours.lines);
        }
    }
}

} // namespace vxgraphics3d
