#pragma once

#include "base/export.h"
#include "base/ustring.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/textformat.h"
#include "graphics3d/plots/colorscale.h"
#include "graphics3d/plots/plottype.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <functional>
#include <string>
#include <vector>

namespace vxdatacarrier {
class PostDataObject;
class PostDataView;
} // namespace vxdatacarrier

namespace vxgraphics3d {

class ColorTable;
class SceneGraphPlotGroup;
class TextureHandleStack;

/// A plot: one record of post-processing results, converted to vertex and index buffers with a colour scale and a
/// legend.
///
/// Vertices carry a texture coordinate that a fill computes once from the value range of the data. Legend limits, value
/// restriction, symmetry and direction of the colour table are a few numbers, separate from the buffers, which a
/// renderer combines when it samples the colour table: changing them rebuilds no buffer.
///
/// A plot is not a node of the scene. It belongs to at most one SceneGraphPlotGroup, which provides the handles for its
/// textures; it is shared with its Java peers and destroyed with its last owner. It may be filled any number of times.
/// Three change numbers tell a renderer what changed: geometry (buffers), colour (uniform colour, colour table, its
/// direction) and texture (the numbers of legend and restriction). Compare them for equality only.
class VX_API SceneGraphPlot : public boost::enable_shared_from_this<SceneGraphPlot> {
public:
    using PlotType = vxgraphics3d::PlotType;

    /// Which data determined the value range of a fill.
    enum class ValueSource : int { none = 0, colorData = 1, isoData = 2 };

    using PeerRoot = SceneGraphPlot;

    SceneGraphPlot(const SceneGraphPlot&) = delete;
    SceneGraphPlot& operator=(const SceneGraphPlot&) = delete;

    // Content

    /// Builds the buffers from a record, of which nothing is kept. The value range becomes that of the colour data, or
    /// else of the iso level data, or else 0 to 1; legend limits follow it and a restriction is removed, while colours,
    /// symmetry, height scale and plane offset are kept. The box becomes that of the record, without the present height
    /// scale and plane offset.
    /// @throws std::invalid_argument if the record lacks something that the plot reads; then nothing has changed
    /// @throws std::bad_alloc if memory runs out; then either nothing has changed, or the plot has lost its buffers,
    ///         which counts as a change of geometry, and keeps the value range, legend limits and colours of the new
    ///         record without restriction. In both cases it can be used and filled again.
    void fillPlot(const vxdatacarrier::PostDataObject& data);

    /// Stores the box, in scene units, and updates the box of the plot group; an equal box changes nothing.
    void setBoundingBox(const BoundingBox& box);
    /// Stores the box of a record's bounds; an axis that the bounds lack ranges from 0 to 0.
    void setBoundingBox(const vxdatacarrier::PostDataObject& data);
    /// The box while the plot is active, otherwise an empty one.
    const BoundingBox& getBoundingBox() const;
    /// The box that the plot keeps, active or not.
    const BoundingBox& getStoredBoundingBox() const { return m_boundingBox; }

    // Legend and value restriction

    // These follow the rules of ColorScale.
    void setLegendLimits(double min, double max) { setLegendLimitsInternal(min, max); }
    void setLegendLimitsInternal(double min, double max);
    void setAutoLegendLimits();
    void setValueRestrictions(double min, double max);
    void resetValueRestrictions();

    /// Whether the legend's limits are symmetric about 0.
    void setSymmetricColorTable(bool symmetric);
    /// Whether the colour table is reversed.
    void setReverseColorTable(bool reverse);
    /// Whether the plot's legend is shown. Does not count as a change.
    void setShowLegend(bool show) { m_showLegend = show; }

    // Colour

    /// Uses the colour table with that name; if there is none yet, it is created from the rows first. So a name is
    /// bound to its first colours for the whole process: other colours need another name, or ColorTableHandler, which
    /// can update and delete tables.
    /// @param colors one row per colour: red, green, blue from 0 to 1 and, if present, the relative width of the colour
    ///               (1 by default); ignored if the name is known
    /// @param continuous whether a new table interpolates between its colours
    /// @return whether the plot has the table
    /// @throws std::invalid_argument if a new table has no rows, a row shorter than 3, or no width at all; then nothing
    ///         is registered
    bool setColorTable(const std::string& name, const std::vector<std::vector<double>>& colors, bool continuous);
    /// The colour table, or null for a plot of one uniform colour.
    boost::shared_ptr<ColorTable> getColorTable() const { return m_colorTable.lock(); }
    /// The name of the colour table; empty without one.
    const std::string& getColorTableName() const;
    bool hasColorTable() const { return !m_colorTable.expired(); }

    /// Gives the plot one uniform colour instead of its colour table.
    void setColor(const Color& color);
    /// Sets the specular exponent, clamped to 1 to 128.
    void setShininess(float shininess);

    // Height, title, visibility

    /// Sets the factor by which a renderer stretches the plot in z about its plane; a factor not above 0 is ignored.
    /// The box changes, but no buffer and no change number.
    void setHeightScale(float scale);
    /// Sets how far, in scene units, a renderer moves the plot along z. The box changes, but no buffer and no change
    /// number.
    void setPlotPlaneOffset(float offset);

    /// Sets the plot's part of the group's title; plain text is escaped.
    void setTitle(TextFormat format, const vxbase::UString& text);

    /// An inactive plot is not drawn and counts as empty in its group's box, title and legends.
    void setActive(bool active);

