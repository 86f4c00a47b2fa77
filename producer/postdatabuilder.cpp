#include "producer/postdatabuilder.h"

#include "producer/recordgroups.h"
#include "producer/recordlimits.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxproducer {

namespace {

using vxdatacarrier::PostDataObject;

/// Whether a data array has no role but that of levels, which may be one value for the whole group.
bool isLevelOnly(const PostDataObject& record, std::size_t array)
{
    bool isLevel = false;
    for (int role = 0; role < PostDataObject::c_numRoles; ++role) {
        if (record.m_dataIndex[static_cast<std::size_t>(role)] == static_cast<int>(array)) {
            if (role != PostDataObject::IsoLevelData) {
                return false;
            }
            isLevel = true;
        }
    }
    return isLevel;
}

} // namespace

PostDataBuilder::PostDataBuilder(int plotKind)
{
    m_record.m_plotKind = plotKind;
}

PostDataBuilder& PostDataBuilder::role(int role, int array)
{
    if (role < 0 || role >= Record::c_numRoles) {
        throw std::out_of_range("There is no role " + std::to_string(role));
    }
    if (array < 0) {
        throw std::out_of_range("There is no data[" + std::to_string(array) + "] for role " + std::to_string(role));
    }
    m_record.m_dataIndex[static_cast<std::size_t>(role)] = array;
    return *this;
}

PostDataBuilder& PostDataBuilder::addGroup(PostDataGroup group)
{
    append(m_record, std::move(group));
    return *this;
}

PostDataBuilder::Record PostDataBuilder::build()
{
    if (m_record.m_coordinates.empty()) {
        throw std::invalid_argument("The record has no group.");
    }
    const std::size_t numData = m_record.m_data[0]->size();
    for (int role = 0; role < Record::c_numRoles; ++role) {
        const int array = m_record.m_dataIndex[static_cast<std::size_t>(role)];
        if (array >= 0 && static_cast<std::size_t>(array) >= numData) {
            throw std::out_of_range("There is no data[" + std::to_string(array) + "] for role " + std::to_string(role) +
                                    "; number of data arrays: " + std::to_string(numData));
        }
    }
    for (std::size_t group = 0; group < m_record.m_data.size(); ++group) {
        const std::size_t numPoints = m_record.m_coordinates[group]->front().size();
        for (std::size_t i = 0; i < numData; ++i) {
            const std::size_t numValues = (*m_record.m_data[group])[i].size();
            if (numValues != numPoints && !(numValues == 1 && isLevelOnly(m_record, i))) {
                throw std::invalid_argument("group " + std::to_string(group) + ": data[" + std::to_string(i) +
                                            "] has " + std::to_string(numValues) + " values for " +
                                            std::to_string(numPoints) + " points");
            }
        }
    }
    m_record.m_bounds = boost::make_shared<Record::DoubleArrays>(boundsOf(m_record));
    return std::move(m_record);
}

} // namespace vxproducer
