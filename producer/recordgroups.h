#pragma once

#include "datacarrier/postdataobject.h"
#include "producer/postdatagroup.h"

namespace vxproducer {

/// Appends a group to a record, with its limits and normals. The record's bounds stay as they are. An exception leaves
/// the record unchanged.
/// @throws std::invalid_argument if arrays do not fit together, or not to those of the record's first group; whether
/// there is one value per point depends on the roles and is not checked
/// @throws std::out_of_range if an element has a point that the group does not have
void append(vxdatacarrier::PostDataObject& record, PostDataGroup group);

} // namespace vxproducer
