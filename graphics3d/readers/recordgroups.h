#pragma once

#include "datacarrier/postdataobject.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <utility>
#include <vector>

namespace vxgraphics3d {

/// Groups that are read from a file before they are added to a record: all of them or, if memory runs out, none.
class RecordGroups {
public:
    using Record = vxdatacarrier::PostDataObject;

    /// The arrays of one group, as the record will own them.
    struct Group {
        boost::shared_ptr<Record::DoubleArrays> coordinates;
        boost::shared_ptr<Record::FloatArrays> normals; ///< null if the record has none
        boost::shared_ptr<Record::DoubleArrays> data;
        boost::shared_ptr<Record::IntArrays> elements;
        boost::shared_ptr<std::vector<double>> max;
        boost::shared_ptr<std::vector<double>> min;

        /// Creates three corner arrays, and as many others as requested, all empty. Limits are infinite: the minimum
        /// positive, the maximum negative.
        Group(std::size_t numAxes, std::size_t numData);

        void makeNormals();
        /// Extends the limits to include all data.
        void computeLimits();
    };

    void add(Group group) { m_groups.push_back(std::move(group)); }

    /// Appends all groups to a record.
    /// @throws std::bad_alloc with the record unchanged
    void appendTo(Record& record) const;

private:
    std::vector<Group> m_groups;
};

} // namespace vxgraphics3d
