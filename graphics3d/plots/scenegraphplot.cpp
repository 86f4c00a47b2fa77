#include "graphics3d/plots/scenegraphplot.h"

#include "base/numeric.h"
#include "datacarrier/postdataview.h"
#include "graphics3d/buffers/vertexbuffertex.h"
#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/foundation/textutil.h"
#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/colour/colortablehandler.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/plots/valuescale.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

/// By the number of the type; no class has the number 5.
constexpr const char* c_typeNames[] = {
    "SceneGraphPlotArrow2d",     "SceneGraphPlotArrow3d",      "SceneGraphPlotContour",
    "SceneGraphPlotPrincipal",   "SceneGraphPlotPrincipal",    "SceneGraphPlot",
    "SceneGraphPlotEdge2d",      "SceneGraphPlotEdge3d",       "SceneGraphPlotGraph",
    "SceneGraphPlotInteractive", "SceneGraphPlotIsoSurface3d", "SceneGraphPlotMesh3d",
    "SceneGraphPlotMesh3d",      "SceneGraphPlotPointLabel",   "SceneGraphPlotPointLabel",
    "SceneGraphPlotPrincipal",   "SceneGraphPlotPrincipal",    "SceneGraphPlotRibbon3d",
    "SceneGraphPlotSlice3d",     "SceneGraphPlotSphere2d",     "SceneGraphPlotSphere3d",
    "SceneGraphPlotSurface2d",   "SceneGraphPlotSurface3d",    "SceneGraphPlotTube2d",
    "SceneGraphPlotTube3d",      "SceneGraphPlotDomain3d"};
static_assert(std::size(c_typeNames) == static_cast<std::size_t>(SceneGraphPlot::PlotType::domain3d) + 1);

/// Written out because std::clamp is undefined for limits that are not numbers, which records may bring.
double clampToRange(double value, double min, double max)
{
    return value < min ? min : value > max ? max : value;
}

/// A channel of 0 to 1 as an integer of 0 to 255; what is not a number counts as 0.
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
    const PostDataView view(data, getTypeName());
    ValueSource source = ValueSource::none;
    double min = 0.0;
    double max = 1.0;
    if (view.hasRole(PostDataObject::ColorData) || view.hasRole(PostDataObject::IsoLevelData)) {
        source = view.hasRole(PostDataObject::ColorData) ? ValueSource::colorData : ValueSource::isoData;
        const int role = source == ValueSource::colorData ? PostDataObject::ColorData : PostDataObject::IsoLevelData;
        min = view.dataMin(role);
        max = view.dataMax(role);
    }
    checkData(view);

    m_valueSource = source;
    m_valueMin = min;
    m_valueMax = max;
    if (vxbase::vxIsNaNorInf(m_valueMin)) {
        logError("Plot min value is not finite.");
    }
    if (vxbase::vxIsNaNorInf(m_valueMax)) {
        logError("Plot max value is not finite.");
    }
    m_constantData = m_valueMin == m_valueMax;
    setLegendLimitsInternal(m_valueMin, m_valueMax);

    m_valueRestrictionMin = m_valueMin;
    m_valueRestrictionMax = m_valueMax;
    m_autoLegendLimits = true;
    m_hasValueRestrictions = false;
    m_restrictionTexMin = 0.0f;
    m_restrictionTexMax = 1.0f;
    m_colorChangeId.raise();
    m_textureChangeId.raise();

    try {
        fillPlotImpl(data);
    } catch (...) {
        // Buffers that had been drawn may be gone: a reader must not go on with its copy.
        markGeometryChanged();
        throw;
    }
    markGeometryChanged();
}

void SceneGraphPlot::checkData(const PostDataView&) const {}

const char* SceneGraphPlot::getTypeName() const
{
    return c_typeNames[static_cast<std::size_t>(m_type)];
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
    double limits[3][2] = {};
    const PostDataObject::DoubleArrays& bounds = PostDataView(data, getTypeName()).bounds(0);
    for (std::size_t axis = 0; axis < std::min<std::size_t>(bounds.size(), 3); ++axis) {
        limits[axis][0] = bounds[axis][0];
        limits[axis][1] = bounds[axis][1];
    }
    setBoundingBox(BoundingBox(limits[0][0], limits[0][1], limits[1][0], limits[1][1], limits[2][0], limits[2][1]));
}

const BoundingBox& SceneGraphPlot::getBoundingBox() const
{
    static const BoundingBox s_empty;
    return m_active ? m_boundingBox : s_empty;
}

