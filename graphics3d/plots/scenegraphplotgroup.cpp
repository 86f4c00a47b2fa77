#include "graphics3d/plots/scenegraphplotgroup.h"

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/foundation/textutil.h"
#include "graphics3d/plots/igraphplot.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "graphics3d/scenegraph/scenegraphparent.h"

#include <boost/pointer_cast.hpp>

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

namespace {

/// Capacity for the title of a typical group.
constexpr std::size_t c_titleRoom = 500;

template <class Map>
auto& plotIn(Map& plots, int id)
{
    const auto place = plots.find(id);
    if (place == plots.end()) {
        throw std::out_of_range("The plot group has no plot " + std::to_string(id) + ".");
    }
    return place->second;
}

/// The type is tested first because a cast across the class tree is expensive.
const IGraphPlot* asGraph(const SceneGraphPlot& plot)
{
    return plot.getType() == SceneGraphPlot::PlotType::graph ? &dynamic_cast<const IGraphPlot&>(plot) : nullptr;
}

} // namespace

boost::shared_ptr<SceneGraphPlotGroup> SceneGraphPlotGroup::create()
{
    return own(new SceneGraphPlotGroup());
}

SceneGraphPlotGroup::SceneGraphPlotGroup() : SceneGraphNode(NodePlotGroup) {}

SceneGraphPlotGroup::~SceneGraphPlotGroup() = default;

bool SceneGraphPlotGroup::addPlot(boost::shared_ptr<SceneGraphPlot> plot)
{
    if (!plot) {
        throw std::invalid_argument("There is no plot to add to the plot group.");
    }
    logInfo("Adding plot %d to plot group (node %d)", plot->getId(), getNodeId());
    if (!plot->setPlotGroup(boost::static_pointer_cast<SceneGraphPlotGroup>(self()), m_textureHandles)) {
        return false;
    }
    const int id = plot->getId();
    m_plots[id] = std::move(plot);
    calculateBoundingBox();
    treeStructureChanged();
    return true;
}

void SceneGraphPlotGroup::removePlot(int id)
{
    const auto place = m_plots.find(id);
    if (place == m_plots.end()) {
        return;
    }
    logInfo("Removing plot %d from plot group (node %d)", id, getNodeId());
    place->second->removeFromPlotGroup(m_textureHandles);
    m_plots.erase(place);
    calculateBoundingBox();
    treeStructureChanged();
}

void SceneGraphPlotGroup::removeAllPlots()
{
    logInfo("Removing all plots from plot group (node %d)", getNodeId());
    if (m_plots.empty()) {
        return;
    }
    while (!m_plots.empty()) {
        m_plots.begin()->second->removeFromPlotGroup(m_textureHandles);
        m_plots.erase(m_plots.begin());
    }
    calculateBoundingBox();
    treeStructureChanged();
}

const SceneGraphPlot& SceneGraphPlotGroup::getPlot(int id) const
{
    return *plotIn(m_plots, id);
}

SceneGraphPlot& SceneGraphPlotGroup::plot(int id)
{
    return *plotIn(m_plots, id);
}

boost::shared_ptr<SceneGraphPlot> SceneGraphPlotGroup::plotPtr(int id)
{
    return plotIn(m_plots, id);
}

void SceneGraphPlotGroup::setTitle(TextFormat format, const vxbase::UString& text)
{
    m_titleFormat = format;
    if (format == TextFormat::markup) {
        m_title = text;
    } else {
        TextUtil::escapeBracesAndBackslash(text, m_title);
    }
    markTitleChanged();
}

void SceneGraphPlotGroup::getTotalTitle(vxbase::UString& result) const
{
    result.clear();
    result.reserve(c_titleRoom);
    result.append("\\begin{center}");
    const std::size_t start = result.size();
    if (!m_title.empty()) {
        TextUtil::prepareTitle(m_title, result, m_titleFormat);
    }
    for (const auto& [id, plot] : m_plots) {
        if (plot->isActive() && !plot->getTitle().empty()) {
            TextUtil::prepareTitle(plot->getTitle(), result, plot->getTitleFormat());
        }
    }
    if (result.size() == start) {
        result.clear();
    } else {
        result.append(" \\end{center}");
    }
}

int SceneGraphPlotGroup::getNumberOfColorLegends() const
{
    int count = 0;
    for (const auto& [id, plot] : m_plots) {
        if (plot->isActive() && plot->isValid() && plot->isShowLegend() && plot->hasColorTable() &&
            plot->getValueSource() != SceneGraphPlot::ValueSource::none) {
            ++count;
        }
    }
    return count;
}

void SceneGraphPlotGroup::getLineLegend(std::vector<LineLegend>& result) const
{
    for (const auto& [id, plot] : m_plots) {
        if (const IGraphPlot* graph = asGraph(*plot)) {
            graph->getLineLegendData(result);
        }
    }
}

void SceneGraphPlotGroup::calculateBoundingBox()
{
    BoundingBox box;
    for (const auto& [id, plot] : m_plots) {
        box.merge(plot->getBoundingBox());
    }
    setBoundingBox(box);
}

void SceneGraphPlotGroup::treeStructureChanged()
{
    markTitleChanged();
    if (const auto parent = getParent()) {
        parent->treeStructureChanged();
    }
}

void SceneGraphPlotGroup::getSelection(const SelectionFrustrum&, const CanvasPickSettings&, PickedObjectCollection&,
                                       bool) const
{}

void SceneGraphPlotGroup::getMarkedBoundingBox(BoundingBox& box, int logAxes, int) const
{
    for (const auto& [id, plot] : m_plots) {
        if (logAxes == 0) {
            box.merge(plot->getBoundingBox());
        } else if (const IGraphPlot* graph = asGraph(*plot)) {
            box.merge(graph->getBoundingBoxLog(logAxes));
        }
    }
}

} // namespace vxgraphics3d
