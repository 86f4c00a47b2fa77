#pragma once

#include "graphics3d/buffers/bufferpair.h"
#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/vertexbuffertex.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"

namespace vxgraphics3d {

/// The edges of elements as lines: one for each pair of corners, so a line element has one, a triangle three and a
/// tetrahedron six. An edge that several elements share is in the buffer once for each of them.
class VX_API SceneGraphPlotEdge : public SceneGraphSingleTexturePlot {
public:
    ~SceneGraphPlotEdge() override;

    /// Sets the width in which a renderer draws the lines and counts a change of geometry, also for the same width.
    void setLineWidth(float width);
    float getLineWidth() const { return m_lineWidth; }

    /// Frees the buffers and counts a change of geometry.
    void resetPlotData() override;
    /// Whether there are vertices and lines.
    bool isValid() const override;

    const VertexBufferTex& getVertices() const { return m_edges.vertices; }
    const IndexBufferLines& getLines() const { return m_edges.indices; }

protected:
    SceneGraphPlotEdge(PlotType type, int id);

    BufferPair<VertexBufferTex, IndexBufferLines>& edges() { return m_edges; }

private:
    float m_lineWidth = 0.25f;
    BufferPair<VertexBufferTex, IndexBufferLines> m_edges;
};

} // namespace vxgraphics3d
