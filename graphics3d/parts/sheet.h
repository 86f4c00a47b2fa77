#pragma once

#include "graphics3d/buffers/bufferpair.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormal.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/parts/partlabel.h"
#include "graphics3d/parts/selectablepart.h"
#include "graphics3d/parts/vertexextent.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace vxgraphics3d {

/// A triangulated surface of an object. It belongs to a `SheetCollection`, which fills it.
class VX_API Sheet : public SelectablePart {
public:
    /// A sheet with space for its vertices and triangles.
    Sheet(int numVertices, int numTriangles);
    virtual ~Sheet();

    /// Whether there is at least one vertex and one triangle.
    bool hasGeometry() const { return m_mesh.isValid(); }
    float getArea() const;
    /// A point of the surface for a label: where the line through its centre of area, along its mean normal, meets one
    /// of its triangles, or else the centre of a large triangle that faces along the mean normal.
    /// @return false, and the output stays as it is, without geometry
    bool computeLabelPosition(Vector3f& position) const;
    /// The same with the unit normal of the triangle at that point.
    bool computeLabelPosition(Vector3f& position, Vector3f& normal) const;

    /// Labels the sheet with a new label; without geometry, its label is removed.
    /// @return whether it has a label now
    bool setLabel(const vxbase::UString& text);
    void removeLabel() { m_label.remove(); }

    int getGeometryChangeId() const { return m_geometryChangeId.get(); }
    /// Counts the labels set and removed.
    int getLabelChangeId() const { return m_label.getChangeId(); }
    const VertexBufferNormal& getVertices() const { return m_mesh.vertices; }
    /// One segment of triangles over the vertices.
    const IndexBufferTriangles& getTriangles() const { return m_mesh.indices; }
    /// The label, or null.
    const boost::shared_ptr<SceneObjectLabel>& getLabel() const { return m_label.get(); }
    /// The name of the material, or null.
    const boost::shared_ptr<std::string>& getMaterial() const { return m_material; }
    const VertexExtent& getVertexExtent() const { return m_extent; }

private:
    friend class SheetCollection;

    struct Facet;
    Facet facet(int triangle) const;

    ChangeNumber m_geometryChangeId;
    BufferPair<VertexBufferNormal, IndexBufferTriangles> m_mesh;
    PartLabel m_label;
    boost::shared_ptr<std::string> m_material;
    VertexExtent m_extent;
};

} // namespace vxgraphics3d
