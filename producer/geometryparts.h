#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vxproducer {

/// What a record of geometry is made of; see `buildGeometry`. Coordinates have one array per axis: one for a record on
/// an axis, two in the plane, three in space.
struct GeometryParts {
    using DoubleArrays = std::vector<std::vector<double>>;
    using FloatArrays = std::vector<std::vector<float>>;
    using IntArrays = std::vector<std::vector<int>>;

    /// A triangulated surface. Without coordinates it has no geometry and only keeps its index.
    struct Sheet {
        DoubleArrays coordinates = {};
        /// Three arrays, one per corner, with the indices of the sheet's vertices.
        IntArrays triangles = {};
        /// x, y and z of the unit normals at the vertices of a sheet in space: three arrays, or none to compute them.
        FloatArrays normals = {};
        /// Index of the domain on the side that the normals (b - a) x (c - a) of the triangles point to, -1 for none.
        int upDomain = -1;
        int downDomain = -1;
    };

    int id = 0;
    std::string name = {};
    /// Points are the ends of curves, and those on their own.
    DoubleArrays points = {};
    /// The vertices of each polyline in their order. A curve without arrays has no geometry and only keeps its index.
    std::vector<DoubleArrays> curves = {};
    std::vector<Sheet> sheets = {};

    // For each part of the first kind a row with the indices of the adjacent parts of the second kind. The inverse
    // relations follow from these; see `complete` for how those that are not given are derived. The relations of
    // subdomains have one row per subdomain; without any there are as many as the sheets have domains.

    std::optional<IntArrays> lineToPoint = {};
    std::optional<IntArrays> sheetToLine = {};
    std::optional<IntArrays> sheetToPoint = {};
    std::optional<IntArrays> subdomainToSheet = {};
    std::optional<IntArrays> subdomainToLine = {};
    std::optional<IntArrays> subdomainToPoint = {};
};

} // namespace vxproducer
