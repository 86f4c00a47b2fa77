#include "renderer/decoration/axespainter.h"

#include "base/ustring.h"
#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/axes/axes2d.h"
#include "renderer/axes/gridbox.h"
#include "renderer/axes/labelplacer.h"
#include "renderer/frame/frame.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/text/titlemarkup.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Width of lines in pixels of the screen.
constexpr float c_lineWidth = 1.0f;
/// What is left of the opacity of lines between labelled values.
constexpr int c_minorAlpha = 90;
/// Opacity of the trace of a grid over the data.
constexpr int c_traceAlpha = 130;

void append(std::vector<AxisLine>& lines, const std::vector<AxisLine>& more)
{
    lines.insert(lines.end(), more.begin(), more.end());
}

Axes2dInput axes2dInput(const Frame& frame, int width, int height)
{
    return {frame.camera2d(), *frame.canvas.getAxisSetupPtr(), width, height,
            Canvas3dGlobalSettings::getInstance()->getGridbox2dTickPrecision()};
}

GridBoxInput gridBoxInput(const Frame& frame, const BoxedScene& scene, const PixelArea& picture)
{
    const AxisOrientationIndicator& indicator = *frame.canvas.getAxisOrientationIndicatorPtr();
    const auto nameOf = [&](AxisOrientationIndicator::Axis axis) { return plainText(indicator.getLabel(axis)); };
    return {scene.box,
            frame.camera,
            {nameOf(AxisOrientationIndicator::AxisX), nameOf(AxisOrientationIndicator::AxisY),
             nameOf(AxisOrientationIndicator::AxisZ)},
            Canvas3dGlobalSettings::getInstance()->getGridbox3dTickPrecision(),
            {AxisUnits(), AxisUnits(), scene.heightUnits},
            picture};
}

/// Draws lines in one colour, first the faint ones.
void drawLines(const std::vector<AxisLine>& lines, const Matrixf& toClip, int width, int height, float lineWidth,
               const Color& color, const LinePainter& painter)
{
    for (const bool isMinor : {true, false}) {
        std::vector<LineSegment> segments;
        segments.reserve(lines.size());
        for (const AxisLine& line : lines) {
            if (line.isMinor == isMinor) {
                segments.push_back({line.from, line.to});
            }
        }
        Color faint = color;
        faint.alpha = isMinor ? color.alpha * c_minorAlpha / 255 : color.alpha;
        painter.draw(segments, {toClip, width, height, lineWidth}, faint);
    }
}

/// Moves a line along a side of the picture onto whole pixels, over two of which it would be spread in half its colour:
/// one of odd width to the middles of pixels, one of even width to their borders. Pieces of circles stay together.
void snapToPixels(AxisLine& line, float lineWidth)
{
    if (line.isArc || (line.from.x != line.to.x && line.from.y != line.to.y)) {
        return;
    }
    const bool isOdd = std::max(std::lround(lineWidth), 1L) % 2 != 0;
    for (float* coordinate : {&line.from.x, &line.from.y, &line.to.x, &line.to.y}) {
        *coordinate = isOdd ? std::floor(*coordinate) + 0.5f : std::round(*coordinate);
    }
}

} // namespace

SceneArea divideSpace(const Frame& frame, const PixelArea& space, const PixelArea& wide, int width, int height,
                      const AxisFonts& fonts)
{
    if (frame.isFlat() && frame.appearance.showAxes) {
        const PixelArea area = axes2dArea(axes2dInput(frame, width, height), space, fonts.metrics());
        return {area, area, area};
    }
    if (frame.isPolar()) {
        return {centeredSquare(space), centeredSquare(space), centeredSquare(space)};
    }
    // Limits of a flat view follow the shape of its area, unless both axes have one scale.
    const bool isStretched = frame.isFlat() && (frame.camera2d().getCameraMode() != Camera2d::ModeOrdinary ||
                                                !frame.camera2d().isPreserveAspectRatio());
    return {isStretched || space.isEmpty() ? space : wide, space, space};
}

GridBoxLayout layOutGridBox(const Frame& frame, const BoxedScene& scene, const PixelArea& area, const AxisFonts& fonts,
                            const PixelArea& picture)
{
    return layoutGridBox(gridBoxInput(frame, scene, picture), area, fonts.metrics());
}

PixelArea spaceInGridBox(const Frame& frame, const PixelArea& area, const AxisFonts& fonts)
{
    const BoundingBox anyBox;
    const AxisMargins margins = gridBoxMargins(gridBoxInput(frame, {anyBox}, {}), fonts.metrics());
    return {area.x + static_cast<int>(margins.left), area.y + static_cast<int>(margins.top),
            area.width - static_cast<int>(margins.left + margins.right),
            area.height - static_cast<int>(margins.top + margins.bottom)};
}

