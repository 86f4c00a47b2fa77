#include "renderer/axes/axes2d.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/axissetup.h"
#include "renderer/axes/axisscale.h"
#include "renderer/axes/degreeaxis.h"
#include "renderer/axes/labelplacer.h"
#include "renderer/axes/roundview.h"
#include "renderer/axes/ticks.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::AxisSetup;
using vxgraphics3d::Camera2d;
using vxgraphics3d::Vector3f;

// All in units of the font size.
constexpr float c_tickLength = 0.4f;
constexpr float c_minorTickLength = 0.2f;
constexpr double c_minorTickDistance = 0.4;
/// Lines of the grid that are nearer to the frame look like a mistake.
constexpr float c_besideFrame = 0.6f;
/// Steps in which the space for numbers changes.
constexpr float c_labelStep = 1.5f;
constexpr float c_gap = 0.3f;
constexpr float c_labelPadding = 0.6f;
constexpr float c_tickDistanceAlong = 5.0f;
constexpr float c_tickDistanceAcross = 3.0f;
constexpr float c_spokeDistance = 6.0f;
/// In pixels of the screen.
constexpr double c_closestLines = 4.0;

constexpr const char* c_degree = "\xC2\xB0";

bool isPolar(const Axes2dInput& input)
{
    return input.camera.getCameraMode() == Camera2d::ModePolar;
}

/// Whether the axes are polar in a view that has limits in x and y.
bool isRound(const Axes2dInput& input)
{
    return input.setup.isPolar() && input.camera.getCameraMode() == Camera2d::ModeOrdinary;
}

/// How far the parts of the axes reach out from the area, the same for margins and labels.
struct Room {
    /// Of the widest tick label that there may be.
    float labelWidth = 0.0f;
    float labelHeight = 0.0f;
    float lineHeight = 0.0f;
    float em = 0.0f;
    LabelSize xTitle;
    LabelSize yTitle;
    LabelSize symmetryTitle;

    Room(const Axes2dInput& input, const AxisMetrics& metrics) : em(metrics.ticks.fontSize())
    {
        const auto heightOf = [&](const char* markup) { return sizeOfMarkup(markup, metrics.ticks).height; };
        lineHeight = heightOf("0");
        labelHeight = std::max(lineHeight, heightOf("10^{0}"));
        if (isPolar(input) || isRound(input)) {
            labelWidth = sizeOfMarkup(std::string("330") + c_degree, metrics.ticks).width;
        } else {
            labelWidth = std::max(sizeOfMarkup(widestLabel(input.digits), metrics.ticks).width,
                                  sizeOfMarkup(powerText(-88), metrics.ticks).width);
        }
        const auto sizeOf = [&](const vxbase::UString& title, int room) {
            return title.empty() ? LabelSize() : sizeOfMarkup(title.toUtf8(), metrics.titles, static_cast<float>(room));
        };
        xTitle = sizeOf(input.setup.getXAxisTitle(), input.pictureWidth);
        yTitle = sizeOf(input.setup.getYAxisTitle(), input.pictureHeight);
        symmetryTitle = sizeOf(input.setup.getSymmetryAxisTitle(), input.pictureWidth);
    }

    /// From the area to its tick labels.
    float toLabels() const { return (c_tickLength + c_gap) * em; }
    /// The same downwards: labels below must pass under a label at the lower end of the left axis.
    float downToLabels() const { return std::max(toLabels(), 0.5f * labelHeight + 0.1f * em); }
    /// From the area to what is beyond tick labels of a width.
    float besideLabels(float width) const { return toLabels() + width + c_gap * em; }
    float belowLabels() const { return downToLabels() + labelHeight + c_gap * em; }
};

class Layouter {
public:
    Layouter(const Axes2dInput& input, const PixelArea& area, const AxisMetrics& metrics)
        : m_input(input),
          m_area(area),
          m_setup(input.setup),
          m_metrics(metrics),
          m_room(input, metrics),
          m_labels(metrics),
          m_left(static_cast<float>(area.x)),
          m_top(static_cast<float>(area.y)),
          m_right(static_cast<float>(area.x + area.width)),
          m_bottom(static_cast<float>(area.y + area.height))
    {}

