#pragma once

#include "datacarrier/postdataobject.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vxdatacarrier {

/// A role of data as one plot uses it. The same role may mean different things to different plots, so each plot
/// provides the name for its messages.
struct PostDataRole {
    int number;       ///< index in `PostDataObject::m_dataIndex`
    const char* name; ///< a noun phrase such as "length of axis 1"
};

/// The roles with the same meaning for every plot.
inline constexpr PostDataRole c_colorData{PostDataObject::ColorData, "DataRole.COLOR"};
inline constexpr PostDataRole c_heightData{PostDataObject::HeightData, "DataRole.HEIGHT"};
inline constexpr PostDataRole c_isoLevelData{PostDataObject::IsoLevelData, "DataRole.ISO_LEVEL"};

/// How a plot reads a record: each access first checks that the data are present and have the right shape, and throws
/// std::invalid_argument with a text that names the plot and the role or field. A view is made for each fill; the
/// plot's input fetches everything through it, so that an incomplete record is refused before anything has changed.
///
/// Only counts are checked, at a cost that does not depend on the number of points; all of them fit into an int.
/// Producers are responsible for the values: indices of elements in particular are not checked. The view must not
/// outlive the record.
class PostDataView {
public:
    using DoubleArrays = PostDataObject::DoubleArrays;
    using FloatArrays = PostDataObject::FloatArrays;
    using IntArrays = PostDataObject::IntArrays;

    /// @param plot name of the reading plot's class, for messages; a literal
    /// Throws if the record has no group.
    PostDataView(const PostDataObject& record, const char* plot);

    int plotKind() const { return m_record.m_plotKind; }
    int numGroups() const { return static_cast<int>(m_record.m_coordinates.size()); }

    /// The number of points of a group.
    int numPoints(int group) const;
    /// At least `minAxes` axes, all of the same length.
    const DoubleArrays& coordinates(int group, int minAxes) const;
    /// At least three arrays with an entry for each point.
    const FloatArrays& normals(int group) const;

    /// Whether a group has elements.
    bool hasElements(int group) const;
    /// At least `minCorners` corner arrays, all of the same length.
    const IntArrays& elements(int group, int minCorners) const;
    /// From `minCorners` to `maxCorners` corner arrays, all of the same length.
    const IntArrays& elements(int group, int minCorners, int maxCorners) const;
    /// At least two arrays, all of the same length.
    const IntArrays& lineElements(int group) const;

    /// Whether a role is filled.
    bool hasRole(const PostDataRole& role) const { return dataIndex(role) >= 0; }
    /// The data array of a filled role, with an entry for each point.
    const std::vector<double>& data(int group, const PostDataRole& role) const;
    /// The data array of a filled role, of any length: a level may be given once for the whole group.
    const std::vector<double>& levelData(int group, const PostDataRole& role) const;
    /// Limits of a filled role in one group.
    double dataMin(int group, const PostDataRole& role) const;
    double dataMax(int group, const PostDataRole& role) const;
    /// Limits of a filled role over all groups.
    double dataMin(const PostDataRole& role) const;
    double dataMax(const PostDataRole& role) const;

    /// Minimum and maximum of at least `minAxes` axes.
    const DoubleArrays& bounds(int minAxes) const;

private:
    int dataIndex(const PostDataRole& role) const;
    /// The array index of a role; throws if the role is not filled.
    std::size_t filledIndex(const PostDataRole& role) const;
    template <class Entry>
    const Entry& entry(const std::vector<boost::shared_ptr<Entry>>& groups, int group, const char* field) const;
    template <class Arrays>
    const Arrays& equalArrays(const Arrays& arrays, int group, int minCount, const char* field) const;
    double limit(const std::vector<boost::shared_ptr<std::vector<double>>>& limits, int group, const PostDataRole& role,
                 const char* field) const;
    std::string countText(std::size_t numValues, int group) const;
    [[noreturn]] void fail(const std::string& text) const;

    const PostDataObject& m_record;
    const char* m_plot;
};

} // namespace vxdatacarrier