void SceneGraphPlot::setLegendLimitsInternal(double min, double max)
{
    m_requestedLegendMin = min;
    m_requestedLegendMax = max;
    if (m_symmetricColorTable) {
        max = std::max(std::fabs(min), std::fabs(max));
        min = -max;
    }
    m_legendMin = min;
    m_legendMax = max;
    if (min == max) {
        m_dataTexMin = m_dataTexMax = m_legendTexMin = m_legendTexMax = 0.5f;
    } else {
        const double scale = 1.0 / (max - min);
        m_dataTexMin = static_cast<float>((m_valueMin - min) * scale);
        m_dataTexMax = m_constantData ? m_dataTexMin : static_cast<float>((m_valueMax - min) * scale);
        m_legendTexMin = 0.0f;
        m_legendTexMax = 1.0f;
    }
    m_autoLegendLimits = false;
    m_textureChangeId.raise();
}

void SceneGraphPlot::setAutoLegendLimits()
{
    m_dataTexMin = m_legendTexMin = m_constantData ? 0.5f : 0.0f;
    m_dataTexMax = m_legendTexMax = m_constantData ? 0.5f : 1.0f;
    m_autoLegendLimits = true;
    m_textureChangeId.raise();
}

void SceneGraphPlot::setValueRestrictions(double min, double max)
{
    m_valueRestrictionMin = std::isnan(min) ? m_valueMin : clampToRange(min, m_valueMin, m_valueMax);
    m_valueRestrictionMax = std::isnan(max) ? m_valueMax : clampToRange(max, m_valueMin, m_valueMax);
    if (!m_hasValueRestrictions) {
        markGeometryChanged();
    }
    m_hasValueRestrictions = true;
    if (m_constantData) {
        // Clamping has moved both limits onto the one value, so only the limits as given tell whether they hold it.
        const bool hidden = max < m_valueMin || min > m_valueMax;
        m_restrictionTexMin = 0.0f;
        m_restrictionTexMax = hidden ? 0.0f : 1.0f;
    } else {
        const double scale = 1.0 / (m_valueMax - m_valueMin);
        m_restrictionTexMin = static_cast<float>((m_valueRestrictionMin - m_valueMin) * scale);
        m_restrictionTexMax = static_cast<float>((m_valueRestrictionMax - m_valueMin) * scale);
    }
    m_textureChangeId.raise();
}

void SceneGraphPlot::resetValueRestrictions()
{
    m_valueRestrictionMin = m_valueMin;
    m_valueRestrictionMax = m_valueMax;
    m_restrictionTexMin = 0.0f;
    m_restrictionTexMax = 1.0f;
    if (m_hasValueRestrictions) {
        markGeometryChanged();
    }
    m_hasValueRestrictions = false;
    if (m_autoLegendLimits) {
        m_legendMin = m_valueMin;
        m_legendMax = m_valueMax;
    }
    m_textureChangeId.raise();
}

void SceneGraphPlot::setSymmetricColorTable(bool symmetric)
{
    if (symmetric == m_symmetricColorTable) {
        return;
    }
    m_symmetricColorTable = symmetric;
    setLegendLimitsInternal(m_requestedLegendMin, m_requestedLegendMax);
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
    // The stored box is taken, not getBoundingBox(): an inactive plot keeps its box and shows it when it comes back.
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

void SceneGraphPlot::computeHeightScale(const PostDataObject& data, double& min, double& max, double& scale) const
{
    const PostDataView view(data, getTypeName());
    min = view.dataMin(0, PostDataObject::HeightData);
    max = view.dataMax(0, PostDataObject::HeightData);
    const double range = std::max(max, 0.0) - std::min(min, 0.0);

    const PostDataObject::DoubleArrays& bounds = view.bounds(1);
    double span = bounds[0][1] - bounds[0][0];
    if (bounds.size() > 1) {
        span = (span + (bounds[1][1] - bounds[1][0])) / 2.0;
    }
    scale = range > 0.0 ? span / range : 1.0;
}

void SceneGraphPlot::allocateVertices(const PostDataObject& data, VertexBufferTex& vertices, int group) const
{
    const PostDataView view(data, getTypeName());
    const PostDataObject::DoubleArrays& coordinates = view.coordinates(group, 1);
    const bool hasColor = view.hasRole(PostDataObject::ColorData);
    const double* values = hasColor ? view.data(group, PostDataObject::ColorData).data() : nullptr;
    const ValueScale scale =
        hasColor ? ValueScale::ofGroup(view, group, PostDataObject::ColorData) : ValueScale(0.0, 0.0);
    const double* x = coordinates[0].data();
    const double* y = coordinates.size() > 1 ? coordinates[1].data() : nullptr;
    const double* z = coordinates.size() == 3 ? coordinates[2].data() : nullptr;

    const int numPoints = view.numPoints(group);
    vertices.allocate(numPoints);
    VertexTex* out = vertices.appendUnwritten(numPoints);
    for (std::size_t i = 0; i < coordinates[0].size(); ++i) {
        out[i] = {static_cast<float>(x[i]), y != nullptr ? static_cast<float>(y[i]) : 0.0f,
                  z != nullptr ? static_cast<float>(z[i]) : 0.0f, values != nullptr ? scale(values[i]) : 0.0f, 0.0f};
    }
}

} // namespace vxgraphics3d
