#pragma once

#include "base/export.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <vector>

namespace vxdatacarrier {

/// The record that brings post-processing results to a plot: a plain carrier with public fields, which a producer fills
/// and a plot only reads. A plot copies what it needs, so the record may be destroyed after the fill.
///
/// A record is split into groups, such as one iso level, one slice or one batch of mesh elements. Each group has its
/// own points, and all arrays are organised by axis, corner or quantity, never as one object per point. There are as
/// many groups as entries in `m_coordinates`, at least one; the other group fields that a plot needs have the same
/// number of entries.
///
/// Plots read records through `PostDataView`, which checks everything that a fill relies on.
class VX_API PostDataObject {
public:
    using DoubleArrays = std::vector<std::vector<double>>;
    using FloatArrays = std::vector<std::vector<float>>;
    using IntArrays = std::vector<std::vector<int>>;

    /// What a data array means to a plot: indices into `m_dataIndex`. No plot reads the numbers without a name.
    enum Role : int {
        ColorData = 0,
        HeightData = 4,
        /// Radius of spheres and tubes, width of ribbons.
        RadiusData = 5,
        VectorX = 7,
        VectorY = 8,
        VectorZ = 9,
        FirstDirectionX = 10,
        FirstDirectionY = 11,
        FirstDirectionZ = 12,
        SecondDirectionX = 13,
        SecondDirectionY = 14,
        SecondDirectionZ = 15,
        IsoLevelData = 19,
    };
    /// The roles of a principal plot, each the first of three consecutive roles for its three axes.
    enum PrincipalRole : int {
        PrincipalLengths = 7,
        PrincipalX = 10,
        PrincipalY = 13,
        PrincipalZ = 16,
    };
    static constexpr int c_numRoles = 22;

    /// The kind of data: the values of `m_plotKind` that change what a plot or a reader does. Producers define the full
    /// set.
    enum PlotKind : int {
        Lines3d = 5,
        IsoSurface = 6,
        Surface2d = 8,
        Surface3d = 9,
        Mesh3d = 12,
        Contour2d = 17,
        Contour3d = 18,
        /// Both kinds of principal data in two dimensions.
        Principal2d = 19,
        PrincipalAxes2d = 21,
        PointLabel2d = 23,
    };

    PostDataObject() { m_dataIndex.fill(-1); }

    /// The smallest minimum of a role over all groups. The role must be filled and there must be a group.
    double getDataMin(int role) const;
    /// The largest maximum of a role over all groups. The role must be filled and there must be a group.
    double getDataMax(int role) const;

    int m_plotKind = 0;
    /// By role: the index of an array in `m_data`, `m_dataMin` and `m_dataMax`, or a negative number if there is none.
    std::array<int, c_numRoles> m_dataIndex;
    /// By group: one array per axis, 1 to 3 of equal length, which is the group's number of points.
    std::vector<boost::shared_ptr<DoubleArrays>> m_coordinates;
    /// Minimum and maximum of each axis over the whole record.
    boost::shared_ptr<DoubleArrays> m_bounds;
    /// By group: one array per element corner, all of equal length, with indices into the group's points from 0. One
    /// corner defines points, two lines, three triangles, four tetrahedra.
    std::vector<boost::shared_ptr<IntArrays>> m_elements;
    /// By group: arrays with one value per point.
    std::vector<boost::shared_ptr<DoubleArrays>> m_data;
    /// By group: the maximum of each data array. Plots do not check it.
    std::vector<boost::shared_ptr<std::vector<double>>> m_dataMax;
    /// By group: the minimum of each data array. Plots do not check it.
    std::vector<boost::shared_ptr<std::vector<double>>> m_dataMin;
    /// By group: x, y and z components of the unit normals, one array per component.
    std::vector<boost::shared_ptr<FloatArrays>> m_normals;
    /// By group: two arrays with the ends of the boundary lines of the triangles.
    std::vector<boost::shared_ptr<IntArrays>> m_lineElements;
};

} // namespace vxdatacarrier
