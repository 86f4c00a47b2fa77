#pragma once

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"

namespace vxgraphics3d {

/// A field on a triangulated surface: one vertex for each point of a record's first group, in the record's order, and
/// one segment of triangles over them.
class VX_API SceneGraphPlotSurface : public SceneGraphSingleTexturePlot {
public:
    ~SceneGraphPlotSurface() override;
    /// Frees the buffers and counts a change of geometry. Value range and legend stay.
    void resetPlotData() override;
    /// Whether there are vertices and triangles.
    bool isValid() const override;

    const VertexBufferNormalTex& getVertices() const { return m_vertices; }
    const IndexBufferTriangles& getTriangles() const { return m_triangles; }

protected:
    SceneGraphPlotSurface(PlotType type, int id);

    VertexBufferNormalTex& vertices() { return m_vertices; }
    IndexBufferTriangles& triangles() { return m_triangles; }

private:
    VertexBufferNormalTex m_vertices;
    IndexBufferTriangles m_triangles;
};

} // namespace vxgraphics3d
