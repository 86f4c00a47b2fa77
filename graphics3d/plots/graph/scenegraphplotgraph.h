#pragma once

#include "graphics3d/foundation/rendersymbol.h"
#include "graphics3d/plots/graph/linestyle.h"
#include "graphics3d/plots/igraphplot.h"
#include "graphics3d/plots/scenegraphplot.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxgraphics3d {

class GraphLine;

/// The lines of a 2D canvas with x and y axes: one line per group of the record, with x from the first coordinate and y
/// from the height data. Each line has one colour, a symbol and a style, which change without a fill.
///
/// Without elements, the points of a group are the line in their order; elements are edges between points in any order,
/// which a fill joins to polylines and rings. Points that are not finite are omitted. A fill also makes the versions
/// for logarithmic axes, which omit what is not positive.
///
/// A fill makes new lines: colours, symbols, styles, numbers of markers and descriptions of lines start again, while
/// the settings of the plot stay. The plot's own colour becomes black.
class VX_API SceneGraphPlotGraph : public SceneGraphPlot, public IGraphPlot {
public:
    explicit SceneGraphPlotGraph(int id);
    ~SceneGraphPlotGraph() override;

    // Markers and legend

    /// Whether markers are spread evenly along the lines, by their number, instead of one at each point.
    void setMarkersInterpolation(bool interpolate);
    /// Sets the number of markers of every line; counts a change even without lines.
    void setNumberOfMarkers(int count);
    void setShowUnitCircle(bool show);
    /// Whether the lines are in the legend. Does not count as a change.
    void setShowLegends(bool show) { m_showLegends = show; }
    /// Sets the text of a line in the legend as plain text; another index is ignored.
    void setLegendDescription(int index, const vxbase::UString& text);

    // Look of the lines; none of these counts as a change

    /// Gives every line a symbol: `first`, or if they cycle, each line the one after that of the line before.
    void setMarkerType(bool cycle, RenderSymbol first);
    /// Gives every line a style, in the same way.
    void setLineStyle(bool cycle, LineStyle first);
    /// Gives every line the plot's colour, or if they cycle, the next one of getColorFromEnum from `first`.
    /// @return the number after that of the last line; `first` if they do not cycle
    int setLineColorCycle(bool cycle, int first);
    void setLineWidth(int width) { m_lineWidth = static_cast<float>(width); }

    /// Colour of a number: 0 to 5 are colours, -1 is white, all others are black.
    static Color getColorFromEnum(int number);

    // Read access

    const std::vector<boost::shared_ptr<GraphLine>>& getLines() const { return m_lines; }
    /// Counts changes of the numbers of markers and their interpolation.
    int getMarkerChangeId() const { return m_markerChangeId.get(); }
    bool isMarkersInterpolation() const { return m_markersInterpolation; }
    bool isShowUnitCircle() const { return m_showUnitCircle; }
    bool isShowLegends() const { return m_showLegends; }
    bool isCycleColor() const { return m_cycleColor; }
    /// The colour in which a line is drawn.
    const Color& getColorOf(const GraphLine& line) const;
    float getLineWidth() const { return m_lineWidth; }

    const BoundingBox& getBoundingBoxLog(int axes) const override;
    void getLineLegendData(std::vector<LineLegend>& result) const override;

    /// Drops the lines and counts a change of geometry.
    void resetPlotData() override;
    /// Whether there are lines.
    bool isValid() const override;
    /// 0: graphs have no colour table.
    int getColorTableTextureHandle(int index) const override;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;
    bool setTextureHandles(TextureHandleStack& stack) override;
    void removeTextureHandles(TextureHandleStack& stack) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);

    ChangeNumber m_markerChangeId;
    bool m_showLegends = false;
    bool m_showUnitCircle = false;
    bool m_cycleColor = false;
    float m_lineWidth = 1.0f;
    std::vector<boost::shared_ptr<GraphLine>> m_lines;
    BoundingBox m_boxLogXY;
    BoundingBox m_boxLogX;
    BoundingBox m_boxLogY;
    bool m_markersInterpolation = true;
};

} // namespace vxgraphics3d
