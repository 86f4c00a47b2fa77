#include "graphics3d/geometry/recordchecks.h"

#include "graphics3d/geometry/recordrelations.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {
namespace {

using namespace vxdatacarrier;

constexpr const char* c_names[] = {"point", "line", "sheet", "subdomain"};

/// Vertices and indices of a part are counted by an int each.
constexpr int c_mostElements = std::numeric_limits<int>::max() / 6;

std::string numbered(const char* name, int index)
{
    return std::string(name) + " " + std::to_string(index);
}

template <class T>
void checkArray(const std::unique_ptr<T[]>& array, int count, const std::string& what)
{
    if (count < 0 || count > c_mostElements || (count > 0 && !array)) {
        throw std::invalid_argument("The record has " + std::to_string(count) + " " + what +
                                    (count > 0 && !array ? ", but no array of them." : "."));
    }
}

template <class Sheets>
void checkSheets(const Sheets& sheets, int numSheets)
{
    for (int i = 0; i < numSheets; ++i) {
        const auto& sheet = sheets[static_cast<std::size_t>(i)];
        if (!sheet.m_isValid) {
            continue;
        }
        checkArray(sheet.m_vertices, sheet.m_numVertices, "vertices of " + numbered("sheet", i));
        checkArray(sheet.m_triangles, sheet.m_numTriangles, "triangles of " + numbered("sheet", i));
        unsigned highest = 0;
        for (const Triangle& t : std::span(sheet.m_triangles.get(), static_cast<std::size_t>(sheet.m_numTriangles))) {
            // As unsigned numbers, negative indices are the highest.
            highest =
                std::max({highest, static_cast<unsigned>(t.a), static_cast<unsigned>(t.b), static_cast<unsigned>(t.c)});
        }
        if (sheet.m_numTriangles > 0 && highest >= static_cast<unsigned>(sheet.m_numVertices)) {
            throw std::out_of_range("A triangle of " + numbered("sheet", i) + " refers to vertex " +
                                    std::to_string(static_cast<int>(highest)) + " of " +
                                    std::to_string(sheet.m_numVertices) + ".");
        }
    }
}

template <class Curves>
void checkCurves(const Curves& curves, int numCurves)
{
    for (int i = 0; i < numCurves; ++i) {
        const auto& curve = curves[static_cast<std::size_t>(i)];
        if (curve.m_isValid) {
            checkArray(curve.m_vertices, curve.m_numVertices, "vertices of " + numbered("line", i));
        }
    }
}

void checkRelation(const AdjacencyRecord& relation, int level, int numRows, int adjacentLevel, int numTargets)
{
    if (relation.m_numRows == 0) {
        return;
    }
    const std::string name = std::string("The relation of ") + c_names[level] + " to " + c_names[adjacentLevel];
    if (relation.m_numRows != numRows || !relation.m_rows) {
        throw std::invalid_argument(name + " has " + std::to_string(relation.m_rows ? relation.m_numRows : 0) +
                                    " rows for " + std::to_string(numRows) + " parts.");
    }
    checkArray(relation.m_values, relation.m_numValues,
               std::string("adjacent parts of level ") + c_names[adjacentLevel]);
    std::int64_t total = 0;
    for (int row = 0; row < numRows; ++row) {
        const auto [start, count] = relation.m_rows[static_cast<std::size_t>(row)];
        if (start < 0) {
            continue;
        }
        total += count;
        if (count < 0 || start > relation.m_numValues - count || total > relation.m_numValues) {
            throw std::out_of_range(name + ": row " + std::to_string(row) + " is outside of the values or overlaps.");
        }
        for (int i = start; i < start + count; ++i) {
            const int value = relation.m_values[static_cast<std::size_t>(i)];
            if (value < 0 || value >= numTargets) {
                throw std::out_of_range(name + ": row " + std::to_string(row) + " refers to " + c_names[adjacentLevel] +
                                        " " + std::to_string(value) + " of " + std::to_string(numTargets) + ".");
            }
        }
    }
}

template <class Record>
void checkRelations(const Record& record, ObjectPartType highest)
{
    for (int level = PartPoint; level <= highest; ++level) {
        for (int adjacentLevel = PartPoint; adjacentLevel <= highest; ++adjacentLevel) {
            if (const AdjacencyRecord* relation = relationOf(record, level, adjacentLevel)) {
                checkRelation(*relation, level, numPartsOf(record, level), adjacentLevel,
                              numPartsOf(record, adjacentLevel));
            }
        }
    }
}

} // namespace

void checkRecord(const Geometry1D& record, ObjectPartType highest)
{
    checkArray(record.m_points, record.m_numPoints, "points");
    if (highest >= PartLine) {
        checkArray(record.m_curves, record.m_numCurves, "curves");
        checkCurves(record.m_curves, record.m_numCurves);
    }
    checkRelations(record, highest);
}

void checkRecord(const Geometry2D& record, ObjectPartType highest)
{
    checkArray(record.m_points, record.m_numPoints, "points");
    if (highest >= PartLine) {
        checkArray(record.m_curves, record.m_numCurves, "curves");
        checkCurves(record.m_curves, record.m_numCurves);
    }
    if (highest >= PartSheet) {
        checkArray(record.m_sheets, record.m_numSheets, "sheets");
        checkSheets(record.m_sheets, record.m_numSheets);
    }
    if (record.m_snapY.size() < record.m_snapX.size()) {
        throw std::invalid_argument("The record has " + std::to_string(record.m_snapX.size()) +
                                    " snap coordinates x, but " + std::to_string(record.m_snapY.size()) + " y.");
    }
    checkRelations(record, highest);
}

void checkRecord(const Geometry3D& record, ObjectPartType highest)
{
    checkArray(record.m_points, record.m_numPoints, "points");
    if (highest >= PartLine) {
        checkArray(record.m_curves, record.m_numCurves, "curves");
        checkCurves(record.m_curves, record.m_numCurves);
    }
    if (highest >= PartSheet) {
        checkArray(record.m_sheets, record.m_numSheets, "sheets");
        checkSheets(record.m_sheets, record.m_numSheets);
    }
    if (highest >= PartSolid) {
        checkArray(record.m_subdomains, record.m_numSubdomains, "subdomains");
    }
    checkRelations(record, highest);
}

} // namespace vxgraphics3d
