#pragma once

#include "datacarrier/geometryvalues.h"
#include "graphics3d/parts/partcollectionof.h"
#include "graphics3d/parts/sheet.h"

#include <map>
#include <span>
#include <string>

namespace vxgraphics3d {

/// The sheets of an object. Each is added with its numbers of vertices and triangles, then filled:
///
///     SheetCollection sheets;
///     sheets.allocateParts(1);
///     sheets.addPart(3, 1);
///     sheets.appendPartVertex(0, position, normal);    // three times
///     sheets.appendPartTriangle(0, 0, 1, 2);
class VX_API SheetCollection : public PartCollectionOf<Sheet> {
public:
    /// Deletes all sheets and makes space for `count` new ones. The names of materials stay.
    void allocateParts(int count);
    /// Deletes all sheets and the array.
    void resetParts() { allocateParts(0); }
    /// Adds a sheet with space for its vertices and triangles and returns its index.
    /// @throws std::out_of_range if all sheets have been added
    int addPart(int numVertices, int numTriangles);
    void setPartBoundingBox(int index, const BoundingBox& box) { part(index).setBoundingBox(box); }

    /// Appends vertices to a sheet.
    /// @throws std::out_of_range, and appends none, if there is not enough space
    void appendPartVertices(int index, const VertexBufferNormal::Vertex* vertices, int count);
    /// The same for `count` vertices `at(i)` of any type that has their six fields.
    template <class VertexAt>
    void appendPartVerticesOf(int index, int count, VertexAt at);
    /// Appends a vertex to a sheet that has space for it.
    void appendPartVertex(int index, const Vector3f& position, const Vector3f& normal);
    void appendPartVertex(int index, float x, float y, float z, float nx, float ny, float nz)
    {
        appendPartVertex(index, {x, y, z}, {nx, ny, nz});
    }
    /// Appends triangles, whose corners are vertices of the sheet.
    /// @throws std::out_of_range, and appends none, if there is not enough space
    void appendPartTriangles(int index, std::span<const vxdatacarrier::Triangle> triangles);
    /// Appends a triangle to a sheet that has space for it.
    void appendPartTriangle(int index, int a, int b, int c);

    /// Gives a sheet a material, by name, instead of the one that it has.
    void setPartMaterial(boost::shared_ptr<std::string> name, int index);

    /// The number of vertices of all sheets.
    int getNumVertices() const { return m_numVertices; }
    /// The number of triangles of all sheets.
    int getNumTriangles() const { return m_numTriangles; }
    /// Counts the materials set.
    int getMaterialChangeId() const { return m_materialChangeId.get(); }
    /// The materials, each with the number of times that it is used. Sheets that are replaced stay counted.
    const std::map<std::string, int>& getMaterials() const { return m_materials; }

    /// Makes a part, which the caller owns.
    virtual Sheet* createPart(int numVertices, int numTriangles);

private:
    int m_numVertices = 0;
    int m_numTriangles = 0;
    ChangeNumber m_materialChangeId;
    std::map<std::string, int> m_materials;
};

template <class VertexAt>
void SheetCollection::appendPartVerticesOf(int index, int count, VertexAt at)
{
    Sheet& sheet = part(index);
    VertexBufferNormal::Vertex* out = sheet.m_mesh.vertices.appendUnwritten(count);
    m_numVertices += count;
    VertexExtent extent = sheet.m_extent;
    for (int i = 0; i < count; ++i) {
        const auto& vertex = at(i);
        out[i] = {vertex.x, vertex.y, vertex.z, vertex.nx, vertex.ny, vertex.nz};
        extent.include({vertex.x, vertex.y, vertex.z});
    }
    sheet.m_extent = extent;
}

} // namespace vxgraphics3d
