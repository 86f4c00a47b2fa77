#pragma once

#include "datacarrier/renderdraw3d.h"
#include "datacarrier/rendergeom3d.h"
#include "graphics3d/foundation/boundingbox.h"
#include "tests/support/randomnumbers.h"

#include <cstddef>
#include <memory>
#include <set>
#include <span>
#include <vector>

namespace vxgraphics3d {

/// The values of a row of a relation, which may be absent.
inline std::span<const int> valuesOf(const vxdatacarrier::AdjacencyRecord& relation, std::size_t row)
{
    if (relation.m_numRows == 0 || relation.m_rows[row].start < 0) {
        return {};
    }
    return {relation.m_values.get() + relation.m_rows[row].start, static_cast<std::size_t>(relation.m_rows[row].count)};
}

/// Random geometry around a point: parts of all levels, some without geometry, that share their boundaries at random.
/// Relations are consistent: what bounds a part of a part bounds the part itself, and all inverses agree. The box of
/// the record is exact.
class RandomGeometry {
public:
    RandomGeometry(RandomNumbers& random, const Vector3f& centre, float size)
        : m_random(random), m_centre(centre), m_size(size)
    {}

    void fill(vxdatacarrier::Geometry3D& record)
    {
        m_box = BoundingBox();
        record.m_isValid = true;
        record.m_numPoints = m_random.integer(0, 5);
        record.m_points = std::make_unique<vxdatacarrier::Coords3D[]>(static_cast<std::size_t>(record.m_numPoints));
        for (int i = 0; i < record.m_numPoints; ++i) {
            const Vector3f p = vertex(m_centre, m_size);
            record.m_points[static_cast<std::size_t>(i)] = {p.x, p.y, p.z};
        }
        record.m_numCurves = m_random.integer(0, 5);
        record.m_curves = std::make_unique<vxdatacarrier::Curve3D[]>(static_cast<std::size_t>(record.m_numCurves));
        for (int i = 0; i < record.m_numCurves; ++i) {
            fillCurve(record.m_curves[static_cast<std::size_t>(i)]);
        }
        record.m_numSheets = m_random.integer(0, 6);
        record.m_sheets = std::make_unique<vxdatacarrier::Sheet3D[]>(static_cast<std::size_t>(record.m_numSheets));
        for (int i = 0; i < record.m_numSheets; ++i) {
            fillSheet(record.m_sheets[static_cast<std::size_t>(i)]);
        }
        record.m_numSubdomains = m_random.integer(0, 4);
        record.m_subdomains =
            std::make_unique<vxdatacarrier::BoundingBox3D[]>(static_cast<std::size_t>(record.m_numSubdomains));
        relate(record.m_subdomainToSheet, record.m_numSubdomains, record.m_numSheets);
        relate(record.m_sheetToLine, record.m_numSheets, record.m_numCurves);
        relate(record.m_lineToPoint, record.m_numCurves, record.m_numPoints);
        derive(record.m_sheetToPoint, record.m_sheetToLine, record.m_lineToPoint, record.m_numPoints);
        derive(record.m_subdomainToLine, record.m_subdomainToSheet, record.m_sheetToLine, record.m_numCurves);
        derive(record.m_subdomainToPoint, record.m_subdomainToSheet, record.m_sheetToPoint, record.m_numPoints);
        invertAdjacency(record.m_pointToSheet, record.m_sheetToPoint, record.m_numPoints, record.m_numSheets);
        invertAdjacency(record.m_pointToSubdomain, record.m_subdomainToPoint, record.m_numPoints,
                        record.m_numSubdomains);
        invertAdjacency(record.m_lineToSubdomain, record.m_subdomainToLine, record.m_numCurves, record.m_numSubdomains);
        invertAdjacency(record.m_sheetToSubdomain, record.m_subdomainToSheet, record.m_numSheets,
                        record.m_numSubdomains);
        invertAdjacency(record.m_lineToSheet, record.m_sheetToLine, record.m_numCurves, record.m_numSheets);
        invertAdjacency(record.m_pointToLine, record.m_lineToPoint, record.m_numPoints, record.m_numCurves);
        if (m_box.isValid()) {
            const Vector3f min = m_box.getMin();
            const Vector3f max = m_box.getMax();
            record.m_box.m_xMin = min.x, record.m_box.m_xMax = max.x;
            record.m_box.m_yMin = min.y, record.m_box.m_yMax = max.y;
            record.m_box.m_zMin = min.z, record.m_box.m_zMax = max.z;
        }
    }

private:
    Vector3f vertex(const Vector3f& centre, float size)
    {
        const Vector3f p = centre + m_random.vector(size);
        m_box.merge(BoundingBox(p.x, p.x, p.y, p.y, p.z, p.z));
        return p;
    }

