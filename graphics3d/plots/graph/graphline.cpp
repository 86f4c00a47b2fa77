#include "graphics3d/plots/graph/graphline.h"

namespace vxgraphics3d {

GraphLine::Version GraphLine::getVersion(int axes) const
{
    switch (axes & 3) {
    case 1:
        return {m_verticesLogX, m_stripsLogX};
    case 2:
        return {m_verticesLogY, m_stripsLogY};
    case 3:
        return {m_verticesLogXY, m_stripsLogXY};
    default:
        return {m_vertices, m_strips};
    }
}

} // namespace vxgraphics3d
