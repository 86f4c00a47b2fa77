#include "datacarrier/postdataobject.h"

#include <algorithm>
#include <cstddef>

namespace vxdatacarrier {

double PostDataObject::getDataMin(int role) const
{
    const auto array = static_cast<std::size_t>(m_dataIndex[static_cast<std::size_t>(role)]);
    double lowest = (*m_dataMin.front())[array];
    for (const auto& minima : m_dataMin) {
        lowest = std::min(lowest, (*minima)[array]);
    }
    return lowest;
}

double PostDataObject::getDataMax(int role) const
{
    const auto array = static_cast<std::size_t>(m_dataIndex[static_cast<std::size_t>(role)]);
    double highest = (*m_dataMax.front())[array];
    for (const auto& maxima : m_dataMax) {
        highest = std::max(highest, (*maxima)[array]);
    }
    return highest;
}

} // namespace vxdatacarrier
