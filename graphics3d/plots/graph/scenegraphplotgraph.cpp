#include "graphics3d/plots/graph/scenegraphplotgraph.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/foundation/textutil.h"
#include "graphics3d/plots/graph/graphfill.h"
#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/linelegend.h"

#include <boost/make_shared.hpp>

#include <array>
#include <cstddef>
#include <utility>

using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr Color c_white{255, 255, 255, 255};
constexpr Color c_black{0, 0, 0, 255};
constexpr std::array<Color, 6> c_lineColors{{{0, 0, 255, 255},
                                             {40, 185, 62, 255},
                                             {255, 0, 0, 255},
                                             {0, 255, 255, 255},
                                             {255, 0, 255, 255},
                                             {255, 194, 10, 255}}};
/// Colours in a cycle; the last one is black.
constexpr int c_numColors = 7;
constexpr int c_numSymbols = 8;
constexpr int c_numStyles = 4;

/// The number after another in a cycle from 0.
int nextOf(int number, int count)
{
    return number >= count - 1 ? 0 : number + 1;
}

} // namespace

struct SceneGraphPlotGraph::Input {
    explicit Input(const PostDataView& record)
    {
        lines.reserve(static_cast<std::size_t>(record.numGroups()));
        for (int group = 0; group < record.numGroups(); ++group) {
            lines.emplace_back(record, group);
        }
    }

    std::vector<GraphPoints> lines;
};

SceneGraphPlotGraph::SceneGraphPlotGraph(int id) : SceneGraphPlot(PlotType::graph, id) {}

SceneGraphPlotGraph::~SceneGraphPlotGraph() = default;

void SceneGraphPlotGraph::setMarkersInterpolation(bool interpolate)
{
    if (interpolate != m_markersInterpolation) {
        m_markersInterpolation = interpolate;
        m_markerChangeId.raise();
    }
}

void SceneGraphPlotGraph::setNumberOfMarkers(int count)
{
    for (const auto& line : m_lines) {
        line->m_numMarkers = count;
    }
    m_markerChangeId.raise();
}

void SceneGraphPlotGraph::setShowUnitCircle(bool show)
{
    if (show != m_showUnitCircle) {
        m_showUnitCircle = show;
        markGeometryChanged();
    }
}

void SceneGraphPlotGraph::setLegendDescription(int index, const vxbase::UString& text)
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_lines.size()) {
        return;
    }
    vxbase::UString escaped;
    TextUtil::escapeBracesAndBackslash(text, escaped);
    vxbase::UString markup("\\begin{center}\\unicode{");
    markup.append(escaped).append("}\\end{center}");
    m_lines[static_cast<std::size_t>(index)]->m_legendDescription = std::move(markup);
    markGeometryChanged();
}

void SceneGraphPlotGraph::setMarkerType(bool cycle, RenderSymbol first)
{
    int symbol = static_cast<int>(first);
    for (const auto& line : m_lines) {
        line->m_marker = static_cast<RenderSymbol>(symbol);
        symbol = cycle ? nextOf(symbol, c_numSymbols) : symbol;
    }
}

void SceneGraphPlotGraph::setLineStyle(bool cycle, LineStyle first)
{
    int style = static_cast<int>(first);
    for (const auto& line : m_lines) {
        line->m_lineStyle = static_cast<LineStyle>(style);
        style = cycle ? nextOf(style, c_numStyles) : style;
    }
}

int SceneGraphPlotGraph::setLineColorCycle(bool cycle, int first)
{
    m_cycleColor = cycle;
    int color = first;
    for (const auto& line : m_lines) {
        line->m_lineColor = cycle ? getColorFromEnum(color) : getColor();
        color = cycle ? nextOf(color, c_numColors) : color;
    }
    return color;
}

Color SceneGraphPlotGraph::getColorFromEnum(int number)
{
    if (number == -1) {
        return c_white;
    }
    const auto index = static_cast<std::size_t>(number);
    return index < c_lineColors.size() ? c_lineColors[index] : c_black;
}

const Color& SceneGraphPlotGraph::getColorOf(const GraphLine& line) const
{
    return m_cycleColor ? line.m_lineColor : getColor();
}

const BoundingBox& SceneGraphPlotGraph::getBoundingBoxLog(int axes) const
{
    static const BoundingBox s_empty;
    if (!isActive()) {
        return s_empty;
    }
    switch (axes & 3) {
    case 1:
        return m_boxLogX;
    case 2:
        return m_boxLogY;
    case 3:
        return m_boxLogXY;
    default:
        return getBoundingBox();
    }
}

void SceneGraphPlotGraph::getLineLegendData(std::vector<LineLegend>& result) const
{
    if (m_showLegends) {
        for (const auto& line : m_lines) {
            result.push_back({line, getColorOf(*line), {}});
        }
    }
}

void SceneGraphPlotGraph::resetPlotData()
{
    m_lines.clear();
    markGeometryChanged();
}

bool SceneGraphPlotGraph::isValid() const
{
    return !m_lines.empty();
}

int SceneGraphPlotGraph::getColorTableTextureHandle(int) const
{
    return 0;
}

bool SceneGraphPlotGraph::setTextureHandles(TextureHandleStack&)
{
    return true;
}

void SceneGraphPlotGraph::removeTextureHandles(TextureHandleStack&) {}

SceneGraphPlot::Fill SceneGraphPlotGraph::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotGraph::fillPlotImpl(const Input& input)
{
    setColor(c_black);
    m_lines.clear();
    std::vector<boost::shared_ptr<GraphLine>> lines;
    lines.reserve(input.lines.size());
    GraphVersionLimits limits;
    for (const GraphPoints& points : input.lines) {
        lines.push_back(boost::make_shared<GraphLine>());
        fillGraphLine(*lines.back(), points, limits);
    }
    m_lines = std::move(lines);
    setBoundingBox(limits.linear.box());
    m_boxLogXY = limits.logXY.box();
    m_boxLogX = limits.logX.box();
    m_boxLogY = limits.logY.box();
}

} // namespace vxgraphics3d
