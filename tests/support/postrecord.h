#pragma once

#include "datacarrier/postdataobject.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vxgraphics3d {

/// Builds a record group by group. Limits are computed from the data; normals are omitted unless given.
class PostRecord {
public:
    using Record = vxdatacarrier::PostDataObject;

    PostRecord& kind(int kind)
    {
        m_record.m_plotKind = kind;
        return *this;
    }
    PostRecord& role(int role, int array)
    {
        m_record.m_dataIndex[static_cast<std::size_t>(role)] = array;
        return *this;
    }
    PostRecord& bounds(Record::DoubleArrays bounds)
    {
        m_record.m_bounds = boost::make_shared<Record::DoubleArrays>(std::move(bounds));
        return *this;
    }
    PostRecord& group(Record::DoubleArrays coordinates, Record::IntArrays elements, Record::DoubleArrays data = {},
                      Record::FloatArrays normals = {})
    {
        std::vector<double> minima;
        std::vector<double> maxima;
        for (const std::vector<double>& values : data) {
            minima.push_back(values.empty() ? 0.0 : *std::min_element(values.begin(), values.end()));
            maxima.push_back(values.empty() ? 0.0 : *std::max_element(values.begin(), values.end()));
        }
        m_record.m_coordinates.push_back(boost::make_shared<Record::DoubleArrays>(std::move(coordinates)));
        m_record.m_elements.push_back(boost::make_shared<Record::IntArrays>(std::move(elements)));
        m_record.m_data.push_back(boost::make_shared<Record::DoubleArrays>(std::move(data)));
        m_record.m_dataMin.push_back(boost::make_shared<std::vector<double>>(std::move(minima)));
        m_record.m_dataMax.push_back(boost::make_shared<std::vector<double>>(std::move(maxima)));
        if (!normals.empty()) {
            m_record.m_normals.push_back(boost::make_shared<Record::FloatArrays>(std::move(normals)));
        }
        return *this;
    }
    /// Adds the boundary lines of the group that was added last.
    PostRecord& outline(Record::IntArrays ends)
    {
        m_record.m_lineElements.push_back(boost::make_shared<Record::IntArrays>(std::move(ends)));
        return *this;
    }
    /// Sets the limits of one data array of a group, independent of its data.
    PostRecord& limits(int group, int array, double min, double max)
    {
        (*m_record.m_dataMin[static_cast<std::size_t>(group)])[static_cast<std::size_t>(array)] = min;
        (*m_record.m_dataMax[static_cast<std::size_t>(group)])[static_cast<std::size_t>(array)] = max;
        return *this;
    }

    Record& record() { return m_record; }
    const Record& record() const { return m_record; }
    operator const Record&() const { return m_record; }

private:
    Record m_record;
};

} // namespace vxgraphics3d
