#pragma once

#include "datacarrier/postdataobject.h"
#include "producer/recordlimits.h"

#include <vector>

namespace vxproducer {

/// One part of a record: points, the elements that connect them, and values at the points. A level, a slice or a line
/// of a graph is a group of its own; most records have one group.
///
/// A triangle is drawn only if the coordinates and the values of all its corners are finite, so a NaN among the data
/// cuts a hole.
struct PostDataGroup {
    using Record = vxdatacarrier::PostDataObject;

    /// x, y and z of all points: one to three arrays of equal length.
    Record::DoubleArrays coordinates = {};
    /// One array per corner, up to four, with the indices of points, from 0. One makes points, two lines, three
    /// triangles, four tetrahedra.
    Record::IntArrays elements = {};
    /// One array per quantity, with one value per point. One that is for levels alone may have a single value.
    Record::DoubleArrays data = {};
    /// The starts and the ends of lines that are drawn with triangles: two arrays, or none.
    Record::IntArrays lineElements = {};
    /// x, y and z of the unit normals of all points: three arrays, or none.
    Record::FloatArrays normals = {};
    /// Whether the normals are those that `normalsOf` gives, which needs triangles and three axes.
    bool computeNormals = false;
    /// Whether the line elements are those that `outlineOf` gives, which needs triangles.
    bool computeOutline = false;
    /// By data array. Those that are missing or empty are computed from the finite values, see `finiteRange`.
    std::vector<ValueRange> limits = {};
};

} // namespace vxproducer
