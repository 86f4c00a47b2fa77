#pragma once

#include "base/export.h"
#include "base/ustring.h"
#include "graphics3d/buffers/indexbufferlinestrips.h"
#include "graphics3d/buffers/vertexbuffercoords.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/rendersymbol.h"
#include "graphics3d/plots/graph/linestyle.h"

namespace vxgraphics3d {

/// One line of a graph: one group of the record of the last fill, with its own colour, symbol and style.
///
/// It has four versions of the line, for linear and logarithmic axes in every combination, so that switching an axis
/// needs no fill. A version is a set of strips; one that consists of a single point has a vertex and no strip.
class VX_API GraphLine {
public:
    /// The buffers of one version.
    struct Version {
        const VertexBufferCoords& vertices;
        const IndexBufferLineStrips& strips;
    };

    GraphLine() = default;
    GraphLine(const GraphLine&) = delete;
    GraphLine& operator=(const GraphLine&) = delete;

    /// The version for logarithmic axes: bit 0 of `axes` stands for x, bit 1 for y.
    Version getVersion(int axes) const;

    int m_numMarkers = 0; ///< markers to draw on the line
    Color m_lineColor;    ///< the colour if the plot cycles its colours
    RenderSymbol m_marker = RenderSymbol::none;
    LineStyle m_lineStyle = LineStyle::solid;
    vxbase::UString m_legendDescription; ///< the text in the legend, in markup

    VertexBufferCoords m_vertices; ///< for linear axes
    IndexBufferLineStrips m_strips{m_vertices};
    VertexBufferCoords m_verticesLogX; ///< x is log10 of x
    IndexBufferLineStrips m_stripsLogX{m_verticesLogX};
    VertexBufferCoords m_verticesLogY; ///< y is log10 of y
    IndexBufferLineStrips m_stripsLogY{m_verticesLogY};
    VertexBufferCoords m_verticesLogXY; ///< both
    IndexBufferLineStrips m_stripsLogXY{m_verticesLogXY};
};

} // namespace vxgraphics3d
