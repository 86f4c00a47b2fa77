#pragma once

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/plots/istripedlegendplot.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"
#include "graphics3d/plots/valuescale.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace vxgraphics3d {

/// The level sets of a field, one level per group of the record, each of which can be hidden. Its legend shows a stripe
/// for each value in a list of its own, the legend levels; without such a list it is that of any plot.
///
/// Records need the level of each group as iso level data, of which the first value counts. Vertices are coloured by
/// the record's colour data or, without these, by their level.
class VX_API SceneGraphPlotIso : public SceneGraphSingleTexturePlot, public IStripedLegendPlot {
public:
    /// The buffers of one level, all empty at first.
    struct IsoData {
        IsoData() = default;
        IsoData(const IsoData&) = delete;
        IsoData& operator=(const IsoData&) = delete;

        bool m_shown = true;
        VertexBufferNormalTex m_vertices;
        /// Surfaces and filled bands.
        IndexBufferTriangles m_triangles{m_vertices};
        /// Contour lines.
        IndexBufferLines m_lines{m_vertices};
        /// The iso level data of the group: one value per point, or fewer if the last one counts for the others.
        std::vector<double> m_levelData;
        /// Where the label of contour lines is drawn, in scene units.
        Vector3f m_labelPosition;
    };

    ~SceneGraphPlotIso() override;

    /// Replaces all levels by empty ones. Counts a change of geometry.
    void allocate(int levels);
    /// Drops all levels and counts a change of geometry. Labels and legend levels are kept.
    void resetPlotData() override;
    /// Whether there are levels.
    bool isValid() const override;

    int getNumberOfLevels() const { return static_cast<int>(m_surfaces.size()); }
    /// The number of levels for which there is space.
    int getNumberOfAllocatedLevels() const { return static_cast<int>(m_surfaces.capacity()); }
    /// The buffers of a level; the index is not checked.
    IsoData* surface(int i) { return m_surfaces[static_cast<std::size_t>(i)].get(); }
    const IsoData* getSurface(int i) const { return m_surfaces[static_cast<std::size_t>(i)].get(); }

    // Which levels a renderer draws. New levels are shown. Nothing counts as a change, and no index is checked.
    void setSurfaceShown(int i, bool shown) { surface(i)->m_shown = shown; }
    bool isSurfaceShown(int i) const { return getSurface(i)->m_shown; }
    void setSurfaceShownForAll(bool shown);

    /// Sets the texts that label contour lines, one per level. Other texts count as a change of geometry, as do the
    /// two properties below.
    void setLabels(const std::vector<std::string>& labels);
    void setShowLabels(bool show);
    void setLabelColor(const Color& color);
    const std::vector<std::string>& getLabels() const { return m_labels; }
    bool isShowLabels() const { return m_showLabels; }
    const Color& getLabelColor() const { return m_labelColor; }

    /// Sets the values of the legend's stripes. Unless the record had colour data, the texture coordinates of the
    /// current levels are written again, so that 0 is the smallest and 1 the largest of these values; the next fill
    /// writes those of its own range. That counts neither as a change of geometry nor of colour or texture, only as
    /// one of levels.
    void setLegendLevels(const std::vector<double>& levels);
    /// Rises when texture coordinates are written again without a fill.
    int getLevelChangeId() const { return m_levelChangeId.get(); }
    /// The texture coordinate of a value: that of the vertices that have it.
    float getTextureOf(double value) const { return m_valueScale(value); }
    /// Whether the last fill was coloured by colour data.
    bool hasColorData() const { return m_hasColorData; }

    int getNumberOfLegendStripes() const override { return static_cast<int>(m_legendLevels.size()); }
    void getLegendStripeValues(std::vector<double>& values) const override { values = m_legendLevels; }

protected:
    SceneGraphPlotIso(PlotType type, int id);

    /// What the fills of all kinds read first.
    struct Levels {
        /// @param numAxes axes of the box
        Levels(const vxdatacarrier::PostDataView& record, int numAxes);

        /// The level of a group: the first value of its iso level data, 0 if it has none.
        double levelOf(int group) const;

        BoundingBox box;
        bool hasColorData;
        ValueScale scale;                             ///< of the colour data, or else of the iso level data
        std::vector<const std::vector<double>*> data; ///< the iso level data of each group
    };

    /// Makes a level for each group with a copy of its iso level data, lets `allocateBuffers` allocate the buffers of
    /// each, and stores what else the fill starts with. If memory runs out, the plot has no levels.
    template <class AllocateBuffers>
    void beginFill(const Levels& levels, AllocateBuffers allocateBuffers)
    {
        try {
            allocate(static_cast<int>(levels.data.size()));
            for (int group = 0; group < getNumberOfLevels(); ++group) {
                surface(group)->m_levelData = *levels.data[static_cast<std::size_t>(group)];
                allocateBuffers(*surface(group), group);
            }
        } catch (...) {
            m_surfaces.clear();
            throw;
        }
        m_hasColorData = levels.hasColorData;
        m_valueScale = levels.scale;
        setBoundingBox(levels.box);
    }

private:
    bool m_hasColorData = false;
    bool m_showLabels = true;
    Color m_labelColor{0, 0, 0, 255};
    std::vector<boost::shared_ptr<IsoData>> m_surfaces;
    std::vector<double> m_legendLevels;
    std::vector<std::string> m_labels;
    ValueScale m_valueScale{0.0, 0.0};
    ChangeNumber m_levelChangeId;
};

} // namespace vxgraphics3d