    Axes2dLayout layout()
    {
        if (isPolar(m_input)) {
            layoutPolar();
        } else {
            addFrame();
            isRound(m_input) ? layoutRound() : layoutStraight();
        }
        m_layout.labels = m_labels.takeLabels();
        return std::move(m_layout);
    }

    /// Width of the numbers of the upright axis of a view that is not round.
    float widthOfYNumbers() const { return widthOf(ticksOfY(yScale())); }

private:
    static AxisLine line(float x0, float y0, float x1, float y1, bool isMinor = false)
    {
        return {Vector3f(x0, y0, 0.0f), Vector3f(x1, y1, 0.0f), isMinor};
    }

    AxisScale scaleOf(double low, double high, double length, bool isLog, double spacing,
                      const std::vector<double>& extra, float LabelSize::*extent) const
    {
        AxisScale scale;
        scale.low = low;
        scale.high = high;
        scale.length = length;
        scale.isLog = isLog;
        scale.spacing = m_setup.isAutoSpacing() ? 0.0 : spacing;
        scale.extra = extra;
        scale.digits = m_input.digits;
        scale.tickDistance =
            static_cast<double>((extent == &LabelSize::width ? c_tickDistanceAlong : c_tickDistanceAcross) * m_room.em);
        scale.closestLines = c_closestLines * m_input.pixel;
        scale.labelLength = [this, extent](const std::string& markup) {
            return static_cast<double>(sizeOfMarkup(markup, m_metrics.ticks).*extent + c_labelPadding * m_room.em);
        };
        return scale;
    }

    /// Takes a label that lies within the picture.
    void place(const AxisLabel& label)
    {
        const LabelRect rect = rectOf(label, m_metrics);
        if (rect.left >= 0.0f && rect.top >= 0.0f && rect.right <= static_cast<float>(m_input.pictureWidth) &&
            rect.bottom <= static_cast<float>(m_input.pictureHeight)) {
            m_labels.place(label);
        }
    }

    /// Takes a title, moved into the picture.
    void placeTitle(AxisLabel label)
    {
        const LabelRect rect = rectOf(label, m_metrics);
        const auto into = [](float low, float high, float end) { return std::max(std::min(0.0f, end - high), -low); };
        label.isTitle = true;
        label.x += into(rect.left, rect.right, static_cast<float>(m_input.pictureWidth));
        label.y += into(rect.top, rect.bottom, static_cast<float>(m_input.pictureHeight));
        m_labels.place(label);
    }

    void addFrame()
    {
        m_layout.frame = {line(m_left, m_top, m_right, m_top), line(m_right, m_top, m_right, m_bottom),
                          line(m_right, m_bottom, m_left, m_bottom), line(m_left, m_bottom, m_left, m_top)};
    }

    static double toDouble(float value) { return static_cast<double>(value); }

    /// A position within the limits of the camera.
    /// @param pixel counted from the low limit
    static double limitAt(int pixel, int size, float low, float high)
    {
        return pixel == 0      ? toDouble(low)
               : pixel == size ? toDouble(high)
                               : toDouble(low) + (toDouble(high) - toDouble(low)) * pixel / size;
    }

    const PixelArea& cameraArea() const { return m_input.cameraArea.isEmpty() ? m_area : m_input.cameraArea; }

    double limitX(int pixel) const
    {
        return limitAt(pixel - cameraArea().x, cameraArea().width, m_input.camera.getActualMinX(),
                       m_input.camera.getActualMaxX());
    }
    /// Rows count from the top.
    double limitY(int pixel) const
    {
        return limitAt(cameraArea().y + cameraArea().height - pixel, cameraArea().height,
                       m_input.camera.getActualMinY(), m_input.camera.getActualMaxY());
    }

