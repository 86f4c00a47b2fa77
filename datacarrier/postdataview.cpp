#include "datacarrier/postdataview.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <stdexcept>

namespace vxdatacarrier {

namespace {

std::string roleText(const PostDataRole& role)
{
    return std::string(role.name) + " (role " + std::to_string(role.number) + ")";
}

std::string groupText(int group)
{
    return " of group " + std::to_string(group);
}

} // namespace

PostDataView::PostDataView(const PostDataObject& record, const char* plot) : m_record(record), m_plot(plot)
{
    if (record.m_coordinates.empty()) {
        fail("the record has no group");
    }
}

int PostDataView::numPoints(int group) const
{
    return static_cast<int>(coordinates(group, 1).front().size());
}

const PostDataView::DoubleArrays& PostDataView::coordinates(int group, int minAxes) const
{
    return equalArrays(entry(m_record.m_coordinates, group, "coordinates"), group, minAxes, "coordinates");
}

const PostDataView::FloatArrays& PostDataView::normals(int group) const
{
    const auto at = static_cast<std::size_t>(group);
    if (at >= m_record.m_normals.size() || !m_record.m_normals[at] || m_record.m_normals[at]->empty()) {
        fail("normals" + groupText(group) + " are missing; the producer's computeNormals computes them from triangles");
    }
    const FloatArrays& arrays = equalArrays(entry(m_record.m_normals, group, "normals"), group, 3, "normals");
    if (arrays.front().size() != coordinates(group, 1).front().size()) {
        fail("normals" + groupText(group) + " have " + countText(arrays.front().size(), group));
    }
    return arrays;
}

bool PostDataView::hasElements(int group) const
{
    const auto at = static_cast<std::size_t>(group);
    return at < m_record.m_elements.size() && m_record.m_elements[at] && !m_record.m_elements[at]->empty() &&
           !m_record.m_elements[at]->front().empty();
}

const PostDataView::IntArrays& PostDataView::elements(int group, int minCorners) const
{
    return equalArrays(entry(m_record.m_elements, group, "elements"), group, minCorners, "elements");
}

const PostDataView::IntArrays& PostDataView::elements(int group, int minCorners, int maxCorners) const
{
    const IntArrays& arrays = elements(group, minCorners);
    if (arrays.size() > static_cast<std::size_t>(maxCorners)) {
        fail("elements" + groupText(group) + " have " + std::to_string(arrays.size()) + " arrays, more than " +
             std::to_string(maxCorners));
    }
    return arrays;
}

const PostDataView::IntArrays& PostDataView::lineElements(int group) const
{
    return equalArrays(entry(m_record.m_lineElements, group, "line elements"), group, 2, "line elements");
}

const std::vector<double>& PostDataView::data(int group, const PostDataRole& role) const
{
    const std::vector<double>& values = levelData(group, role);
    if (values.size() != coordinates(group, 1).front().size()) {
        fail(roleText(role) + groupText(group) + " has " + countText(values.size(), group));
    }
    return values;
}

const std::vector<double>& PostDataView::levelData(int group, const PostDataRole& role) const
{
    const std::size_t index = filledIndex(role);
    const DoubleArrays& arrays = entry(m_record.m_data, group, "data");
    if (index >= arrays.size()) {
        fail(roleText(role) + groupText(group) + " is data array " + std::to_string(index) + " of " +
             std::to_string(arrays.size()));
    }
    return arrays[index];
}

double PostDataView::dataMin(int group, const PostDataRole& role) const
{
    return limit(m_record.m_dataMin, group, role, "data minima");
}

double PostDataView::dataMax(int group, const PostDataRole& role) const
{
    return limit(m_record.m_dataMax, group, role, "data maxima");
}

double PostDataView::dataMin(const PostDataRole& role) const
{
    for (int group = 0; group < std::max(numGroups(), static_cast<int>(m_record.m_dataMin.size())); ++group) {
        dataMin(group, role);
    }
    return m_record.getDataMin(role.number);
}

double PostDataView::dataMax(const PostDataRole& role) const
{
    for (int group = 0; group < std::max(numGroups(), static_cast<int>(m_record.m_dataMax.size())); ++group) {
        dataMax(group, role);
    }
    return m_record.getDataMax(role.number);
}

const PostDataView::DoubleArrays& PostDataView::bounds(int minAxes) const
{
    if (!m_record.m_bounds || m_record.m_bounds->size() < static_cast<std::size_t>(minAxes)) {
        fail("the record has no bounds of " + std::to_string(minAxes) + " axes");
    }
    for (const std::vector<double>& axis : *m_record.m_bounds) {
        if (axis.size() < 2) {
            fail("an axis of the bounds has no minimum and maximum");
        }
    }
    return *m_record.m_bounds;
}

int PostDataView::dataIndex(const PostDataRole& role) const
{
    return m_record.m_dataIndex.at(static_cast<std::size_t>(role.number));
}

std::size_t PostDataView::filledIndex(const PostDataRole& role) const
{
    const int index = dataIndex(role);
    if (index < 0) {
        fail(roleText(role) + " is not filled");
    }
    return static_cast<std::size_t>(index);
}

template <class Entry>
const Entry& PostDataView::entry(const std::vector<boost::shared_ptr<Entry>>& groups, int group,
                                 const char* field) const
{
    const auto at = static_cast<std::size_t>(group);
    if (group < 0 || at >= groups.size() || !groups[at]) {
        fail(std::string(field) + groupText(group) + " are missing");
    }
    return *groups[at];
}

template <class Arrays>
const Arrays& PostDataView::equalArrays(const Arrays& arrays, int group, int minCount, const char* field) const
{
    if (arrays.size() < static_cast<std::size_t>(minCount)) {
        fail(std::string(field) + groupText(group) + " have " + std::to_string(arrays.size()) + " arrays, not " +
             std::to_string(minCount));
    }
    for (const auto& array : arrays) {
        if (array.size() != arrays.front().size()) {
            fail(std::string(field) + groupText(group) + " have arrays of different length");
        }
    }
    if (!arrays.empty() && arrays.front().size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        fail(std::string(field) + groupText(group) + " are more than a buffer can count");
    }
    return arrays;
}

double PostDataView::limit(const std::vector<boost::shared_ptr<std::vector<double>>>& limits, int group,
                           const PostDataRole& role, const char* field) const
{
    const std::size_t index = filledIndex(role);
    const std::vector<double>& values = entry(limits, group, field);
    if (index >= values.size()) {
        fail(roleText(role) + groupText(group) + " is entry " + std::to_string(index) + " of " +
             std::to_string(values.size()) + " " + field);
    }
    return values[index];
}

std::string PostDataView::countText(std::size_t numValues, int group) const
{
    return std::to_string(numValues) + " values for " + std::to_string(numPoints(group)) + " points";
}

void PostDataView::fail(const std::string& text) const
{
    throw std::invalid_argument(std::string(m_plot) + ": " + text + ".");
}

} // namespace vxdatacarrier
