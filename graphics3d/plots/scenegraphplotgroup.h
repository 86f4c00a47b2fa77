#pragma once

#include "base/export.h"
#include "base/ustring.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/foundation/textformat.h"
#include "graphics3d/plots/texturehandlestack.h"
#include "graphics3d/scenegraph/ilegendsource.h"
#include "graphics3d/scenegraph/scenegraphnode.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <utility>
#include <vector>

namespace vxgraphics3d {

class SceneGraphPlot;

/// The node of the scene tree that holds plots, which are not nodes themselves.
///
/// It gives each plot its texture handles from a pool of 256, merges the boxes of its plots, builds their common title,
/// and provides their legends. Created by create(); owned by its parent and its Java peers. When a group is destroyed,
/// its plots have no group any more but keep their handles.
///
/// The title change number counts everything visible in title or legends; compare it for equality only.
class VX_API SceneGraphPlotGroup : public SceneGraphNode, public ILegendSource {
public:
    using PlotMap = std::map<int, boost::shared_ptr<SceneGraphPlot>>;

    static boost::shared_ptr<SceneGraphPlotGroup> create();
    ~SceneGraphPlotGroup() override;

    // Plots

    /// Adds a plot under its own id, with texture handles from the pool. An existing plot with that id is replaced
    /// without being notified: it keeps its handles. Remove a plot that is in a group before adding it again, to this
    /// group or another: it takes new handles, and the earlier ones are lost or returned to the wrong group.
    /// @return false if the pool ran out: the group is then unchanged, and the plot keeps the handles it got
    /// @throws std::invalid_argument if the plot is null
    bool addPlot(boost::shared_ptr<SceneGraphPlot> plot);
    /// Removes a plot, which returns its handles. An unknown id is ignored.
    void removePlot(int id);
    void removeAllPlots();

    bool doesPlotExist(int id) const { return m_plots.count(id) != 0; }
    int getNoOfPlots() const { return static_cast<int>(m_plots.size()); }
    /// The plot with an id.
    /// @throws std::out_of_range if there is none
    const SceneGraphPlot& getPlot(int id) const;
    SceneGraphPlot& plot(int id);
    boost::shared_ptr<SceneGraphPlot> plotPtr(int id);

    /// Begin and end of the plots, in ascending order of their ids.
    std::pair<PlotMap::const_iterator, PlotMap::const_iterator> getPlots() const
    {
        return {m_plots.begin(), m_plots.end()};
    }
    std::pair<PlotMap::iterator, PlotMap::iterator> plots() { return {m_plots.begin(), m_plots.end()}; }

    // Title and legends

    /// Sets the group's own part of the title; plain text is escaped.
    void setTitle(TextFormat format, const vxbase::UString& text);
    /// Replaces `result` by the title of the whole group, in markup: the group's own part and those of its active plots
    /// in ascending order of their ids, centred. Empty if none of them has a title.
    void getTotalTitle(vxbase::UString& result) const override;

    /// Number of plots that show a legend for their colour table.
    int getNumberOfColorLegends() const override;
    /// Appends the legend entries of all graphs, in ascending order of their ids.
    void getLineLegend(std::vector<LineLegend>& result) const override;

    /// Called by a plot when something visible in title or legends has changed.
    void markTitleChanged() { m_titleChangeId.raise(); }

    // Tree

    /// Merges the boxes of all plots and updates the boxes above.
    void calculateBoundingBox();
    /// Counts a change of title and legends, and reports the change of structure to the parent.
    void treeStructureChanged();

    /// Does nothing: plots cannot be picked by a frustum.
    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    /// Merges the boxes of the plots into `box`.
    /// @param logAxes 0 for all plots; otherwise only the graphs count, with their boxes for logarithmic axes (bit 0
    ///                for x, bit 1 for y)
    void getMarkedBoundingBox(BoundingBox& box, int logAxes, int exclude) const override;

    // Read access

    int getTitleChangeId() const override { return m_titleChangeId.get(); }
    TextFormat getTitleFormat() const { return m_titleFormat; }
    const vxbase::UString& getTitle() const { return m_title; }
    const TextureHandleStack& getTextureHandles() const { return m_textureHandles; }

private:
    SceneGraphPlotGroup();

    ChangeNumber m_titleChangeId;
    TextFormat m_titleFormat = TextFormat::plain;
    vxbase::UString m_title;
    TextureHandleStack m_textureHandles;
    PlotMap m_plots;
};

} // namespace vxgraphics3d
