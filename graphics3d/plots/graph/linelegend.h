#pragma once

#include "base/ustring.h"
#include "graphics3d/foundation/color.h"

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {

class GraphLine;

/// One entry in the legend of graphs.
struct LineLegend {
    boost::shared_ptr<GraphLine> line; ///< its symbol, style and description are shown
    Color color;                       ///< the colour in which the line is drawn
    vxbase::UString text;              ///< replaces the line's description; empty for none
};

} // namespace vxgraphics3d
