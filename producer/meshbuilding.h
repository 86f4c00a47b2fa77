#pragma once

#include "base/export.h"
#include "datacarrier/rendermesh.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxproducer {

/// The mesh of one part of a physics object.
struct MeshParts {
    using DoubleArrays = std::vector<std::vector<double>>;
    using IntArrays = std::vector<std::vector<int>>;

    /// A `RenderMesh::Type`, which determines the number of axes and whether there are elements.
    int type = 0;
    /// Index of the part among those of its kind.
    int partIndex = 0;
    /// The vertices, one array per axis; those of a line in their order along it.
    DoubleArrays coordinates = {};
    /// Three arrays, one per corner, with indices of vertices, or none. Only for meshes of sheets.
    IntArrays triangles = {};
    /// Four arrays, one per corner in their order around the quadrilateral, or none. Only for meshes of sheets.
    IntArrays quads = {};
};

/// Makes a mesh, to be added to a `RenderMeshCollection`.
/// @throws std::invalid_argument if there is no such type, the part's index is below 0, or arrays do not fit together
/// @throws std::out_of_range if an element has a vertex that the mesh does not have
VX_API boost::shared_ptr<vxdatacarrier::RenderMesh> buildMesh(const MeshParts& parts);

} // namespace vxproducer
