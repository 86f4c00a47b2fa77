#pragma once

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

namespace vxgraphics3d {

/// A field on slices through a domain in space, one per group of the record, each with its outline. All slices share
/// one colour scale. Reads colour data, normals, triangles and line elements; a plot file may fill it too, see
/// `ScenePlotFileReader::readSlicePlot3d`.
class VX_API SceneGraphPlotSlice3d : public SceneGraphSingleTexturePlot {
public:
    /// The buffers of one slice, all empty at first.
    struct Slice {
        Slice() = default;
        Slice(const Slice&) = delete;
        Slice& operator=(const Slice&) = delete;

        VertexBufferNormalTex m_vertices;
        IndexBufferTriangles m_triangles{m_vertices};
        /// The outline.
        IndexBufferLines m_lines{m_vertices};
    };

    explicit SceneGraphPlotSlice3d(int id);
    ~SceneGraphPlotSlice3d() override;

    /// Replaces all slices by empty ones. Counts no change: whoever fills them then calls `setFilled`.
    void allocate(int slices);
    /// Stores the box of slices that were filled directly and counts a change of geometry.
    void setFilled(const BoundingBox& box);
    /// Drops all slices and counts a change of geometry.
    void resetPlotData() override;
    /// Whether there are slices.
    bool isValid() const override;

    int getNumberOfSlices() const { return static_cast<int>(m_slices.size()); }
    /// The buffers of a slice; the index is not checked.
    Slice* slice(int i) { return m_slices[static_cast<std::size_t>(i)].get(); }
    const Slice* getSlice(int i) const { return m_slices[static_cast<std::size_t>(i)].get(); }
    /// For renderers; the model neither reads nor changes it.
    int getSliceMode() const { return m_sliceMode; }

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);

    int m_sliceMode = 1;
    std::vector<boost::shared_ptr<Slice>> m_slices;
};

} // namespace vxgraphics3d
