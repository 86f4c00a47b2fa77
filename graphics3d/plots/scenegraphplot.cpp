#include "graphics3d/plots/scenegraphplot.h"

#include "base/numeric.h"
#include "datacarrier/postdataview.h"
#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/foundation/textutil.h"
#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/colour/colortablehandler.h"
#include "graphics3d/plots/plotinput.h"
#include "graphics3d/plots/scenegraphplotgroup.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

using vxdatacarrier::c_colorData;
using vxdatacarrier::c_isoLevelData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataRole;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

/// A channel from 0 to 1 as an integer from 0 to 255; NaN counts as 0.
int toChannel(double value)
{
    const double scaled = std::floor(value * 255.0 + 0.5);
    return scaled > 0.0 ? static_cast<int>(std::min(scaled, 255.0)) : 0;
}

ColorTable::Colors toColors(const std::string& name, const std::vector<std::vector<double>>& rows)
{
    if (rows.empty()) {
        throw std::invalid_argument("The new color table \"" + name + "\" has no colors.");
    }
    ColorTable::Colors colors;
    colors.reserve(rows.size());
    for (const std::vector<double>& row : rows) {
        if (row.size() < 3) {
            throw std::invalid_argument("Row " + std::to_string(colors.size()) + " of the new color table \"" + name +
                                        "\" has fewer than 3 values.");
        }
        const Color color{toChannel(row[0]), toChannel(row[1]), toChannel(row[2]), 255};
        colors.emplace_back(color, row.size() > 3 ? row[3] : 1.0);
    }
    return colors;
}

} // namespace

SceneGraphPlot::SceneGraphPlot(PlotType type, int id) : m_type(type), m_id(id)
{
    logInfo("Created SceneGraphPlot %d", m_id);
}

SceneGraphPlot::~SceneGraphPlot()
{
    logInfo("Destroyed SceneGraphPlot %d", m_id);
}

void SceneGraphPlot::fillPlot(const PostDataObject& data)
{
    const PostDataView record(data, plotClassName(m_type));
    ValueSource source = ValueSource::none;
    double min = 0.0;
    double max = 1.0;
    if (record.hasRole(c_colorData) || record.hasRole(c_isoLevelData)) {
        source = record.hasRole(c_colorData) ? ValueSource::colorData : ValueSource::isoData;
        const PostDataRole& role = source == ValueSource::colorData ? c_colorData : c_isoLevelData;
        min = record.dataMin(role);
        max = record.dataMax(role);
    }
    const Fill fill = prepareFill(record);

    m_valueSource = source;
    if (vxbase::vxIsNaNorInf(min)) {
        logError("Plot min value is not finite.");
    }
    if (vxbase::vxIsNaNorInf(max)) {
        logError("Plot max value is not finite.");
    }
    m_colorScale.setValues(min, max);
    m_textureChangeId.raise();
    m_colorChangeId.raise();
    m_textureChangeId.raise();

    try {
        fill();
    } catch (...) {
        // Buffers that were already drawn may be gone: readers must not keep using their copies.
        markGeometryChanged();
        throw;
    }
    markGeometryChanged();
}

void SceneGraphPlot::setBoundingBox(const BoundingBox& box)
{
    if (box == m_boundingBox) {
        return;
    }
    m_boundingBox = box;
    if (const auto group = m_plotGroup.lock()) {
        group->calculateBoundingBox();
    }
}

void SceneGraphPlot::setBoundingBox(const PostDataObject& data)
{
    setBoundingBox(boxOf(PostDataView(data, plotClassName(m_type)).bounds(0), 3));
}

const BoundingBox& SceneGraphPlot::getBoundingBox() const
{
    static const BoundingBox s_empty;
    return m_active ? m_boundingBox : s_empty;
}

void SceneGraphPlot::setLegendLimitsInternal(double min, double max)
{
    m_colorScale.setLegendLimits(min, max);
    m_textureChangeId.raise();
}

void SceneGraphPlot::setAutoLegendLimits()
{
    m_colorScale.setAutoLegendLimits();
    m_textureChangeId.raise();
}

void SceneGraphPlot::setValueRestrictions(double min, double max)
{
    if (!m_colorScale.hasRestriction()) {
        markGeometryChanged();
    }
    m_colorScale.setRestriction(min, max);
    m_textureChangeId.raise();
}

