#include "graphics3d/readers/recordgroups.h"

#include "base/numeric.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace vxgraphics3d {

namespace {

template <class T>
void reserveMore(std::vector<T>& array, std::size_t count)
{
    array.reserve(array.size() + count);
}

} // namespace

RecordGroups::Group::Group(std::size_t numAxes, std::size_t numData)
    : coordinates(boost::make_shared<Record::DoubleArrays>(numAxes)),
      data(boost::make_shared<Record::DoubleArrays>(numData)),
      elements(boost::make_shared<Record::IntArrays>(3)),
      max(boost::make_shared<std::vector<double>>(numData, -vxbase::vxGetInf())),
      min(boost::make_shared<std::vector<double>>(numData, vxbase::vxGetInf()))
{}

void RecordGroups::Group::makeNormals()
{
    normals = boost::make_shared<Record::FloatArrays>(3);
}

void RecordGroups::Group::computeLimits()
{
    for (std::size_t i = 0; i < data->size(); ++i) {
        for (const double value : (*data)[i]) {
            (*max)[i] = std::max((*max)[i], value);
            (*min)[i] = std::min((*min)[i], value);
        }
    }
}

void RecordGroups::appendTo(Record& record) const
{
    reserveMore(record.m_coordinates, m_groups.size());
    reserveMore(record.m_data, m_groups.size());
    reserveMore(record.m_elements, m_groups.size());
    reserveMore(record.m_dataMax, m_groups.size());
    reserveMore(record.m_dataMin, m_groups.size());
    reserveMore(record.m_normals, m_groups.size());
    // Nothing fails from here on.
    for (const Group& group : m_groups) {
        record.m_coordinates.push_back(group.coordinates);
        record.m_data.push_back(group.data);
        record.m_elements.push_back(group.elements);
        record.m_dataMax.push_back(group.max);
        record.m_dataMin.push_back(group.min);
        if (group.normals) {
            record.m_normals.push_back(group.normals);
        }
    }
}

} // namespace vxgraphics3d
