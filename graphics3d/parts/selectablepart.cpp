#include "graphics3d/parts/selectablepart.h"

namespace vxgraphics3d {

void SelectablePart::setAdjacentCounts(int first, int second, int third)
{
    const int counts[] = {first, second, third};
    const int* next = counts;
    for (int level = 0; level < 4; ++level) {
        m_adjacentCounts[static_cast<std::size_t>(level)] = level == m_dimension ? 1 : *next++;
    }
    m_controlLevel = c_noControl;
    m_controlCount = 0;
    for (int level = m_dimension + 1; level < c_numLevels; ++level) {
        const int count = m_adjacentCounts[static_cast<std::size_t>(level)];
        if (count != 0) {
            m_controlLevel = level;
            m_controlCount = count;
            return;
        }
    }
}

void SelectablePart::clearMarks()
{
    m_markFlags = 0;
    m_adjacentMarks = {};
}

} // namespace vxgraphics3d