    AxisScale xScale() const
    {
        AxisScale scale =
            scaleOf(limitX(m_area.x), limitX(m_area.x + m_area.width), toDouble(m_right - m_left),
                    m_setup.getXAxisLog(), m_setup.getXAxisSpacing(), m_setup.getExtraX(), &LabelSize::width);
        scale.steps = stepsOf(m_setup.getXAxisTitle());
        return scale;
    }

    AxisScale yScale() const
    {
        AxisScale scale =
            scaleOf(limitY(m_area.y + m_area.height), limitY(m_area.y), toDouble(m_bottom - m_top),
                    m_setup.getYAxisLog(), m_setup.getYAxisSpacing(), m_setup.getExtraY(), &LabelSize::height);
        scale.steps = stepsOf(m_setup.getYAxisTitle());
        return scale;
    }

    /// In the one-dimensional mode the height of the view has no meaning.
    AxisTicks ticksOfY(const AxisScale& y) const
    {
        return m_input.camera.getCameraMode() == Camera2d::ModeOneDimensional ? AxisTicks() : makeAxisTicks(y);
    }

    void layoutStraight()
    {
        const AxisScale x = xScale();
        const AxisScale y = yScale();
        const AxisTicks xTicks = makeAxisTicks(x);
        const AxisTicks yTicks = ticksOfY(y);
        addXTitle(xTicks.exponent);
        addYTitle(yTicks.exponent, m_room.besideLabels(widthOf(yTicks)));
        addSymmetryAxis(x);
        addXTicks(x, xTicks);
        addYTicks(y, yTicks);
    }

    static float fraction(const AxisScale& scale, double position)
    {
        return static_cast<float>(std::clamp((position - scale.low) / (scale.high - scale.low), 0.0, 1.0));
    }

    void addXTicks(const AxisScale& scale, const AxisTicks& ticks)
    {
        const auto at = [&](double position) { return m_left + fraction(scale, position) * (m_right - m_left); };
        const auto tickLine = [&](float x, float length) {
            return line(x, m_bottom, x, m_bottom + length * m_room.em);
        };
        for (const AxisTick& tick : ticks.ticks) {
            const float x = at(tick.position);
            if (isInFrame(x, m_left, m_right)) {
                m_layout.grid.push_back(line(x, m_bottom, x, m_top, tick.isMinor));
            }
            if (!tick.label.empty()) {
                m_layout.ticks.push_back(tickLine(x, c_tickLength));
                place({.markup = tick.label, .x = x, .y = m_bottom + m_room.downToLabels(), .alignY = 0.0f});
            }
        }
        for (const double position : minorPositions(scale, ticks)) {
            m_layout.minorTicks.push_back(tickLine(at(position), c_minorTickLength));
        }
    }

    /// Whether a line of the grid is clear of the sides of the frame.
    bool isInFrame(float position, float low, float high) const
    {
        const float beside = c_besideFrame * m_room.em;
        return position - low >= beside && high - position >= beside;
    }

    /// Where a scale has short ticks: between those of a linear one, and where a number has no space.
    std::vector<double> minorPositions(const AxisScale& scale, const AxisTicks& ticks) const
    {
        std::vector<double> positions;
        // Between those of the extra positions as well there are steps; the smallest is that of the scale.
        double step = HUGE_VAL;
        double first = 0.0;
        for (std::size_t i = 0; i < ticks.ticks.size(); ++i) {
            if (ticks.ticks[i].label.empty()) {
                positions.push_back(ticks.ticks[i].position);
            }
            if (i > 0 && ticks.ticks[i].position - ticks.ticks[i - 1].position < step) {
                step = ticks.ticks[i].position - ticks.ticks[i - 1].position;
                first = ticks.ticks[i].position;
            }
        }
        if (!scale.isLog && scale.extra.empty() && ticks.ticks.size() > 1) {
            const double closest =
                c_minorTickDistance * static_cast<double>(m_room.em) / scale.length * (scale.high - scale.low);
            for (const double value : makeMinorValues(scale.low, scale.high, first, step, closest, scale.steps)) {
                positions.push_back(value);
            }
        }
        return positions;
    }

