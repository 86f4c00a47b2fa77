#include "graphics3d/plots/scalar/scenegraphplotiso.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotinput.h"

#include <boost/make_shared.hpp>

#include <algorithm>

using vxdatacarrier::c_colorData;
using vxdatacarrier::c_isoLevelData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

SceneGraphPlotIso::SceneGraphPlotIso(PlotType type, int id) : SceneGraphSingleTexturePlot(type, id) {}

SceneGraphPlotIso::~SceneGraphPlotIso() = default;

void SceneGraphPlotIso::allocate(int levels)
{
    resetPlotData();
    m_surfaces.reserve(static_cast<std::size_t>(levels));
    for (int i = 0; i < levels; ++i) {
        m_surfaces.push_back(boost::make_shared<IsoData>());
    }
}

void SceneGraphPlotIso::resetPlotData()
{
    m_surfaces.clear();
    markGeometryChanged();
}

bool SceneGraphPlotIso::isValid() const
{
    return !m_surfaces.empty();
}

void SceneGraphPlotIso::setSurfaceShownForAll(bool shown)
{
    for (const boost::shared_ptr<IsoData>& level : m_surfaces) {
        level->m_shown = shown;
    }
}

void SceneGraphPlotIso::setLabels(const std::vector<std::string>& labels)
{
    if (labels == m_labels) {
        return;
    }
    m_labels = labels;
    markGeometryChanged();
}

void SceneGraphPlotIso::setShowLabels(bool show)
{
    if (show == m_showLabels) {
        return;
    }
    m_showLabels = show;
    markGeometryChanged();
}

void SceneGraphPlotIso::setLabelColor(const Color& color)
{
    if (color == m_labelColor) {
        return;
    }
    m_labelColor = color;
    markGeometryChanged();
}

void SceneGraphPlotIso::setLegendLevels(const std::vector<double>& levels)
{
    m_legendLevels = levels;
    if (m_hasColorData || m_legendLevels.empty()) {
        return;
    }
    const auto [low, high] = std::minmax_element(m_legendLevels.begin(), m_legendLevels.end());
    m_valueScale = ValueScale(*low, *high);
    for (const boost::shared_ptr<IsoData>& level : m_surfaces) {
        const std::vector<double>& data = level->m_levelData;
        for (int i = 0; i < level->m_vertices.getNumberOfVertices(); ++i) {
            const std::size_t last = std::min(static_cast<std::size_t>(i) + 1, data.size());
            level->m_vertices.setVertexTextureUCoord(i, m_valueScale(last > 0 ? data[last - 1] : 0.0));
        }
    }
    m_levelChangeId.raise();
}

SceneGraphPlotIso::Levels::Levels(const PostDataView& record, int numAxes)
    : box(boxOf(record.bounds(numAxes), static_cast<std::size_t>(numAxes))),
      hasColorData(record.hasRole(c_colorData)),
      scale(ValueScale::ofRecord(record, hasColorData ? c_colorData : c_isoLevelData))
{
    data.reserve(static_cast<std::size_t>(record.numGroups()));
    for (int group = 0; group < record.numGroups(); ++group) {
        data.push_back(&record.levelData(group, c_isoLevelData));
    }
}

double SceneGraphPlotIso::Levels::levelOf(int group) const
{
    const std::vector<double>& values = *data[static_cast<std::size_t>(group)];
    return values.empty() ? 0.0 : values.front();
}

} // namespace vxgraphics3d
