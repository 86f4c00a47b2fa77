#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"
#include "graphics3d/plots/vector/arrowdescription.h"

namespace vxgraphics3d {

/// Common base of plots that show vectors as arrows.
///
/// Nothing is tessellated: the plot stores one compact record per point, and an `ArrowDescription` that a renderer
/// applies when it draws them. The records are counted by the plot's geometry number, what only affects the shape of
/// arrows by the arrow number.
class VX_API SceneGraphPlotArrow : public SceneGraphSingleTexturePlot {
public:
    using ScalingType = ArrowDescription::ScalingType;
    using AnchorPoint = ArrowDescription::AnchorPoint;

    ~SceneGraphPlotArrow() override;
    /// Whether there are arrows.
    bool isValid() const override { return m_numArrows > 0; }

    // Shape

    /// Sets the ratio of the longest to the shortest arrow that logarithmic scaling shows.
    void setLogRange(float range);
    /// Sets the factor for the length of all arrows. The box changes with the next fill only.
    void setCommonArrowScale(float scale);
    void setShaftRadius(float radius);
    void setHeadLength(float length);
    void setHeadRadius(float radius);
    /// Sets which point of an arrow is at its position. With proportional lengths and equal heads this counts as a
    /// change of geometry, otherwise of the shape.
    void setAnchorPoint(AnchorPoint anchorPoint);
    /// Sets how lengths are mapped; each call counts as a change of geometry.
    void setScalingType(ScalingType type);

    /// Sets the box that includes both ends of the vectors of a record's first group, times `scale`, as if each started
    /// at its point. Without points the box stays as it is. The third axis is included if the record has third
    /// components of vectors.
    /// @throws std::invalid_argument if the record lacks coordinates or vectors
    void computeBoundingBox(const vxdatacarrier::PostDataObject& data, double scale);

    // Read access

    const ArrowDescription& getDescription() const { return m_description; }
    /// Counts changes that only affect the shape of the arrows.
    int getArrowChangeId() const { return m_arrowChangeId.get(); }
    /// The largest stored length.
    float getMaxLength() const { return m_maxLength; }
    float getLogRange() const { return m_logRange; }
    /// The number of records that there is space for.
    int getCapacity() const { return m_capacity; }
    int getNumArrows() const { return m_numArrows; }

protected:
    SceneGraphPlotArrow(PlotType type, int id);

    // For the classes that have the records

    void markArrowsChanged() { m_arrowChangeId.raise(); }
    /// Counts the loss of all records as a change of geometry and of shape.
    void noteReset();
    /// Sets the capacity of a new array, which is empty.
    void noteAllocated(int capacity);
    /// Counts one record as appended and returns its index.
    int noteAppended(float length)
    {
        if (length > m_maxLength) {
            m_maxLength = length;
        }
        return m_numArrows++;
    }
    /// Counts records as appended.
    void noteAllAppended(float maxLength);
    void setMaxLength(float maxLength) { m_maxLength = maxLength; }

private:
    ChangeNumber m_arrowChangeId;
    ArrowDescription m_description;
    float m_maxLength = 0.0f;
    float m_logRange = 1000.0f;
    int m_capacity = 0;
    int m_numArrows = 0;
};

} // namespace vxgraphics3d