    void addYTicks(const AxisScale& scale, const AxisTicks& ticks)
    {
        const auto at = [&](double position) { return m_bottom - fraction(scale, position) * (m_bottom - m_top); };
        const auto tickLine = [&](float y, float length) { return line(m_left, y, m_left - length * m_room.em, y); };
        for (const AxisTick& tick : ticks.ticks) {
            const float y = at(tick.position);
            if (isInFrame(y, m_top, m_bottom)) {
                m_layout.grid.push_back(line(m_left, y, m_right, y, tick.isMinor));
            }
            if (!tick.label.empty()) {
                m_layout.ticks.push_back(tickLine(y, c_tickLength));
                place({.markup = tick.label, .x = m_left - m_room.toLabels(), .y = y, .alignX = 1.0f});
            }
        }
        for (const double position : minorPositions(scale, ticks)) {
            m_layout.minorTicks.push_back(tickLine(at(position), c_minorTickLength));
        }
    }

    float widthOf(const AxisTicks& ticks) const
    {
        float width = 0.0f;
        for (const AxisTick& tick : ticks.ticks) {
            width = tick.label.empty() ? width : std::max(width, sizeOfMarkup(tick.label, m_metrics.ticks).width);
        }
        return width;
    }

    // Titles have the power of ten of their axis; a power without a title is at the end of the axis.

    void addXTitle(int xExponent)
    {
        const float below = m_bottom + m_room.belowLabels();
        if (!m_setup.getXAxisTitle().empty()) {
            placeTitle({.markup = withPower(m_setup.getXAxisTitle(), xExponent),
                        .x = centerX(),
                        .y = below,
                        .alignY = 0.0f,
                        .room = static_cast<float>(m_input.pictureWidth)});
        } else if (xExponent != 0) {
            placeTitle({.markup = powerOf(xExponent), .x = m_right, .y = below, .alignX = 1.0f, .alignY = 0.0f});
        }
    }

    /// @param distance from the area to the title, which is next to the numbers
    void addYTitle(int yExponent, float distance)
    {
        if (!m_setup.getYAxisTitle().empty()) {
            placeTitle({.markup = withPower(m_setup.getYAxisTitle(), yExponent),
                        .x = m_left - distance,
                        .y = centerY(),
                        .alignX = 1.0f,
                        .isVertical = true,
                        .room = static_cast<float>(m_input.pictureHeight)});
        } else if (yExponent != 0) {
            placeTitle({.markup = powerOf(yExponent), .x = m_left, .y = above(), .alignX = 0.0f, .alignY = 1.0f});
            m_powerEnd = m_left + sizeOfMarkup(powerOf(yExponent), m_metrics.titles).width;
        }
    }

    /// The title of radii whose numbers are at the right of an upright line: at its left.
    void addTitleOfRadii(int exponent, float x, float top, float bottom)
    {
        if (m_setup.getYAxisTitle().empty()) {
            addYTitle(exponent, 0.0f);
            return;
        }
        placeTitle({.markup = withPower(m_setup.getYAxisTitle(), exponent),
                    .x = x - c_gap * m_room.em,
                    .y = 0.5f * (top + bottom),
                    .alignX = 1.0f,
                    .isVertical = true,
                    .room = bottom - top});
    }

    static std::string powerOf(int exponent) { return "\\times" + powerText(exponent); }

    static std::string withPower(const vxbase::UString& title, int exponent)
    {
        return title.toUtf8() + (exponent == 0 ? "" : " (" + powerOf(exponent) + ")");
    }

    float above() const { return m_top - c_gap * m_room.em; }

    void addSymmetryAxis(const AxisScale& x)
    {
        if (m_setup.getSymmetryAxisTitle().empty() || x.isLog || !(x.low <= 0.0 && x.high >= 0.0 && x.low < x.high)) {
            return;
        }
        const float at = m_left + fraction(x, 0.0) * (m_right - m_left);
        m_layout.frame.push_back(line(at, m_bottom, at, m_top));
        const float start = m_powerEnd + m_room.em;
        const bool isBesidePower = at - 0.5f * m_room.symmetryTitle.width < start;
        placeTitle({.markup = m_setup.getSymmetryAxisTitle().toUtf8(),
                    .x = isBesidePower ? start : at,
                    .y = above(),
                    .alignX = isBesidePower ? 0.0f : 0.5f,
                    .alignY = 1.0f,
                    .room = static_cast<float>(m_input.pictureWidth)});
    }

