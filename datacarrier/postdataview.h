#pragma once

#include "datacarrier/postdataobject.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vxdatacarrier {

/// How a plot reads a record: each access first tests that what it hands out is there and has the right shape, and
/// throws std::invalid_argument with a text that names the plot and the role or field. A plot that fetches all its
/// arrays before it allocates buffers fails before anything has changed.
///
/// Only counts are tested, at a cost that does not depend on the number of points. Values are the producer's duty:
/// indices of elements in particular are not looked at. The view must not outlive the record.
class PostDataView {
public:
    using DoubleArrays = PostDataObject::DoubleArrays;
    using FloatArrays = PostDataObject::FloatArrays;
    using IntArrays = PostDataObject::IntArrays;

    /// @param plot name of the reading plot's class, for messages; a literal
    /// Throws if the record has no group.
    PostDataView(const PostDataObject& record, const char* plot);

    const PostDataObject& record() const { return m_record; }
    int plotKind() const { return m_record.m_plotKind; }
    int numGroups() const { return static_cast<int>(m_record.m_coordinates.size()); }

    /// The group's points.
    int numPoints(int group) const;
    /// At least so many axes, all of the same length.
    const DoubleArrays& coordinates(int group, int minAxes) const;
    /// At least three arrays with an entry for each point.
    const FloatArrays& normals(int group) const;

    /// Whether a group has element arrays at all.
    bool hasElements(int group) const;
    /// The group's elements, by the length of its corner arrays; 0 if it has no corner array.
    int numElements(int group) const;
    /// At least so many corner arrays, all of the same length.
    const IntArrays& elements(int group, int minCorners) const;
    /// At least two arrays, all of the same length.
    const IntArrays& lineElements(int group) const;

    /// Whether a role is filled.
    bool hasRole(int role) const { return dataIndex(role) >= 0; }
    /// The data array of a filled role, with an entry for each point.
    const std::vector<double>& data(int group, int role) const;
    /// The data array of a filled role, of whatever length: a level may be told once for the whole group.
    const std::vector<double>& levelData(int group, int role) const;
    /// Limits of a filled role in one group.
    double dataMin(int group, int role) const;
    double dataMax(int group, int role) const;
    /// Limits of a filled role over all groups.
    double dataMin(int role) const;
    double dataMax(int role) const;

    /// Minimum and maximum of at least so many axes.
    const DoubleArrays& bounds(int minAxes) const;

private:
    int dataIndex(int role) const;
    /// The array index of a role that must be filled.
    std::size_t filledIndex(int role) const;
    template <class Entry>
    const Entry& entry(const std::vector<boost::shared_ptr<Entry>>& groups, int group, const char* field) const;
    template <class Arrays>
    const Arrays& equalArrays(const Arrays& arrays, int group, int minCount, const char* field) const;
    double limit(const std::vector<boost::shared_ptr<std::vector<double>>>& limits, int group, int role,
                 const char* field) const;
    std::string countText(std::size_t numValues, int group) const;
    int countOf(std::size_t size, int group, const char* field) const;
    [[noreturn]] void fail(const std::string& text) const;

    const PostDataObject& m_record;
    const char* m_plot;
};

} // namespace vxdatacarrier