    void fillCurve(vxdatacarrier::Curve3D& curve)
    {
        curve.m_isValid = m_random.integer(0, 7) > 0;
        curve.m_numVertices = m_random.integer(2, 5);
        curve.m_vertices = std::make_unique<vxdatacarrier::Coords3D[]>(static_cast<std::size_t>(curve.m_numVertices));
        const Vector3f centre = m_centre + m_random.vector(m_size);
        for (int i = 0; i < curve.m_numVertices; ++i) {
            const Vector3f p = vertex(centre, 0.3f * m_size);
            curve.m_vertices[static_cast<std::size_t>(i)] = {p.x, p.y, p.z};
        }
    }

    void fillSheet(vxdatacarrier::Sheet3D& sheet)
    {
        sheet.m_isValid = m_random.integer(0, 7) > 0;
        sheet.m_numVertices = m_random.integer(3, 8);
        sheet.m_vertices =
            std::make_unique<vxdatacarrier::CoordsNormal3D[]>(static_cast<std::size_t>(sheet.m_numVertices));
        const Vector3f centre = m_centre + m_random.vector(m_size);
        for (int i = 0; i < sheet.m_numVertices; ++i) {
            const Vector3f p = vertex(centre, 0.3f * m_size);
            sheet.m_vertices[static_cast<std::size_t>(i)] = {p.x, p.y, p.z, 0.0f, 0.0f, 1.0f};
        }
        sheet.m_numTriangles = sheet.m_numVertices - 2;
        sheet.m_triangles = std::make_unique<vxdatacarrier::Triangle[]>(static_cast<std::size_t>(sheet.m_numTriangles));
        for (int i = 0; i < sheet.m_numTriangles; ++i) {
            sheet.m_triangles[static_cast<std::size_t>(i)] = {i, i + 1, i + 2};
        }
    }

    /// Gives each part of one kind up to three adjacent ones of another.
    void relate(vxdatacarrier::AdjacencyRecord& relation, int numRows, int numTargets)
    {
        relation.allocate(numRows, 3 * numRows);
        for (int row = 0; row < numRows; ++row) {
            const int count = numTargets > 0 ? m_random.integer(0, 3) : 0;
            relation.m_rows[static_cast<std::size_t>(row)] = {relation.m_numUsed, count};
            for (int i = 0; i < count; ++i) {
                relation.m_values[static_cast<std::size_t>(relation.m_numUsed++)] = m_random.integer(0, numTargets - 1);
            }
        }
    }

    /// The relation that follows from two others, with now and then a part more that is inside and bounds nothing else.
    void derive(vxdatacarrier::AdjacencyRecord& relation, const vxdatacarrier::AdjacencyRecord& first,
                const vxdatacarrier::AdjacencyRecord& second, int numTargets)
    {
        std::vector<std::set<int>> rows(static_cast<std::size_t>(first.m_numRows));
        int numValues = 0;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (const int middle : valuesOf(first, row)) {
                const auto values = valuesOf(second, static_cast<std::size_t>(middle));
                rows[row].insert(values.begin(), values.end());
            }
            if (numTargets > 0 && m_random.integer(0, 3) == 0) {
                rows[row].insert(m_random.integer(0, numTargets - 1));
            }
            numValues += static_cast<int>(rows[row].size());
        }
        relation.allocate(first.m_numRows, numValues);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            relation.m_rows[row] = {relation.m_numUsed, static_cast<int>(rows[row].size())};
            for (const int value : rows[row]) {
                relation.m_values[static_cast<std::size_t>(relation.m_numUsed++)] = value;
            }
        }
    }

    RandomNumbers& m_random;
    Vector3f m_centre;
    float m_size;
    BoundingBox m_box;
};

} // namespace vxgraphics3d