void SceneGraphPlot::resetValueRestrictions()
{
    if (m_colorScale.hasRestriction()) {
        markGeometryChanged();
    }
    m_colorScale.resetRestriction();
    m_textureChangeId.raise();
}

void SceneGraphPlot::setSymmetricColorTable(bool symmetric)
{
    if (symmetric == m_colorScale.isSymmetric()) {
        return;
    }
    m_colorScale.setSymmetric(symmetric);
    m_textureChangeId.raise();
    m_colorChangeId.raise();
}

void SceneGraphPlot::setReverseColorTable(bool reverse)
{
    if (reverse == m_reverseColorTable) {
        return;
    }
    m_reverseColorTable = reverse;
    m_colorChangeId.raise();
}

bool SceneGraphPlot::setColorTable(const std::string& name, const std::vector<std::vector<double>>& colors,
                                   bool continuous)
{
    logInfo("Setting color table to %s for plot %d", name.c_str(), m_id);
    ColorTableHandler* handler = ColorTableHandler::getInstance();
    boost::shared_ptr<ColorTable> table = handler->getColorTable(name);
    if (!table) {
        const ColorTable::Type type = continuous ? ColorTable::Continuous : ColorTable::Discrete;
        if (!handler->addColorTable(name, type, toColors(name, colors))) {
            return false;
        }
        table = handler->getColorTable(name);
    }
    m_colorTable = table;
    m_colorChangeId.raise();
    return true;
}

const std::string& SceneGraphPlot::getColorTableName() const
{
    static const std::string s_none;
    const boost::shared_ptr<ColorTable> table = m_colorTable.lock();
    return table ? table->getName() : s_none;
}

void SceneGraphPlot::setColor(const Color& color)
{
    m_color = color;
    m_colorTable.reset();
    m_colorChangeId.raise();
}

void SceneGraphPlot::setShininess(float shininess)
{
    m_shininess = shininess > 1.0f ? std::min(shininess, 128.0f) : 1.0f;
}

void SceneGraphPlot::setHeightScale(float scale)
{
    if (!(scale > 0.0f) || scale == m_heightScale) {
        return;
    }
    // Uses the stored box, not getBoundingBox(): an inactive plot keeps its box and shows it when it becomes active
    // again.
    const float ratio = scale / m_heightScale;
    BoundingBox box = m_boundingBox;
    const float abovePlane = box.getCenter().z - m_plotPlaneOffset;
    box.scale(1.0f, 1.0f, ratio);
    box.translate(0.0f, 0.0f, (ratio - 1.0f) * abovePlane);
    setBoundingBox(box);
    m_heightScale = scale;
}

void SceneGraphPlot::setPlotPlaneOffset(float offset)
{
    if (offset == m_plotPlaneOffset) {
        return;
    }
    BoundingBox box = m_boundingBox;
    box.translate(0.0f, 0.0f, offset - m_plotPlaneOffset);
    setBoundingBox(box);
    m_plotPlaneOffset = offset;
}

void SceneGraphPlot::setTitle(TextFormat format, const vxbase::UString& text)
{
    m_titleFormat = format;
    if (format == TextFormat::markup) {
        m_title = text;
    } else {
        TextUtil::escapeBracesAndBackslash(text, m_title);
    }
    if (const auto group = m_plotGroup.lock()) {
        group->markTitleChanged();
    }
}

void SceneGraphPlot::setActive(bool active)
{
    if (active == m_active) {
        return;
    }
    m_active = active;
    if (const auto group = m_plotGroup.lock()) {
        if (!m_title.empty()) {
            group->markTitleChanged();
        }
        group->calculateBoundingBox();
    }
}

bool SceneGraphPlot::setPlotGroup(boost::shared_ptr<SceneGraphPlotGroup> group, TextureHandleStack& stack)
{
    if (!setTextureHandles(stack)) {
        return false;
    }
    m_plotGroup = group;
    return true;
}

void SceneGraphPlot::removeFromPlotGroup(TextureHandleStack& stack)
{
    removeTextureHandles(stack);
    m_plotGroup.reset();
}

} // namespace vxgraphics3d
