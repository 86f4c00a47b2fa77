#include "graphics3d/parts/sheetcollection.h"

#include <utility>

namespace vxgraphics3d {

void SheetCollection::allocateParts(int count)
{
    PartCollectionOf::allocateParts(count);
    m_numVertices = 0;
    m_numTriangles = 0;
}

int SheetCollection::addPart(int numVertices, int numTriangles)
{
    return append(std::unique_ptr<Sheet>(createPart(numVertices, numTriangles)));
}

void SheetCollection::appendPartVertices(int index, const VertexBufferNormal::Vertex* vertices, int count)
{
    appendPartVerticesOf(
        index, count, [vertices](int i) -> const auto& { return vertices[i]; });
}

void SheetCollection::appendPartVertex(int index, const Vector3f& position, const Vector3f& normal)
{
    Sheet& sheet = part(index);
    sheet.m_mesh.vertices.appendVertex(position, normal);
    sheet.m_extent.include(position);
    ++m_numVertices;
}

void SheetCollection::appendPartTriangles(int index, std::span<const vxdatacarrier::Triangle> triangles)
{
    const int count = static_cast<int>(triangles.size());
    part(index).m_mesh.indices.appendTrianglesOf(count,
                                                 [triangles](int i) { return triangles[static_cast<std::size_t>(i)]; });
    m_numTriangles += count;
}

void SheetCollection::appendPartTriangle(int index, int a, int b, int c)
{
    part(index).m_mesh.indices.appendTriangle(a, b, c);
    ++m_numTriangles;
}

void SheetCollection::setPartMaterial(boost::shared_ptr<std::string> name, int index)
{
    Sheet& sheet = part(index);
    const auto previous = m_materials.find(sheet.m_material ? *sheet.m_material : std::string());
    if (previous != m_materials.end() && --previous->second == 0) {
        m_materials.erase(previous);
    }
    ++m_materials[*name];
    sheet.m_material = std::move(name);
    m_materialChangeId.raise();
}

Sheet* SheetCollection::createPart(int numVertices, int numTriangles)
{
    return new Sheet(numVertices, numTriangles);
}

} // namespace vxgraphics3d
