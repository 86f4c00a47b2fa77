#pragma once

#include "datacarrier/geometryrecord.h"

#include <vector>

namespace vxproducer {

/// The content of a record of any class of geometry, as arrays per axis and corner. What a class does not have is
/// empty.
/// Parts are found by index, which throws std::out_of_range if there is no such part.
class GeometryValues {
public:
    using FloatArrays = std::vector<std::vector<float>>;
    using IntArrays = std::vector<std::vector<int>>;

    explicit GeometryValues(const vxdatacarrier::GeometryRecord& record) : m_record(record) {}

    /// Minimum and maximum of each axis.
    std::vector<float> box() const;
    int numPoints() const;
    FloatArrays points() const;
    std::vector<std::vector<double>> snapPoints() const;
    int numCurves() const;
    FloatArrays curve(int index) const;
    int numSheets() const;
    /// Coordinates, and in space the normals.
    FloatArrays sheet(int index) const;
    IntArrays triangles(int index) const;
    int numSubdomains() const;
    /// The rows of a relation, by its position in the records of geometry in space; empty if the record has no such
    /// relation.
    IntArrays relation(int index) const;

private:
    const vxdatacarrier::GeometryRecord& m_record;
};

} // namespace vxproducer
