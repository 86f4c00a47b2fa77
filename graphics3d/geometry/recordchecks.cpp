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
#include <type_traits>

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

/// @param what the name of the array in messages, made only for one
template <class T, class What>
void checkArray(const std::unique_ptr<T[]>& array, int count, What what)
{
    if (count < 0 || count > c_mostElements || (count > 0 && !array)) {
        throw std::invalid_argument("The record has " + std::to_string(count) + " " + what() +
                                    (count > 0 && !array ? ", but no array of them." : "."));
    }
}

template <class T>
void checkArray(const std::unique_ptr<T[]>& array, int count, const char* what)
{
    checkArray(array, count, [what] { return std::string(what); });
}

/// The corners of triangles or quadrilaterals are indices of vertices.
/// @param what the name of an element in messages, made only for one
template <class Element, class What>
void checkCorners(std::span<const Element> elements, int numVertices, What what)
{
    static_assert(std::is_standard_layout_v<Element> && sizeof(Element) % sizeof(int) == 0);
    const std::span<const int> corners(reinterpret_cast<const int*>(elements.data()),
                                       elements.size() * (sizeof(Element) / sizeof(int)));
    // The sign of an index, or of its distance from the last vertex. This loop is as fast as memory.
    const auto last = static_cast<unsigned>(numVertices) - 1u;
    unsigned signs = 0;
    for (const int corner : corners) {
        signs |= static_cast<unsigned>(corner) | (last - static_cast<unsigned>(corner));
    }
    if (static_cast<int>(signs) < 0) {
        const auto wrong = std::ranges::find_if(corners, [&](int i) { return i < 0 || i >= numVertices; });
        throw std::out_of_range(what() + " refers to vertex " + std::to_string(*wrong) + " of " +
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
        checkArray(sheet.m_vertices, sheet.m_numVertices, [i] { return "vertices of " + numbered("sheet", i); });
        checkArray(sheet.m_triangles, sheet.m_numTriangles, [i] { return "triangles of " + numbered("sheet", i); });
        checkCorners(entries(sheet.m_triangles, sheet.m_numTriangles), sheet.m_numVertices,
                     [i] { return "A triangle of " + numbered("sheet", i); });
    }
}

template <class Curves>
void checkCurves(const Curves& curves, int numCurves)
{
    for (int i = 0; i < numCurves; ++i) {
        const auto& curve = curves[static_cast<std::size_t>(i)];
        if (curve.m_isValid) {
            checkArray(curve.m_vertices, curve.m_numVertices, [i] { return "vertices of " + numbered("line", i); });
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
               [=] { return std::string("adjacent parts of level ") + c_names[adjacentLevel]; });
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
        checkCoordinates(mesh, "line");
    }

    template <class Coords>
    void operator()(const RenderSheetMesh<Coords>& mesh)
    {
        checkPart(mesh, "sheet", m_numSheets);
        const auto inMesh = [&](const char* what) {
            return
                [&mesh, what] { return std::string(what) + " in the mesh of " + numbered("sheet", mesh.m_partIndex); };
        };
        checkCoordinates(mesh, "sheet");
        checkArray(mesh.m_triangles, std::max(mesh.m_numTriangles, 0), inMesh("triangles"));
        checkArray(mesh.m_quads, std::max(mesh.m_numQuads, 0), inMesh("quadrilaterals"));
        const auto triangles = entries(mesh.m_triangles, mesh.m_numTriangles);
        const auto quads = entries(mesh.m_quads, mesh.m_numQuads);
        if (3 * triangles.size() + 4 * quads.size() > std::numeric_limits<int>::max() / 2) {
            throw std::invalid_argument("There are too many" + inMesh(" elements")() + ".");
        }
        const int numCoordinates = std::max(mesh.m_numCoordinates, 0);
        checkCorners(triangles, numCoordinates, inMesh("A triangle"));
        checkCorners(quads, numCoordinates, inMesh("A quadrilateral"));
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
    static void checkCoordinates(const RenderLineMesh<Coords>& mesh, const char* kind)
    {
        checkArray(mesh.m_coordinates, std::max(mesh.m_numCoordinates, 0),
                   [&] { return "coordinates in the mesh of " + numbered(kind, mesh.m_partIndex); });
    }

    int m_numLines;
    int m_numSheets;
};

template <class Record>
void checkPointsAndCurves(const Record& record, ObjectPartType highest)
{
    checkArray(record.m_points, record.m_numPoints, "points");
    if (highest >= PartLine) {
        checkArray(record.m_curves, record.m_numCurves, "curves");
        checkCurves(record.m_curves, record.m_numCurves);
    }
}

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
    checkPointsAndCurves(record, highest);
    checkRelations(record, highest);
}

void checkRecord(const Geometry2D& record, ObjectPartType highest)
{
    checkPointsAndCurves(record, highest);
    if (highest >= PartSheet) {
        checkArray(record.m_sheets, record.m_numSheets, "sheets");
        checkSheets(record.m_sheets, record.m_numSheets);
    }
    checkRelations(record, highest);
}

void checkRecord(const Geometry3D& record, ObjectPartType highest)
{
    checkPointsAndCurves(record, highest);
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
