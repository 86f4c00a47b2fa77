#pragma once

#include "base/export.h"
#include "datacarrier/postdataobject.h"
#include "producer/postdatagroup.h"

namespace vxproducer {

/// Makes a record, and computes its limits, bounds and, on request, its normals:
///
///     const auto record = vxproducer::PostDataBuilder(Record::Surface3d)
///                             .role(Record::ColorData, 0)
///                             .addGroup({.coordinates = {x, y, z}, .elements = {a, b, c}, .data = {stress},
///                                        .computeNormals = true})
///                             .build();
///     plot->fillPlot(record);
///
/// Braces copy arrays; large ones are moved into a `PostDataGroup` first, and that into the builder. What does not fit
/// together is refused with std::invalid_argument or, for indices, std::out_of_range; the message names group and
/// array.
class VX_API PostDataBuilder {
public:
    using Record = vxdatacarrier::PostDataObject;

    /// @param plotKind a `Record::PlotKind`, or 0 for data that need none
    explicit PostDataBuilder(int plotKind);

    /// Sets the data array of a role, in all groups. Roles that are not set stay empty.
    /// @param role a `Record::Role`, or a `Record::PrincipalRole` plus the number of the axis
    PostDataBuilder& role(int role, int array);

    /// Adds a group. All groups have the same number of axes and data arrays.
    PostDataBuilder& addGroup(PostDataGroup group);

    /// Hands over the record, with bounds that span the finite points of all groups. The builder has no groups then.
    Record build();

private:
    Record m_record;
};

} // namespace vxproducer
