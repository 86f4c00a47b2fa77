#pragma once

#include "graphics3d/plots/scenegraphsingletextureplot.h"
#include "graphics3d/plots/surfacemesh.h"

namespace vxgraphics3d {

/// A field on a triangulated surface: one vertex for each point of a record's first group, in the record's order, and
/// one segment of triangles over them.
class VX_API SceneGraphPlotSurface : public SceneGraphSingleTexturePlot {
public:
    ~SceneGraphPlotSurface() override;
    /// Frees the buffers and counts a change of geometry. Value range and legend are kept.
    void resetPlotData() override;
    /// Whether there are vertices and triangles.
    bool isValid() const override;

    const VertexBufferNormalTex& getVertices() const { return m_mesh.vertices; }
    const IndexBufferTriangles& getTriangles() const { return m_mesh.indices; }

protected:
    SceneGraphPlotSurface(PlotType type, int id);

    SurfaceMesh& mesh() { return m_mesh; }

private:
    SurfaceMesh m_mesh;
};

} // namespace vxgraphics3d