    // --- the round view

    float centerX() const { return 0.5f * (m_left + m_right); }
    float centerY() const { return 0.5f * (m_top + m_bottom); }

    /// The position at a fraction of the outer radius and an angle in degrees; the radii along x and y differ if the
    /// area is not a square.
    Vector3f at(double part, double degrees) const
    {
        const double angle = degrees * std::numbers::pi / 180.0;
        return {static_cast<double>(centerX()) + part * 0.5 * static_cast<double>(m_right - m_left) * std::cos(angle),
                static_cast<double>(centerY()) - part * 0.5 * static_cast<double>(m_bottom - m_top) * std::sin(angle),
                0.0};
    }

    void layoutPolar()
    {
        const double radius = 0.5 * static_cast<double>(std::min(m_right - m_left, m_bottom - m_top));
        addCircle(m_layout.frame, 1.0, false);
        addSpokes(radius);
        const AxisScale scale =
            scaleOf(static_cast<double>(m_input.camera.getActualPolarMin()),
                    static_cast<double>(m_input.camera.getActualPolarMax()), radius, m_setup.getYAxisLog(),
                    m_setup.getYAxisSpacing(), m_setup.getExtraY(), &LabelSize::height);
        const AxisTicks ticks = makeAxisTicks(scale);
        addXTitle(0);
        addTitleOfRadii(ticks.exponent, centerX(), m_top, centerY());
        for (const AxisTick& tick : ticks.ticks) {
            const auto part = static_cast<double>(fraction(scale, tick.position));
            if (part * radius >= 1.0) {
                addCircle(m_layout.grid, part, tick.isMinor);
            }
            const Vector3f inner = at(part, 90.0);
            place(
                {.markup = tick.label, .x = inner.x + c_gap * m_room.em, .y = inner.y, .alignX = 0.0f, .alignY = 0.0f});
        }
    }

    void addCircle(std::vector<AxisLine>& lines, double part, bool isMinor) const
    {
        const double radius = part * 0.5 * static_cast<double>(std::max(m_right - m_left, m_bottom - m_top));
        // A chord leaves its circle by less than a fifth of a pixel.
        const int corners = std::clamp(static_cast<int>(5.0 * std::sqrt(radius)), 24, 720);
        Vector3f from = at(part, 0.0);
        for (int i = 1; i <= corners; ++i) {
            const Vector3f to = at(part, 360.0 * (i % corners) / corners);
            lines.push_back({from, to, isMinor, true});
            from = to;
        }
    }

    /// The lines of equal angle, as close as the space for their labels allows.
    void addSpokes(double radius)
    {
        const double room = static_cast<double>(c_spokeDistance * m_room.em);
        int step = 45;
        for (const int finer : {30, 15}) {
            step = radius * finer * std::numbers::pi / 180.0 >= room ? finer : step;
        }
        for (int degrees = 0; degrees < 360; degrees += step) {
            const Vector3f end = at(1.0, degrees);
            m_layout.grid.push_back({Vector3f(centerX(), centerY(), 0.0f), end, false});
            const float cosine = std::cos(static_cast<float>(degrees * std::numbers::pi / 180.0));
            const float sine = std::sin(static_cast<float>(degrees * std::numbers::pi / 180.0));
            const float gap = c_gap * m_room.em;
            place({.markup = std::to_string(degrees) + c_degree,
                   .x = end.x + gap * cosine,
                   .y = end.y - gap * sine,
                   .alignX = 0.5f - 0.5f * cosine,
                   .alignY = 0.5f + 0.5f * sine});
        }
    }

    // --- circles and rays about the origin of a view in x and y

