#pragma once

#include "graphics3d/parts/pointcollection.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"

#include <string>
#include <vector>

namespace vxgraphics3d {

/// Texts at points. The points come from a record, the texts from `setLabels`; they belong together by their indices,
/// and their numbers are not compared: a renderer draws as many as there are of both.
class VX_API SceneGraphPlotPointLabel : public SceneGraphSingleTexturePlot {
public:
    /// @param dimension 2 for points in the plane; any other number for points in space
    SceneGraphPlotPointLabel(int dimension, int id);
    ~SceneGraphPlotPointLabel() override;

    /// Sets the texts, in UTF-8. Other texts than before count a change of geometry.
    void setLabels(const std::vector<std::string>& labels);

    /// Drops the points and keeps the texts. Counts no change: a renderer checks isValid().
    void resetPlotData() override;
    /// Whether there are points.
    bool isValid() const override;

    /// Does not change.
    int getLabelChangeId() const { return m_labelChangeId.get(); }
    const std::vector<std::string>& getLabels() const { return m_labels; }
    const PointCollection& getLabelPoints() const { return m_labelPoints; }

protected:
    /// Reads the points of group 0, in the plane if the record is of the kind `PointLabel2d`.
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);

    ChangeNumber m_labelChangeId;
    std::vector<std::string> m_labels;
    PointCollection m_labelPoints;
};

} // namespace vxgraphics3d
