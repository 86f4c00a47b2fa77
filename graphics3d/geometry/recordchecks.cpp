#include "graphics3d/geometry/recordchecks.h"

#include "datacarrier/rendermeshcollection.h"
#include "graphics3d/geometry/meshrecords.h"
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

unsigned highestCorner(const Triangle& t)
{
    // As unsigned numbers, negative indices are the highest.
    return std::max({static_cast<unsigned>(t.a), static_cast<unsigned>(t.b), static_cast<unsigned>(t.c)});
}

unsigned highestCorner(const Quad& q)
{
    return std::max({static_cast<unsigned>(q.a), static_cast<unsigned>(q.b), static_cast<unsigned>(q.c),
                     static_cast<unsigned>(q.d)});
}

template <class Element>
void checkCorners(std::span<const Element> elements, int numVertices, const std::string& what)
{
    unsigned highest = 0;
    for (const Element& element : elements) {
        highest = std::max(highest, highestCorner(element));
    }
    if (!elements.empty() && highest >= static_cast<unsigned>(numVertices)) {
        throw std::out_of_range(what + " refers to vertex " + std::to_string(static_cast<int>(highest)) + " of " +
                                std::to_string(numVertices) + ".");
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
        checkCorners(entries(sheet.m_triangles, sheet.m_numTriangles), sheet.m_numVertices,
                     "A triangle of " + numbered("sheet", i));
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

/// Checks the meshes of a collection one by one. Counts below 0 are none.
class MeshCheck {
public:
    MeshCheck(int numLines, int numSheets) : m_numLines(numLines), m_numSheets(numSheets) {}

    template <class Coords>
    void operator()(const RenderLineMesh<Coords>& mesh)
    {
        checkPart(mesh, "line", m_numLines);
        checkCoordinates(mesh, "mesh of " + numbered("line", mesh.m_partIndex));
    }

    template <class Coords>
    void operator()(const RenderSheetMesh<Coords>& mesh)
    {
        checkPart(mesh, "sheet", m_numSheets);
        const std::string name = "mesh of " + numbered("sheet", mesh.m_partIndex);
        checkCoordinates(mesh, name);
        checkArray(mesh.m_triangles, std::max(mesh.m_numTriangles, 0), "triangles in the " + name);
        checkArray(mesh.m_quads, std::max(mesh.m_numQuads, 0), "quadrilaterals in the " + name);
        const auto triangles = entries(mesh.m_triangles, mesh.m_numTriangles);
        const auto quads = entries(mesh.m_quads, mesh.m_numQuads);
        if (3 * triangles.size() + 4 * quads.size() > std::numeric_limits<int>::max() / 2) {
            throw std::invalid_argument("The " + name + " has too many elements.");
        }
        const int numCoordinates = std::max(mesh.m_numCoordinates, 0);
        checkCorners(triangles, numCoordinates, "A triangle in the " + name);
        checkCorners(quads, numCoordinates, "A quadrilateral in the " + name);
    }

private:
    static void checkPart(const RenderMesh& mesh, const char* kind, int numParts)
    {
        if (mesh.m_partIndex < 0 || mesh.m_partIndex >= numParts) {
            throw std::out_of_range("There is a mesh for " + numbered(kind, mesh.m_partIndex) + " of " +
                                    std::to_string(numParts) + ".");
        }
    }

    template <class Coords>
    static void checkCoordinates(const RenderLineMesh<Coords>& mesh, const std::string& name)
    {
        checkArray(mesh.m_coordinates, std::max(mesh.m_numCoordinates, 0), "coordinates in the " + name);
    }

    int m_numLines;
    int m_numSheets;
};

} // namespace

void checkSnapCoordinates(const Geometry2D& record)
{
    if (record.m_snapY.size() < record.m_snapX.size()) {
        throw std::invalid_argument("The record has " + std::to_string(record.m_snapX.size()) +
                                    " snap coordinates x, but " + std::to_string(record.m_snapY.size()) + " y.");
    }
}

void checkMeshes(const RenderMeshCollection& meshes, int numLines, int numSheets)
{
    MeshCheck check(numLines, numSheets);
    for (const auto& mesh : meshes.m_meshes) {
        if (!mesh) {
            throw std::invalid_argument("The collection contains a null mesh.");
        }
        withMesh(*mesh, check);
    }
}

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
