#pragma once

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"

namespace vxgraphics3d {

/// A field on the surfaces of a domain in space, with the normals of the record. Reads colour data of group 0.
class VX_API SceneGraphPlotDomain3d : public SceneGraphSingleTexturePlot {
public:
    explicit SceneGraphPlotDomain3d(int id);
    ~SceneGraphPlotDomain3d() override;
    /// Frees the buffers. Counts no change: a renderer sees it by isValid().
    void resetPlotData() override;
    /// Whether there are vertices and triangles.
    bool isValid() const override;

    const VertexBufferNormalTex& getVertices() const { return m_vertices; }
    const IndexBufferTriangles& getTriangles() const { return m_triangles; }

protected:
    void fillPlotImpl(const vxdatacarrier::PostDataObject& record) override;
    void checkData(const vxdatacarrier::PostDataView& data) const override;

private:
    VertexBufferNormalTex m_vertices;
    IndexBufferTriangles m_triangles;
};

} // namespace vxgraphics3d