    void layoutRound()
    {
        const RoundView view(m_input.camera, m_area);
        // Upwards from an origin in sight, else through the middle of the view.
        const double labelled = view.showsOrigin() ? 90.0 : 0.5 * (view.firstDegrees() + view.lastDegrees());
        const bool isSteep = std::abs(std::sin(labelled * std::numbers::pi / 180.0)) > 0.7;
        const double length = (view.farthest() - view.nearest()) * view.pixelsPerUnit();
        const AxisScale scale = scaleOf(view.nearest(), view.farthest(), length, false, m_setup.getYAxisSpacing(),
                                        m_setup.getExtraY(), isSteep ? &LabelSize::height : &LabelSize::width);
        const AxisTicks ticks = makeAxisTicks(scale);
        addXTitle(0);
        const Pixel origin = view.at(0.0, 0.0);
        const auto middle = static_cast<float>(origin.x);
        const float lower = std::clamp(static_cast<float>(origin.y), m_top, m_bottom);
        // Where the numbers are not along an upright line of some length, their title is at the left.
        const bool isUpright = view.showsOrigin() && middle > m_left && lower - m_top > 0.3f * (m_bottom - m_top);
        isUpright ? addTitleOfRadii(ticks.exponent, middle, m_top, lower)
                  : addYTitle(ticks.exponent, m_room.besideLabels(m_room.labelWidth));
        const int step = degreesBetweenRays(view);
        for (double degrees = std::ceil(view.firstDegrees() / step) * step; degrees < view.lastDegrees();
             degrees += step) {
            if (const std::optional<Pixel> end = view.exit(degrees)) {
                addRay(view.at(view.nearest(), degrees), *end, (static_cast<int>(degrees) + 360) % 360);
            }
        }
        for (const AxisTick& tick : ticks.ticks) {
            if (!(tick.position > 0.0)) {
                continue;
            }
            addArc(view, tick);
            const Vector3f at = pointOf(view.at(tick.position, labelled));
            if (at.x >= m_left && at.x <= m_right && at.y >= m_top && at.y <= m_bottom) {
                place({.markup = tick.label, .x = at.x + c_gap * m_room.em, .y = at.y, .alignX = 0.0f, .alignY = 0.0f});
            }
        }
    }

    static Vector3f pointOf(const Pixel& pixel) { return {pixel.x, pixel.y, 0.0}; }

    int degreesBetweenRays(const RoundView& view) const
    {
        const double radius =
            view.showsOrigin() ? 0.5 * std::min(m_area.width, m_area.height) : view.farthest() * view.pixelsPerUnit();
        int step = 45;
        for (const int finer : {30, 15, 5, 1}) {
            const bool hasSpace =
                radius * finer * std::numbers::pi / 180.0 >= static_cast<double>(c_spokeDistance * m_room.em);
            step = hasSpace && (finer >= 15 || !view.showsOrigin()) ? finer : step;
        }
        return step;
    }

    /// A line of equal angle, with its label outside the frame.
    void addRay(const Pixel& from, const Pixel& to, int degrees)
    {
        const Vector3f end = pointOf(to);
        m_layout.grid.push_back({pointOf(from), end, false});
        const auto isAt = [](float position, float border) { return std::abs(position - border) < 0.5f; };
        const float gap = c_gap * m_room.em;
        AxisLabel label = {.markup = std::to_string(degrees) + c_degree, .x = end.x, .y = end.y};
        if (isAt(end.x, m_right) || isAt(end.x, m_left)) {
            label.alignX = isAt(end.x, m_right) ? 0.0f : 1.0f;
            label.x += isAt(end.x, m_right) ? gap : -gap;
        } else {
            label.alignY = isAt(end.y, m_bottom) ? 0.0f : 1.0f;
            label.y += isAt(end.y, m_bottom) ? gap : -gap;
        }
        place(label);
    }