    // Plot group; called by the group

    /// Takes the plot's texture handles from the group's stack and stores the group.
    /// @return false if the stack ran out: the plot then has no new group
    bool setPlotGroup(boost::shared_ptr<SceneGraphPlotGroup> group, TextureHandleStack& stack);
    /// Returns the texture handles and drops the group.
    void removeFromPlotGroup(TextureHandleStack& stack);

    // Read access

    int getGeometryChangeId() const { return m_geometryChangeId.get(); }
    int getColorChangeId() const { return m_colorChangeId.get(); }
    int getTextureChangeId() const { return m_textureChangeId.get(); }
    PlotType getType() const { return m_type; }
    /// The number given by the creator, which identifies the plot in its group.
    int getId() const { return m_id; }
    double getValueMin() const { return m_colorScale.getValueMin(); }
    double getValueMax() const { return m_colorScale.getValueMax(); }
    float getDataTexMin() const { return m_colorScale.getDataTexMin(); }
    float getDataTexMax() const { return m_colorScale.getDataTexMax(); }
    bool isConstantData() const { return m_colorScale.isConstant(); }
    double getRequestedLegendMin() const { return m_colorScale.getRequestedLegendMin(); }
    double getRequestedLegendMax() const { return m_colorScale.getRequestedLegendMax(); }
    double getLegendMin() const { return m_colorScale.getLegendMin(); }
    double getLegendMax() const { return m_colorScale.getLegendMax(); }
    bool isAutoLegendLimits() const { return m_colorScale.hasAutoLegendLimits(); }
    float getLegendTexMin() const { return m_colorScale.getLegendTexMin(); }
    float getLegendTexMax() const { return m_colorScale.getLegendTexMax(); }
    bool hasValueRestrictions() const { return m_colorScale.hasRestriction(); }
    double getValueRestrictionMin() const { return m_colorScale.getRestrictionMin(); }
    double getValueRestrictionMax() const { return m_colorScale.getRestrictionMax(); }
    float getRestrictionTexMin() const { return m_colorScale.getRestrictionTexMin(); }
    float getRestrictionTexMax() const { return m_colorScale.getRestrictionTexMax(); }
    /// Whether the last fill raised a two-dimensional plot by height data.
    bool hasHeightData() const { return m_hasHeightData; }
    float getHeightScale() const { return m_heightScale; }
    float getPlotPlaneOffset() const { return m_plotPlaneOffset; }
    /// The plot's group, or null.
    boost::shared_ptr<SceneGraphPlotGroup> getPlotGroup() const { return m_plotGroup.lock(); }
    bool isActive() const { return m_active; }
    TextFormat getTitleFormat() const { return m_titleFormat; }
    const vxbase::UString& getTitle() const { return m_title; }
    const Color& getColor() const { return m_color; }
    bool isShowLegend() const { return m_showLegend; }
    bool isReverseColorTable() const { return m_reverseColorTable; }
    bool isSymmetricColorTable() const { return m_colorScale.isSymmetric(); }
    ValueSource getValueSource() const { return m_valueSource; }
    float getShininess() const { return m_shininess; }

    // What each kind of plot implements

    virtual ~SceneGraphPlot();
    /// Frees the buffers. Value range, legend and colours are kept.
    virtual void resetPlotData() = 0;
    /// Whether there is something to draw.
    virtual bool isValid() const = 0;
    /// The renderer's handle for colour table texture `index` of the plot; -1 while the plot has none.
    virtual int getColorTableTextureHandle(int index) const = 0;

protected:
    SceneGraphPlot(PlotType type, int id);

    /// Builds the buffers from the data fetched before.
    using Fill = std::function<void()>;

    /// Fetches everything that a fill reads, as one struct whose constructor takes the view, so that an incomplete
    /// record is refused with std::invalid_argument before anything has changed. The fill it returns holds that struct
    /// and does not access the record otherwise; it runs once, while the record lives. It allocates all buffers first,
    /// so that a failure leaves none of them half filled.
    virtual Fill prepareFill(const vxdatacarrier::PostDataView& record) = 0;
    /// Takes the handles that the plot needs; false if the stack runs out.
    virtual bool setTextureHandles(TextureHandleStack& stack) = 0;
    virtual void removeTextureHandles(TextureHandleStack& stack) = 0;

    // Helpers for fills

    void markGeometryChanged() { m_geometryChangeId.raise(); }
    void markColorChanged() { m_colorChangeId.raise(); }
    void setHasHeightData(bool hasHeightData) { m_hasHeightData = hasHeightData; }

private:
    ChangeNumber m_geometryChangeId;
    ChangeNumber m_colorChangeId;
    ChangeNumber m_textureChangeId;
    PlotType m_type;
    int m_id;
    ColorScale m_colorScale;
    bool m_hasHeightData = false;
    float m_heightScale = 1.0f;
    float m_plotPlaneOffset = 0.0f;
    boost::weak_ptr<SceneGraphPlotGroup> m_plotGroup;
    bool m_active = true;
    TextFormat m_titleFormat = TextFormat::plain;
    vxbase::UString m_title;
    boost::weak_ptr<ColorTable> m_colorTable;
    Color m_color{255, 255, 255, 255};
    bool m_showLegend = true;
    bool m_reverseColorTable = false;
    ValueSource m_valueSource = ValueSource::none;
    float m_shininess = 64.0f;
    BoundingBox m_boundingBox;
};

} // namespace vxgraphics3d
