#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

#include <boost/make_shared.hpp>

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotSlice3d::Input {
    struct Section {
        Section(const PostDataView& record, int group, const ValueScale& scale)
            : positions(record, group, 3),
              normals(record, group),
              colors(record, group, c_colorData, scale),
              triangles(TriangleCorners::ofAnyElements(record, group)),
              outline(LineEnds::ofBoundary(record, group))
        {}

        PointPositions positions;
        PointNormals normals;
        PointColors colors;
        TriangleCorners triangles;
        LineEnds outline;
    };

    explicit Input(const PostDataView& record) : box(boxOf(record.bounds(1), 3))
    {
        const ValueScale scale = ValueScale::ofRecord(record, c_colorData);
        sections.reserve(static_cast<std::size_t>(record.numGroups()));
        for (int group = 0; group < record.numGroups(); ++group) {
            sections.emplace_back(record, group, scale);
        }
    }

    BoundingBox box;
    std::vector<Section> sections; ///< by group
};

SceneGraphPlotSlice3d::SceneGraphPlotSlice3d(int id) : SceneGraphSingleTexturePlot(PlotType::slice3d, id) {}

SceneGraphPlotSlice3d::~SceneGraphPlotSlice3d() = default;

void SceneGraphPlotSlice3d::allocate(int slices)
{
    m_slices.clear();
    m_slices.reserve(static_cast<std::size_t>(slices));
    for (int i = 0; i < slices; ++i) {
        m_slices.push_back(boost::make_shared<Slice>());
    }
}

void SceneGraphPlotSlice3d::setFilled(const BoundingBox& box)
{
    setBoundingBox(box);
    markGeometryChanged();
}

void SceneGraphPlotSlice3d::resetPlotData()
{
    m_slices.clear();
    markGeometryChanged();
}

bool SceneGraphPlotSlice3d::isValid() const
{
    return !m_slices.empty();
}

SceneGraphPlot::Fill SceneGraphPlotSlice3d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotSlice3d::fillPlotImpl(const Input& input)
{
    try {
        allocate(static_cast<int>(input.sections.size()));
        for (int i = 0; i < getNumberOfSlices(); ++i) {
            const Input::Section& section = input.sections[static_cast<std::size_t>(i)];
            slice(i)->m_vertices.allocate(section.positions.count);
            allocateElements(slice(i)->m_triangles, section.triangles.count);
            allocateElements(slice(i)->m_lines, section.outline.count);
        }
    } catch (...) {
        m_slices.clear();
        throw;
    }
    for (int i = 0; i < getNumberOfSlices(); ++i) {
        const Input::Section& section = input.sections[static_cast<std::size_t>(i)];
        appendPoints(slice(i)->m_vertices, section.positions, section.normals, section.colors);
        appendTriangles(slice(i)->m_triangles, section.triangles);
        appendLines(slice(i)->m_lines, section.outline);
    }
    setBoundingBox(input.box);
}

} // namespace vxgraphics3d
