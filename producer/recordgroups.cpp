#include "producer/recordgroups.h"

#include "producer/recordnormals.h"
#include "producer/recordoutline.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxproducer {

namespace {

using vxdatacarrier::PostDataObject;

template <class Arrays>
boost::shared_ptr<Arrays> shared(Arrays arrays)
{
    return boost::make_shared<Arrays>(std::move(arrays));
}

[[noreturn]] void refuse(std::size_t group, const std::string& text)
{
    throw std::invalid_argument("group " + std::to_string(group) + ": " + text);
}

/// Refuses another number of arrays, and arrays of different lengths.
template <class Arrays>
void requireRows(const Arrays& arrays, std::size_t least, std::size_t most, const std::string& field, std::size_t group)
{
    if (arrays.size() < least || arrays.size() > most) {
        refuse(group, field + ": " + std::to_string(arrays.size()) + " arrays, not " + std::to_string(least) +
                          (least == most ? "" : " to " + std::to_string(most)));
    }
    for (std::size_t i = 1; i < arrays.size(); ++i) {
        if (arrays[i].size() != arrays[0].size()) {
            refuse(group, field + "[" + std::to_string(i) + "] has " + std::to_string(arrays[i].size()) + " entries, " +
                              field + "[0] has " + std::to_string(arrays[0].size()));
        }
    }
}

/// Refuses a group whose arrays do not fit together, or not to those of the first group.
void requireFitting(const PostDataGroup& group, const PostDataObject& record)
{
    const std::size_t number = record.m_coordinates.size();
    requireRows(group.coordinates, 1, 3, "coordinates", number);
    requireRows(group.elements, 0, 4, "elements", number);
    if (!group.lineElements.empty()) {
        requireRows(group.lineElements, 2, 2, "lineElements", number);
    }
    const std::size_t numPoints = group.coordinates[0].size();
    if (!group.normals.empty()) {
        requireRows(group.normals, 3, 3, "normals", number);
        if (group.normals[0].size() != numPoints) {
            refuse(number, "normals have " + std::to_string(group.normals[0].size()) + " entries for " +
                               std::to_string(numPoints) + " points");
        }
    }
    if (group.computeNormals && (group.coordinates.size() != 3 || group.elements.size() != 3)) {
        refuse(number, "computeNormals needs triangles in space; there are " +
                           std::to_string(group.coordinates.size()) + " axes and " +
                           std::to_string(group.elements.size()) + " corners");
    }
    if (group.computeOutline && group.elements.size() != 3) {
        refuse(number,
               "computeOutline needs triangles; there are " + std::to_string(group.elements.size()) + " corners");
    }
    if (number > 0 && group.coordinates.size() != record.m_coordinates[0]->size()) {
        refuse(number, "coordinates have " + std::to_string(group.coordinates.size()) +
                           " axes, those of group 0 have " + std::to_string(record.m_coordinates[0]->size()));
    }
    if (number > 0 && group.data.size() != record.m_data[0]->size()) {
        refuse(number, std::to_string(group.data.size()) + " data arrays, group 0 has " +
                           std::to_string(record.m_data[0]->size()));
    }
    requireInside(group.elements, numPoints, "elements", number);
    requireInside(group.lineElements, numPoints, "lineElements", number);
}

/// Lets each vector take one more entry without allocating.
template <class... Vectors>
void makeSpace(Vectors&... vectors)
{
    (vectors.reserve(vectors.size() < vectors.capacity() ? 0 : 2 * vectors.size() + 1), ...);
}

} // namespace

void append(PostDataObject& record, PostDataGroup group)
{
    requireFitting(group, record);
    const auto minima = shared(std::vector<double>(group.data.size()));
    const auto maxima = shared(std::vector<double>(group.data.size()));
    group.limits.resize(group.data.size());
    for (std::size_t i = 0; i < group.data.size(); ++i) {
        const ValueRange range = group.limits[i].isEmpty() ? finiteRange(group.data[i]) : group.limits[i];
        (*minima)[i] = range.min;
        (*maxima)[i] = range.max;
    }
    if (group.computeNormals) {
        group.normals = normalsOf(group.coordinates, group.elements);
    }
    if (group.computeOutline) {
        group.lineElements = outlineOf(group.elements);
    }
    const auto coordinates = shared(std::move(group.coordinates));
    const auto elements = shared(std::move(group.elements));
    const auto data = shared(std::move(group.data));
    const auto normals = shared(std::move(group.normals));
    const auto lineElements = shared(std::move(group.lineElements));
    makeSpace(record.m_coordinates, record.m_elements, record.m_data, record.m_dataMax, record.m_dataMin,
              record.m_normals, record.m_lineElements);
    // Nothing can fail from here on, so the record gets all of the group or nothing.
    record.m_coordinates.push_back(coordinates);
    record.m_elements.push_back(elements);
    record.m_data.push_back(data);
    record.m_dataMax.push_back(maxima);
    record.m_dataMin.push_back(minima);
    record.m_normals.push_back(normals);
    record.m_lineElements.push_back(lineElements);
}

} // namespace vxproducer
