#include "graphics3d/plots/vector/scenegraphplotarrow.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/vector/vectorfield.h"

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

SceneGraphPlotArrow::SceneGraphPlotArrow(PlotType type, int id) : SceneGraphSingleTexturePlot(type, id) {}

SceneGraphPlotArrow::~SceneGraphPlotArrow() = default;

void SceneGraphPlotArrow::setLogRange(float range)
{
    if (range != m_logRange) {
        markGeometryChanged();
        m_logRange = range;
    }
}

void SceneGraphPlotArrow::setCommonArrowScale(float scale)
{
    if (scale != m_description.m_commonArrowScale) {
        markGeometryChanged();
        m_description.m_commonArrowScale = scale;
    }
}

void SceneGraphPlotArrow::setShaftRadius(float radius)
{
    if (radius != m_description.m_shaftRadius) {
        markArrowsChanged();
        m_description.m_shaftRadius = radius;
    }
}

void SceneGraphPlotArrow::setHeadLength(float length)
{
    if (length != m_description.m_headLength) {
        markArrowsChanged();
        m_description.m_headLength = length;
    }
}

void SceneGraphPlotArrow::setHeadRadius(float radius)
{
    if (radius != m_description.m_headRadius) {
        markArrowsChanged();
        m_description.m_headRadius = radius;
    }
}

void SceneGraphPlotArrow::setAnchorPoint(AnchorPoint anchorPoint)
{
    if (anchorPoint == m_description.m_anchorPoint) {
        return;
    }
    m_description.m_anchorPoint = anchorPoint;
    if (m_description.m_scalingType == ScalingType::proportionalEqualHeads) {
        markGeometryChanged();
    } else {
        markArrowsChanged();
    }
}

void SceneGraphPlotArrow::setScalingType(ScalingType type)
{
    m_description.m_scalingType = type;
    markGeometryChanged();
}

void SceneGraphPlotArrow::computeBoundingBox(const PostDataObject& data, double scale)
{
    const PostDataView record(data, plotClassName(getType()));
    if (record.numPoints(0) == 0) {
        return;
    }
    if (const auto box = VectorField::ofAnyAxes(record).box(scale)) {
        setBoundingBox(*box);
    }
}

void SceneGraphPlotArrow::noteReset()
{
    markGeometryChanged();
    m_capacity = 0;
    m_numArrows = 0;
    markArrowsChanged();
    m_maxLength = 0.0f;
}

void SceneGraphPlotArrow::noteAllocated(int capacity)
{
    m_numArrows = 0;
    m_capacity = capacity;
}

void SceneGraphPlotArrow::noteAllAppended(float maxLength)
{
    m_numArrows = m_capacity;
    m_maxLength = maxLength;
}

} // namespace vxgraphics3d
