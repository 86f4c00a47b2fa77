// The meshes of parts.

#include "graphics3d/parts/meshablelinecollection.h"
#include "graphics3d/parts/meshablesheetcollection.h"
#include "renderer/objects/partpainting.h"
#include "renderer/upload/checkedindices.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Width of the edges of elements, in pixels of the screen.
constexpr float c_elementEdge = 1.0f;
/// Size of the vertices of a line's mesh for each unit of the size of points.
constexpr float c_meshVertexSize = 0.8f;
/// The vertices of lines' meshes in turn.
template <class Visit>
void forEachMeshVertex(const MeshableLineCollection& lines, Visit visit)
{
    for (int i = 0; i < lines.getNumParts(); ++i) {
        const VertexBufferCoords& vertices = lines.getMeshablePart(i).getMeshVertices();
        for (int v = 0; v < vertices.getNumberOfVertices(); ++v) {
            visit(i, v, vertices);
        }
    }
}

bool isLess(const Vector3f& a, const Vector3f& b)
{
    return std::tie(a.x, a.y, a.z) < std::tie(b.x, b.y, b.z);
}

/// The edges of the elements of all sheets. One between two elements of a sheet is in the mesh twice, and is taken
/// once.
std::vector<LineMesh::Piece> elementEdgesOf(const MeshableSheetCollection& sheets)
{
    std::vector<LineMesh::Piece> pieces;
    for (int i = 0; i < sheets.getNumParts(); ++i) {
        const MeshableSheet& sheet = sheets.getMeshablePart(i);
        const CheckedIndices corners(sheet.getMeshLines(), sheet.getMeshVertices());
        const auto number = static_cast<float>(i);
        const auto first = static_cast<std::ptrdiff_t>(pieces.size());
        for (int c = 0; c + 1 < corners.size(); c += 2) {
            const Vector3f from = sheet.getMeshVertices().getCoord(static_cast<int>(corners[c]));
            const Vector3f to = sheet.getMeshVertices().getCoord(static_cast<int>(corners[c + 1]));
            pieces.push_back(isLess(to, from) ? LineMesh::Piece{to, from, number, number}
                                              : LineMesh::Piece{from, to, number, number});
        }
        std::sort(pieces.begin() + first, pieces.end(), [](const LineMesh::Piece& a, const LineMesh::Piece& b) {
            return a.from == b.from ? isLess(a.to, b.to) : isLess(a.from, b.from);
        });
        pieces.erase(std::unique(pieces.begin() + first, pieces.end(),
                                 [](const LineMesh::Piece& a, const LineMesh::Piece& b) {
                                     return a.from == b.from && a.to == b.to;
                                 }),
                     pieces.end());
    }
    return pieces;
}

/// A number that differs from the one before when parts were filled or a mesh was set or removed.
template <class Parts>
int meshChangeId(const Parts& parts, int changeId)
{
    constexpr unsigned c_apart = 0x9e3779b1u;
    unsigned sum = static_cast<unsigned>(changeId) * c_apart;
    for (int i = 0; i < parts.getNumParts(); ++i) {
        sum += static_cast<unsigned>(parts.getMeshablePart(i).getMeshChangeId());
    }
    return static_cast<int>(sum);
}

template <class Parts>
bool hasMesh(const Parts& parts)
{
    for (int i = 0; i < parts.getNumParts() && parts.getNumMarked() > 0; ++i) {
        if (parts.getPart(i).isMarked(MarkMeshed)) {
            return true;
        }
    }
    return false;
}

} // namespace

template <class Parts>
const PartTable& PartPainting::meshTableOf(int number, const Parts& parts) const
{
    std::vector<std::uint8_t> rows;
    rows.reserve(static_cast<std::size_t>(parts.getNumParts()));
    for (int i = 0; i < parts.getNumParts(); ++i) {
        rows.push_back(static_cast<std::uint8_t>(rowOfMesh(parts.getPart(i).getDisplayFlags())));
    }
    return m_context.uploads.partTable(m_object, number, rows);
}

void PartPainting::drawSheetMeshes(const MeshableSheetCollection& sheets, int changeId) const
{
    const int meshId = meshChangeId(sheets, changeId);
    const PartTable& table = meshTableOf(UploadSheetMeshes, sheets);
    const Mesh* elements = m_context.uploads.mesh(m_object, UploadSheetMeshes, meshId, [&] {
        std::vector<MeshPart> parts;
        for (int i = 0; i < sheets.getNumParts(); ++i) {
            const MeshableSheet& sheet = sheets.getMeshablePart(i);
            parts.push_back({sheet.getMeshVertices(), sheet.getMeshTriangles()});
        }
        return parts;
    });
    const PartRange all = {0, static_cast<std::size_t>(sheets.getNumParts())};
    m_context.drawBody(elements, {table, faceRows({}), {&all, 1}}, m_look);
    const LineMesh* edges =
        m_context.uploads.lines(m_object, UploadSheetMeshes, meshId, [&] { return elementEdgesOf(sheets); });
    m_context.drawLines(edges,
                        {table, rowsOf(
                                    [](const Marking& row) {
                                        return Style{row.getLineColor(), c_elementEdge};
                                    },
                                    {})},
                        m_look);
}

void PartPainting::drawLineMeshes(const MeshableLineCollection& lines, int changeId) const
{
    const int meshId = meshChangeId(lines, changeId);
    const LineMesh* pieces = m_context.uploads.lines(m_object, UploadLineMeshes, meshId, [&] {
        std::vector<LineMesh::Piece> made;
        forEachMeshVertex(lines, [&](int line, int v, const VertexBufferCoords& vertices) {
            const auto number = static_cast<float>(line);
            if (v > 0) {
                made.push_back({vertices.getCoord(v - 1), vertices.getCoord(v), number, number});
            }
        });
        return made;
    });
    m_context.drawLines(pieces, {meshTableOf(UploadLineMeshes, lines), lineRows({})}, m_look);

    const InstanceBuffer* positions = m_context.uploads.instances(m_object, UploadMeshVertices, meshId, [&] {
        std::vector<Instance> made;
        forEachMeshVertex(lines, [&](int, int v, const VertexBufferCoords& vertices) {
            made.push_back({.position = vertices.getCoord(v), .axis = {}, .u = 0.0f});
        });
        return made;
    });
    std::vector<std::uint8_t> vertexRows;
    forEachMeshVertex(lines, [&](int line, int, const VertexBufferCoords&) {
        vertexRows.push_back(static_cast<std::uint8_t>(rowOfMesh(lines.getPart(line).getDisplayFlags())));
    });
    m_context.drawSymbols(positions,
                          {m_context.uploads.partTable(m_object, UploadMeshVertices, vertexRows),
                           rowsOf(
                               [](const Marking& row) {
                                   return Style{row.getPointColor(), c_meshVertexSize * row.getPointSize()};
                               },
                               {})},
                          RenderSymbol::circle, m_look);
}

void PartPainting::drawMeshes(const MeshableSheetCollection& sheets, const MeshableLineCollection& lines,
                              int changeId) const
{
    if (hasMesh(sheets)) {
        drawSheetMeshes(sheets, changeId);
    }
    if (hasMesh(lines)) {
        drawLineMeshes(lines, changeId);
    }
}

} // namespace vxrenderer
