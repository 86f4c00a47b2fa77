// Single parts, which are uploaded for this purpose.

#include "graphics3d/geometry/objectparts.h"
#include "graphics3d/parts/markingmodesetup.h"
#include "graphics3d/parts/meshableline.h"
#include "graphics3d/parts/meshablesheet.h"
#include "renderer/objects/partpainting.h"
#include "renderer/upload/instancebuffer.h"
#include "renderer/upload/linemesh.h"
#include "renderer/upload/mesh.h"
#include "renderer/upload/parttable.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// The table of one part.
class RowTable {
public:
    explicit RowTable(MarkingType row)
    {
        const auto number = static_cast<std::uint8_t>(row);
        m_table.set({&number, 1});
    }
    const PartTable& get() const { return m_table; }

private:
    PartTable m_table;
};

MarkingType rowOf(const SelectablePart& part)
{
    return MarkingModeSetup::getMarkingType(part.getDisplayFlags());
}

/// @param step from one piece to the next, in vertices
std::vector<LineMesh::Piece> piecesOf(const VertexBufferCoords& vertices, int step)
{
    std::vector<LineMesh::Piece> pieces;
    for (int v = 0; v + 1 < vertices.getNumberOfVertices(); v += step) {
        pieces.push_back({vertices.getCoord(v), vertices.getCoord(v + 1)});
    }
    return pieces;
}

} // namespace

void PartPainting::drawOne(const ObjectParts& parts, int level, int index) const
{
    switch (level) {
    case PartSolid:
        for (const int sheet : parts.getAdjacents(PartSolid, PartSheet).of(index)) {
            drawSheet(parts.getSheets().getPart(sheet));
        }
        break;
    case PartSheet:
        drawSheet(parts.getSheets().getPart(index));
        break;
    case PartLine:
        drawLine(parts.getLines().getPart(index));
        break;
    default:
        drawPoint(parts.getPoints().getPart(index));
        break;
    }
}

void PartPainting::drawSheet(const Sheet& sheet) const
{
    const PartRange all = {0, 1};
    const auto draw = [&](const MeshPart& part, MarkingType row) {
        Mesh mesh;
        mesh.load({&part, 1});
        m_context.drawBody(&mesh, {RowTable(row).get(), faceRows(), {&all, 1}}, m_look);
    };
    draw({sheet.getVertices(), sheet.getTriangles()}, rowOf(sheet));
    if (sheet.isMarked(MarkMeshed)) {
        const auto& meshed = static_cast<const MeshableSheet&>(sheet);
        draw({meshed.getMeshVertices(), meshed.getMeshTriangles()}, rowOfMesh(sheet.getDisplayFlags()));
    }
}

void PartPainting::drawLine(const Line& line) const
{
    const auto draw = [&](std::vector<LineMesh::Piece> pieces, MarkingType row) {
        LineMesh mesh;
        mesh.load(std::move(pieces));
        m_context.drawLines(&mesh, {RowTable(row).get(), lineRows()}, m_look);
    };
    draw(piecesOf(line.getVertices(), 2), rowOf(line));
    if (line.isMarked(MarkMeshed)) {
        draw(piecesOf(static_cast<const MeshableLine&>(line).getMeshVertices(), 1), rowOfMesh(line.getDisplayFlags()));
    }
}

void PartPainting::drawPoint(const Point& point) const
{
    const Instance instance = {.position = point.getPosition(), .axis = {}, .u = 0.0f};
    InstanceBuffer position;
    position.load({&instance, 1});
    m_context.drawSymbols(&position, {RowTable(rowOf(point)).get(), pointRows()}, RenderSymbol::circle, m_look);
}

} // namespace vxrenderer
