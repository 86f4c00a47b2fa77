#pragma once

#include "graphics3d/plots/graph/linelegend.h"
#include "renderer/decoration/legend.h"
#include "renderer/frame/pixelarea.h"
#include "renderer/text/textlayout.h"

#include <vector>

namespace vxrenderer {

/// A line in the legend, with the width that its plot gives it.
struct LineLegendEntry {
    vxgraphics3d::LineLegend legend;
    float lineWidth;
};

/// How the legend of lines is laid out, and where.
///
/// Positions are the corners of the axes: 0 upper right, 1 lower right, 2 lower left, 3 upper left. Strategies:
/// 0 over the plot in a frame, one line below the other; 1 beside the axes; 2 above or below the axes, the lines side
/// by side; 3 over the plot in a frame, the lines side by side; 4 and 5 as 0 and 3 without a frame.
struct LineLegendPlacement {
    LineLegendPlacement(int position, int strategy);

    bool isLeft;
    bool isBottom;
    bool isInside;
    bool isRow;
    bool hasFrame;
};

/// The legend of the lines of all graphs: for each a sample with its symbol, and its description.
class LineLegendBox {
public:
    /// Entries for which the space does not suffice are left out.
    LineLegendBox(std::vector<LineLegendEntry> entries, const LineLegendPlacement& placement, const LegendStyle& style,
                  TextSpace room);

    const LineLegendPlacement& getPlacement() const { return m_placement; }
    /// In whole pixels; 0 without entries.
    int getWidth() const { return m_width; }
    int getHeight() const { return m_height; }

    /// Draws into a picture of a size.
    void draw(DecorationCanvas& canvas, const LegendStyle& style, int left, int top, int pictureWidth,
              int pictureHeight) const;

private:
    struct Row {
        LineLegendEntry entry;
        TextLayout text;
        float x;
        float y;
        float height;
    };

    LineLegendPlacement m_placement;
    std::vector<Row> m_rows;
    int m_width = 0;
    int m_height = 0;
};

/// The lines that a plot shows in the legend, in order; none unless it is a graph.
std::vector<LineLegendEntry> lineLegendOf(const vxgraphics3d::SceneGraphPlot& plot);

} // namespace vxrenderer
