#pragma once

#include "graphics3d/plots/scenegraphsingletextureplot.h"
#include "graphics3d/plots/surfacemesh.h"

namespace vxgraphics3d {

/// A field on the surfaces of a domain in space, with the normals of the record. Reads colour data of group 0.
class VX_API SceneGraphPlotDomain3d : public SceneGraphSingleTexturePlot {
public:
    explicit SceneGraphPlotDomain3d(int id);
    ~SceneGraphPlotDomain3d() override;
    /// Frees the buffers. Counts no change: a renderer checks isValid().
    void resetPlotData() override;
    /// Whether there are vertices and triangles.
    bool isValid() const override;

    const VertexBufferNormalTex& getVertices() const { return m_mesh.vertices; }
    const IndexBufferTriangles& getTriangles() const { return m_mesh.indices; }

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);

    SurfaceMesh m_mesh;
};

} // namespace vxgraphics3d
