#pragma once

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/plots/scenegraphtextureplot.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace vxgraphics3d {

/// A mesh whose elements are coloured by data. Each group of the record is a batch of elements of one kind, by the
/// number of their corners: faces, lines or points, which are drawn as small cubes. The group after one of faces is the
/// wireframe of these faces, whatever its elements. All groups share one colour scale.
class VX_API SceneGraphPlotMesh3d : public SceneGraphTexturePlot {
public:
    /// @param dimensions 2 for a mesh in the plane; any other number for one in space
    SceneGraphPlotMesh3d(int id, int dimensions);
    ~SceneGraphPlotMesh3d() override;

    /// Frees the buffers of all groups, which stay as empty groups. Counts no change: a renderer checks isValid().
    void resetPlotData() override;
    /// Whether each group has vertices and elements; true for a plot without groups.
    bool isValid() const override;

    /// Shows or hides the faces. Another value counts as a change of geometry; to hide them also removes the colour
    /// table, which does not come back when they are shown again.
    void setDisplayInterior(bool display);
    /// Shows or hides the wireframes of faces. Another value counts as a change of geometry.
    void setDisplayWireframe(bool display);
    /// Another colour counts as a change of colour.
    void setWireframeColor(const Color& color);
    bool isDisplayInterior() const { return m_displayInterior; }
    bool isDisplayWireframe() const { return m_displayWireframe; }
    const Color& getWireframeColor() const { return m_wireframeColor; }

    // The buffers of each group, of which those of other kinds of elements are empty; indices are not checked.
    int getNumberOfGroups() const { return static_cast<int>(m_groups.size()); }
    const VertexBufferNormalTex& getVertexBuffer(int group) const { return at(group).vertices; }
    /// Faces, or the cubes of points.
    const IndexBufferTriangles& getTriangleBuffer(int group) const { return at(group).triangles; }
    const IndexBufferLines& getLineBuffer(int group) const { return at(group).lines; }
    const IndexBufferLines& getWireframeBuffer(int group) const { return at(group).wireframe; }
    /// Whether the triangles of a group are cubes, which have no interior to hide.
    bool isPoints(int group) const { return at(group).isPoints; }

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    struct Group {
        VertexBufferNormalTex vertices;
        IndexBufferTriangles triangles{vertices};
        IndexBufferLines lines{vertices};
        IndexBufferLines wireframe{vertices};
        bool isPoints = false;
    };
    using Groups = std::vector<std::unique_ptr<Group>>;

    void fillPlotImpl(const Input& input);
    const Group& at(int group) const { return *m_groups[static_cast<std::size_t>(group)]; }

    Groups m_groups;
    bool m_displayWireframe = true;
    bool m_displayInterior = true;
    Color m_wireframeColor{0, 0, 0, 255};
};

} // namespace vxgraphics3d
