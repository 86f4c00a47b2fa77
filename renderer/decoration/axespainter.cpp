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
#include "renderer/paint/decorationcanvas.h"
#include "renderer/text/titlemarkup.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Width of lines in pixels of the screen.
constexpr float c_lineWidth = 1.0f;
/// What lines between labelled values have of the colour of the others.
constexpr double c_minorPart = 0.35;
/// Opacity of the trace of a grid over the data.
constexpr int c_traceAlpha = 100;
/// Its depth in clip coordinates, behind all faces, so that it can be drawn where there are any.
constexpr float c_traceDepth = 0.9999f;

void append(std::vector<AxisLine>& lines, const std::vector<AxisLine>& more)
{
    lines.insert(lines.end(), more.begin(), more.end());
}

Axes2dInput axes2dInput(const Frame& frame, int width, int height)
{
    return {frame.camera2d(),
            *frame.canvas.getAxisSetupPtr(),
            width,
            height,
            Canvas3dGlobalSettings::getInstance()->getGridbox2dTickPrecision(),
            static_cast<double>(frame.appearance.scale)};
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

/// Draws lines, first the faint ones.
void drawLines(const std::vector<AxisLine>& lines, const Matrixf& toClip, int width, int height, float lineWidth,
               const Color& color, const Color& minorColor, DecorationCanvas& canvas)
{
    for (const bool isMinor : {true, false}) {
        std::vector<LineSegment> segments;
        segments.reserve(lines.size());
        for (const AxisLine& line : lines) {
            if (line.isMinor == isMinor) {
                segments.push_back({line.from, line.to});
            }
        }
        canvas.drawLines(segments, {toClip, width, height, lineWidth}, isMinor ? minorColor : color);
    }
}

/// Lines of flat views are whole pixels wide, so that all have the same profile and sharp borders.
float widthOfLines(const Frame& frame)
{
    const float width = c_lineWidth * frame.appearance.scale;
    const auto pixel = static_cast<float>(frame.appearance.pixel);
    return frame.isFlat() ? std::max(std::round(width / pixel), 1.0f) * pixel : width;
}

/// Moves a line along a side of the picture onto whole pixels, over two of which it would be spread in half its colour:
/// one of odd width to the middles of pixels, one of even width to their borders. Pieces of circles stay together.
/// @param pixel side of a pixel of the finished picture
void snapToPixels(AxisLine& line, float lineWidth, float pixel)
{
    if (line.isArc || (line.from.x != line.to.x && line.from.y != line.to.y)) {
        return;
    }
    const bool isOdd = std::max(std::lround(lineWidth / pixel), 1L) % 2 != 0;
    for (float* coordinate : {&line.from.x, &line.from.y, &line.to.x, &line.to.y}) {
        const float place = *coordinate / pixel;
        *coordinate = pixel * (isOdd ? std::floor(place) + 0.5f : std::round(place));
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
      m_lineWidth(widthOfLines(frame)),
      m_appearance(frame.appearance),
      m_gridColor(frame.appearance.visible(frame.canvas.getGridBoxSettingsPtr()->getGridColor())),
      m_labelColor(frame.appearance.readable(frame.canvas.getGridBoxSettingsPtr()->getLabelColor()))
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
            snapToPixels(line, m_lineWidth, static_cast<float>(m_appearance.pixel));
        }
    }
}

void AxesPainter::drawBehind(DecorationCanvas& canvas) const
{
    drawLines(m_behind, toClip(), m_view.area.width, m_view.area.height, m_lineWidth, m_gridColor,
              m_appearance.faintGrid(m_gridColor, c_minorPart), canvas);
}

void AxesPainter::drawOver(const LinePainter& painter) const
{
    if (!m_view.isFlat) {
        return;
    }
    std::vector<LineSegment> segments;
    for (const AxisLine& line : m_behind) {
        if (!line.isMinor) {
            segments.push_back({line.from, line.to});
        }
    }
    Matrixf farthest = toClip();
    farthest.translate(0.0f, 0.0f, c_traceDepth);
    Color trace = m_gridColor;
    trace.alpha = c_traceAlpha;
    painter.drawShaded(segments, {farthest, m_view.area.width, m_view.area.height, m_lineWidth}, trace);
}

Matrixf AxesPainter::toClip() const
{
    if (!m_view.isFlat) {
        return m_view.projection * m_view.sceneToEye;
    }
    // The lines of a flat view count their pixels from the corner of the picture, the viewport from that of the area.
    Matrixf toClip = pixelsToClip(m_view.area.width, m_view.area.height);
    return toClip.translate(-static_cast<float>(m_view.area.x), -static_cast<float>(m_view.area.y), 0.0f);
}

void AxesPainter::drawAround(DecorationCanvas& canvas) const
{
    drawLines(m_around, pixelsToClip(m_width, m_height), m_width, m_height, m_lineWidth, m_labelColor, m_labelColor,
              canvas);
}

void AxesPainter::drawLabels(DecorationCanvas& canvas, const AxisFonts& fonts) const
{
    for (const AxisLabel& label : m_labels) {
        FontSet& font = label.isTitle ? fonts.titles : fonts.ticks;
        const TextLayout text =
            layoutTitle(parseTitle(vxbase::UString(label.markup)), font, {label.room, static_cast<float>(m_height)});
        const float width = label.isVertical ? text.height : text.width;
        const float height = label.isVertical ? text.width : text.height;
        const float left = label.x - label.alignX * width;
        const float top = label.y - label.alignY * height;
        const TextColors colors = {m_labelColor,
                                   m_appearance.haloOf(m_labelColor, static_cast<double>(top) / m_height)};
        if (label.isVertical) {
            canvas.drawTextUpwards(text, font, left, top + height, colors);
        } else {
            canvas.drawText(text, font, left, top, colors);
        }
    }
}

} // namespace vxrenderer