    /// The part of a circle about the origin that may be in sight.
    void addArc(const RoundView& view, const AxisTick& tick)
    {
        const double span = view.lastDegrees() - view.firstDegrees();
        const double radius = tick.position * view.pixelsPerUnit();
        const int corners = std::clamp(static_cast<int>(5.0 * std::sqrt(radius) * span / 360.0), 24, 720);
        for (int i = 0; i < corners; ++i) {
            m_layout.grid.push_back({pointOf(view.at(tick.position, view.firstDegrees() + span * i / corners)),
                                     pointOf(view.at(tick.position, view.firstDegrees() + span * (i + 1) / corners)),
                                     tick.isMinor});
        }
    }

    const Axes2dInput& m_input;
    PixelArea m_area;
    const AxisSetup& m_setup;
    AxisMetrics m_metrics;
    Room m_room;
    LabelPlacer m_labels;
    float m_left;
    float m_top;
    float m_right;
    float m_bottom;
    /// Of the power of ten above the left end of the frame.
    float m_powerEnd = -HUGE_VALF;
    Axes2dLayout m_layout;
};

} // namespace

namespace {

/// @param labelWidth of the numbers at the left
AxisMargins marginsWith(const Axes2dInput& input, const Room& room, float labelWidth)
{
    const float gap = c_gap * room.em;
    AxisMargins margins;
    margins.bottom = room.belowLabels() + std::max(room.xTitle.height, room.labelHeight) + gap;
    const bool hasTitle = room.yTitle.height > 0.0f && !isPolar(input);
    margins.left =
        room.besideLabels(labelWidth) + (hasTitle ? std::max(room.yTitle.height, room.labelHeight) + gap : 0.0f);
    if (isPolar(input) || isRound(input)) {
        margins.right = gap + room.labelWidth + gap;
        margins.top = gap + room.lineHeight + gap;
    } else {
        margins.right = 0.5f * room.labelWidth + gap;
        margins.top = gap + std::max(room.symmetryTitle.height, room.labelHeight) + gap;
    }
    return margins;
}

PixelArea within(const PixelArea& room, const AxisMargins& margins)
{
    const auto whole = [](float size) { return static_cast<int>(std::ceil(size)); };
    return {room.x + whole(margins.left), room.y + whole(margins.top),
            room.width - whole(margins.left) - whole(margins.right),
            room.height - whole(margins.top) - whole(margins.bottom)};
}

/// Width of the numbers at the left that a copy of the camera shows in an area, in steps.
float widthOfNumbersIn(const PixelArea& area, const Axes2dInput& input, const Room& room, const AxisMetrics& metrics)
{
    Camera2d camera = input.camera;
    camera.setRenderArea(input.pictureWidth, input.pictureHeight, area.x, input.pictureHeight - area.y - area.height,
                         area.width, area.height);
    const Axes2dInput copy = {camera, input.setup, input.pictureWidth, input.pictureHeight, input.digits, input.pixel};
    const float step = c_labelStep * room.em;
    return std::ceil(Layouter(copy, area, metrics).widthOfYNumbers() / step) * step;
}

} // namespace

AxisMargins axes2dMargins(const Axes2dInput& input, const AxisMetrics& metrics)
{
    const Room room(input, metrics);
    return marginsWith(input, room, room.labelWidth);
}

PixelArea axes2dArea(const Axes2dInput& input, const PixelArea& space, const AxisMetrics& metrics)
{
    const Room room(input, metrics);
    const PixelArea least = within(space, marginsWith(input, room, room.labelWidth));
    if (isPolar(input)) {
        return centeredSquare(least);
    }
    if (isRound(input) || least.isEmpty()) {
        return least;
    }
    // The numbers of the wider area may be others.
    const float first = widthOfNumbersIn(least, input, room, metrics);
    const PixelArea wider = within(space, marginsWith(input, room, first));
    const float second = widthOfNumbersIn(wider, input, room, metrics);
    return second > first ? within(space, marginsWith(input, room, second)) : wider;
}

Axes2dLayout layoutAxes2d(const Axes2dInput& input, const PixelArea& area, const AxisMetrics& metrics)
{
    return area.width < 1 || area.height < 1 ? Axes2dLayout() : Layouter(input, area, metrics).layout();
}

} // namespace vxrenderer