AxesPainter::AxesPainter(const Frame& frame, const BoxedScene& scene, const View& view, int width, int height,
                         const AxisFonts& fonts)
    : m_width(width),
      m_height(height),
      m_view(view),
      m_scale(frame.appearance.scale),
      m_gridColor(frame.canvas.getGridBoxSettingsPtr()->getGridColor()),
      m_labelColor(frame.appearance.readable(frame.canvas.getGridBoxSettingsPtr()->getLabelColor())),
      m_haloColor(frame.appearance.backdrop.top),
      m_hasHalo(frame.isFlat() && (frame.isPolar() || frame.canvas.getAxisSetupPtr()->isPolar()))
{
    if (view.isFlat) {
        layOutAxes2d(frame, scene.frame, view, fonts);
    } else {
        takeGridBox(layOutGridBox(frame, scene, view.area, fonts, {0, 0, width, height}), frame.appearance.showGrid);
    }
}

void AxesPainter::takeGridBox(GridBoxLayout layout, bool isGridShown)
{
    m_behind = std::move(layout.edges);
    if (isGridShown) {
        m_behind.insert(m_behind.begin(), layout.grid.begin(), layout.grid.end());
    }
    m_around = std::move(layout.ticks);
    append(m_around, layout.minorTicks);
    m_labels = std::move(layout.labels);
}

void AxesPainter::layOutAxes2d(const Frame& frame, const PixelArea& enclosed, const View& view, const AxisFonts& fonts)
{
    Axes2dInput input = axes2dInput(frame, m_width, m_height);
    input.cameraArea = view.area;
    Axes2dLayout layout = layoutAxes2d(input, enclosed, fonts.metrics());
    if (frame.appearance.showGrid) {
        m_behind = std::move(layout.grid);
    }
    m_around = std::move(layout.frame);
    append(m_around, layout.ticks);
    append(m_around, layout.minorTicks);
    m_labels = std::move(layout.labels);
    for (std::vector<AxisLine>* lines : {&m_behind, &m_around}) {
        for (AxisLine& line : *lines) {
            snapToPixels(line, c_lineWidth * m_scale);
        }
    }
}

void AxesPainter::drawBehind(const LinePainter& painter) const
{
    drawInArea(painter, m_gridColor);
}

void AxesPainter::drawOver(const LinePainter& painter) const
{
    if (m_view.isFlat) {
        Color trace = m_gridColor;
        trace.alpha = c_traceAlpha;
        drawInArea(painter, trace);
    }
}

void AxesPainter::drawInArea(const LinePainter& painter, const Color& color) const
{
    Matrixf toClip = m_view.projection * m_view.sceneToEye;
    if (m_view.isFlat) {
        // The lines of a flat view count their pixels from the corner of the picture, the viewport from that of the
        // area.
        toClip = pixelsToClip(m_view.area.width, m_view.area.height);
        toClip.translate(-static_cast<float>(m_view.area.x), -static_cast<float>(m_view.area.y), 0.0f);
    }
    drawLines(m_behind, toClip, m_view.area.width, m_view.area.height, c_lineWidth * m_scale, color, painter);
}

void AxesPainter::drawAround(const LinePainter& painter) const
{
    drawLines(m_around, pixelsToClip(m_width, m_height), m_width, m_height, c_lineWidth * m_scale,
              m_view.isFlat ? m_labelColor : m_gridColor, painter);
}

void AxesPainter::drawLabels(OverlayPainter& painter, const AxisFonts& fonts) const
{
    for (const AxisLabel& label : m_labels) {
        FontSet& font = label.isTitle ? fonts.titles : fonts.ticks;
        const TextLayout text =
            layoutTitle(parseTitle(vxbase::UString(label.markup)), font, {label.room, static_cast<float>(m_height)});
        const float width = label.isVertical ? text.height : text.width;
        const float height = label.isVertical ? text.width : text.height;
        const float left = label.x - label.alignX * width;
        const float top = label.y - label.alignY * height;
        const auto draw = [&](float x, float y, const Color& color) {
            if (label.isVertical) {
                painter.drawTextUpwards(text, font, x, y + height, color);
            } else {
                painter.drawText(text, font, x, y, color);
            }
        };
        for (int aside = -1; m_hasHalo && aside <= 1; ++aside) {
            for (int below = -1; below <= 1; ++below) {
                draw(left + static_cast<float>(aside), top + static_cast<float>(below), m_haloColor);
            }
        }
        draw(left, top, m_labelColor);
    }
}

} // namespace vxrenderer
