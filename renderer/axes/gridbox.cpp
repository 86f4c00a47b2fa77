#include "renderer/axes/gridbox.h"

#include "graphics3d/foundation/boundingbox.h"
#include "renderer/axes/degreeaxis.h"
#include "renderer/axes/labelplacer.h"
#include "renderer/axes/projector.h"
#include "renderer/axes/ticks.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

// In units of the font size.
constexpr double c_tickLength = 0.4;
constexpr double c_gap = 0.3;
constexpr double c_titleGap = 0.5;
constexpr double c_tickDistance = 2.2;
constexpr double c_minorTickLength = 0.2;
constexpr double c_minorTickDistance = 0.35;
/// Axes that look shorter are not labelled.
constexpr double c_shortestAxis = 1.5;
/// Lines of the grid that are nearer to an edge look like a mistake.
constexpr double c_besideEdge = 0.6;
/// The same as a part of an axis that is seen nearly end-on.
constexpr double c_largestBeside = 0.2;
/// How far a name is moved along its axis, in parts of its length, where it would cover a number, and how far out.
constexpr double c_nameMoves[] = {0.0, 0.12, -0.12, 0.24, -0.24};
constexpr double c_nameSteps[] = {0.0, 0.6, 1.2};
constexpr int c_mostTicks = 100;
/// Finer ticks, which come closer to the ends, for axes on which coarse ones leave fewer labels.
constexpr int c_finerTicks[] = {5, 10, 20};
/// Steps in which two labels are moved apart.
constexpr int c_mostMoves = 60;
/// Sine of the angle below which a face is seen edge-on.
constexpr double c_edgeOn = 1e-4;

Point toDouble(const Vector3f& v)
{
    return {static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)};
}

enum class Facing { behind, edgeOn, ahead };

/// The part of a segment within the area, as parts of its length; empty if the first is not below the second.
struct Range {
    double from = 0.0;
    double to = 1.0;

    double length() const { return std::max(0.0, to - from); }
};

Range visiblePart(const Pixel& from, const Pixel& to, const PixelArea& area)
{
    // A little more, so that a box that fills the area keeps its labels.
    const double slack = 1.0;
    Range range;
    const auto clip = [&range](double start, double step, double low, double high) {
        if (step == 0.0) {
            range.to = start < low || start > high ? -1.0 : range.to;
            return;
        }
        const double a = (low - start) / step;
        const double b = (high - start) / step;
        range.from = std::max(range.from, std::min(a, b));
        range.to = std::min(range.to, std::max(a, b));
    };
    clip(from.x, to.x - from.x, area.x - slack, area.x + area.width + slack);
    clip(from.y, to.y - from.y, area.y - slack, area.y + area.height + slack);
    return range;
}

/// An edge of the box, seen in the picture, that an axis may be labelled along.
struct Edge {
    /// Of the lowest coordinate of the axis.
    Point start;
    double length;
    Pixel from;
    Pixel to;
    /// Away from the box, of length 1.
    Pixel outward;
    Range visible;
};

/// Where an axis has its ticks, and those that are labelled along its edge.
struct AxisTickSet {
    std::vector<double> ticks;
    struct Label {
        AxisLabel label;
        Pixel place;
        double tick;
    };
    std::vector<Label> labels;
    /// Every n-th label was kept so that they have space next to each other; 0 if no two of them do.
    std::size_t step = 0;
    /// How far the labels reach out from the edge.
    double reach = 0.0;
    std::string power;

    /// Without two labels an axis has no scale.
    bool isScale() const { return step > 0; }
    bool isLabelled(double tick) const
    {
        return std::ranges::any_of(labels, [tick](const Label& label) { return label.tick == tick; });
    }
};

/// An axis with its ticks.
struct Axis : AxisTickSet {
    std::optional<Edge> edge;
};

class Layouter {
public:
    Layouter(const GridBoxInput& input, const PixelArea& area, const AxisMetrics& metrics)
        : m_input(input),
          m_area(area),
          m_metrics(metrics),
          m_em(static_cast<double>(metrics.ticks.fontSize())),
          m_projector(input.camera, area),
          m_low(toDouble(input.box.getMin())),
          m_high(toDouble(input.box.getMax())),
          m_labels(metrics)
    {
        std::ranges::transform(input.names, m_steps.begin(), [](const std::string& name) { return stepsOf(name); });
    }

    GridBoxLayout layout()
    {
        if (!isUsable()) {
            return {};
        }
        for (std::size_t axis = 0; axis < 3; ++axis) {
            findEdge(axis);
            addTicks(axis);
        }
        addGrid();
        addEdges();
        addLabels();
        m_layout.labels = m_labels.takeLabels();
        return std::move(m_layout);
    }

private:
    bool isUsable()
    {
        if (!m_input.box.isValid() || m_area.width < 1 || m_area.height < 1 || !isFinite(m_low) || !isFinite(m_high) ||
            !m_projector.isFinite()) {
            return false;
        }
        int numSeen = 0;
        for (unsigned corner = 0; corner < 8; ++corner) {
            const std::optional<Pixel> pixel = m_projector.pixelOf(cornerOf(corner));
            m_corners[corner] = pixel.value_or(Pixel{0.0, 0.0});
            numSeen += pixel ? 1 : 0;
        }
        m_isWhole = numSeen == 8;
        Point center;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            center[axis] = 0.5 * (m_low[axis] + m_high[axis]);
        }
        for (std::size_t axis = 0; axis < 3; ++axis) {
            for (const bool isHigh : {false, true}) {
                const double sine = m_projector.sineOfView(axis, isHigh, isHigh ? m_high[axis] : m_low[axis], center);
                m_facing[axis][isHigh] = sine > c_edgeOn    ? Facing::ahead
                                         : sine < -c_edgeOn ? Facing::behind
                                                            : Facing::edgeOn;
            }
        }
        return numSeen > 0;
    }

    bool isFlat(std::size_t axis) const { return !(m_high[axis] > m_low[axis]); }

    /// A corner by its bits: bit i says whether it lies at the high side of axis i.
    Point cornerOf(unsigned bits) const
    {
        return {(bits & 1u) != 0 ? m_high[0] : m_low[0], (bits & 2u) != 0 ? m_high[1] : m_low[1],
                (bits & 4u) != 0 ? m_high[2] : m_low[2]};
    }

    Facing facing(std::size_t axis, unsigned corner) const { return m_facing[axis][(corner >> axis) & 1u]; }

    /// Whether a face lies behind the scene. Both sides of a flat box are one face, which does not hide anything.
    bool isBehind(std::size_t axis, bool isHigh) const
    {
        return isFlat(axis) ? !isHigh && m_facing[axis][0] != Facing::edgeOn : m_facing[axis][isHigh] == Facing::behind;
    }

    /// Whether the edge along an axis from a corner on lies on the outline of the box.
    bool isOnOutline(std::size_t axis, unsigned corner) const
    {
        const Facing a = facing((axis + 1) % 3, corner);
        const Facing b = facing((axis + 2) % 3, corner);
        return (a == Facing::ahead && b != Facing::ahead) || (b == Facing::ahead && a != Facing::ahead) ||
               (a == Facing::edgeOn && b == Facing::edgeOn) || (a == Facing::edgeOn && b == Facing::behind) ||
               (b == Facing::edgeOn && a == Facing::behind);
    }

    /// The edge that the labels of an axis are placed along.
    void findEdge(std::size_t axis)
    {
        if (!m_isWhole || isFlat(axis)) {
            return;
        }
        double best = -HUGE_VAL;
        for (unsigned corner = 0; corner < 8; ++corner) {
            const unsigned end = corner | (1u << axis);
            if (end == corner || !isOnOutline(axis, corner)) {
                continue;
            }
            Edge edge = {cornerOf(corner), m_high[axis] - m_low[axis], m_corners[corner], m_corners[end], {}, {}};
            const Pixel along = edge.to - edge.from;
            if (along.length() < c_shortestAxis * m_em) {
                continue;
            }
            edge.outward = Pixel{along.y, -along.x} * (1.0 / along.length());
            edge.visible = visiblePart(edge.from, edge.to, m_area);
            turnOutward(edge);
            // Below is best, left is next; what lies outside the picture is worst.
            const double preference = 0.92 * edge.outward.y - 0.4 * edge.outward.x;
            const double score = preference + 4.0 * std::min(edge.visible.length(), 0.5);
            if (score > best && edge.visible.length() * along.length() >= c_shortestAxis * m_em) {
                best = score;
                m_axes[axis].edge = edge;
            }
        }
    }

    /// Turns the normal of an edge away from the box; of a box seen as a line it points down or to the left.
    void turnOutward(Edge& edge) const
    {
        double farthest = 0.0;
        for (const Pixel& corner : m_corners) {
            const double distance = edge.outward.dot(corner - edge.from);
            farthest = std::abs(distance) > std::abs(farthest) ? distance : farthest;
        }
        const bool isLine = std::abs(farthest) < 1e-3;
        if (isLine ? 0.92 * edge.outward.y - 0.4 * edge.outward.x < 0.0 : farthest > 0.0) {
            edge.outward = edge.outward * -1.0;
        }
    }

    /// Length in pixels by which the number of ticks is chosen where no edge is labelled.
    double longestEdge(std::size_t axis) const
    {
        double longest = 0.0;
        for (unsigned corner = 0; corner < 8; ++corner) {
            longest = std::max(longest, (m_corners[corner] - m_corners[corner | (1u << axis)]).length());
        }
        return longest;
    }

    /// The same where perspective shortens them most.
    double shortestEdge(std::size_t axis) const
    {
        double shortest = HUGE_VAL;
        for (unsigned corner = 0; corner < 8; ++corner) {
            if ((corner >> axis & 1u) == 0) {
                shortest = std::min(shortest, (m_corners[corner] - m_corners[corner | (1u << axis)]).length());
            }
        }
        return shortest;
    }

    /// Chooses ticks whose labels have space next to each other, at least two of them if two fit, and lays the labels
    /// out.
    void addTicks(std::size_t index)
    {
        if (isFlat(index)) {
            return;
        }
        Axis& axis = m_axes[index];
        const double length = axis.edge   ? (axis.edge->to - axis.edge->from).length()
                              : m_isWhole ? longestEdge(index)
                                          : std::max(m_area.width, m_area.height);
        const double wanted = length / (c_tickDistance * m_em);
        for (int count = std::clamp(static_cast<int>(std::min(wanted, 1e6)), 1, c_mostTicks); count > 0;
             count = count * 3 / 4) {
            AxisTickSet set = tickSet(index, count);
            const bool isBest = !axis.edge || set.step == 1;
            if (set.isScale() || !axis.isScale()) {
                static_cast<AxisTickSet&>(axis) = std::move(set);
            }
            if (isBest) {
                return;
            }
        }
        for (const int count : c_finerTicks) {
            AxisTickSet set = tickSet(index, count);
            const bool isLast = count == c_finerTicks[std::size(c_finerTicks) - 1];
            if (!axis.isScale() && !set.isScale() && isLast) {
                moveApart(set, *axis.edge);
            }
            if (!axis.isScale() && set.isScale()) {
                // Lines that close would only hide the scene.
                set.ticks.clear();
                for (const AxisTickSet::Label& label : set.labels) {
                    set.ticks.push_back(label.tick);
                }
                static_cast<AxisTickSet&>(axis) = std::move(set);
            }
        }
    }

    /// Leaves the first and the last label, which have no space next to each other, and moves them apart along their
    /// edge.
    void moveApart(AxisTickSet& set, const Edge& edge) const
    {
        if (set.labels.size() < 2) {
            return;
        }
        set.labels = {set.labels.front(), set.labels.back()};
        const Pixel along = (edge.to - edge.from) * (1.0 / (edge.to - edge.from).length());
        const Pixel step = along * (0.05 * m_em);
        AxisLabel& first = set.labels.front().label;
        AxisLabel& last = set.labels.back().label;
        for (int i = 0; i < c_mostMoves; ++i) {
            LabelPlacer placer(m_metrics);
            placer.place(first);
            if (placer.place(last)) {
                set.step = 1;
                return;
            }
            move(first, step * -1.0);
            move(last, step);
        }
    }

    static void move(AxisLabel& label, const Pixel& step)
    {
        label.x += static_cast<float>(step.x);
        label.y += static_cast<float>(step.y);
    }

    /// About `aboutCount` ticks of an axis, with as many of their labels as have space next to each other.
    AxisTickSet tickSet(std::size_t index, int aboutCount) const
    {
        const AxisUnits& units = m_input.units[index];
        const Ticks ticks = makeTicks(units.valueAt(m_low[index]), units.valueAt(m_high[index]), aboutCount,
                                      m_input.digits, m_steps[index]);
        AxisTickSet set;
        set.power = ticks.exponent == 0 ? "" : "\\times" + powerText(ticks.exponent);
        for (const Ticks::Tick& tick : ticks.ticks) {
            set.ticks.push_back(std::clamp(units.coordinateOf(tick.value), m_low[index], m_high[index]));
            if (m_axes[index].edge) {
                addLabel(set, index, tick.label, set.ticks.back());
            }
        }
        thinOut(set);
        return set;
    }

    /// Leaves every second, third ... label where those between have no space; all of them if no two fit.
    void thinOut(AxisTickSet& set) const
    {
        for (std::size_t step = 1; step < set.labels.size(); ++step) {
            for (std::size_t first = 0; first < step && first + step < set.labels.size(); ++first) {
                std::vector<AxisTickSet::Label> kept;
                LabelPlacer placer(m_metrics);
                bool fits = true;
                for (std::size_t i = first; i < set.labels.size() && fits; i += step) {
                    fits = placer.place(set.labels[i].label);
                    kept.push_back(set.labels[i]);
                }
                if (fits) {
                    set.labels = std::move(kept);
                    set.step = step;
                    return;
                }
            }
        }
    }

    void addLabel(AxisTickSet& set, std::size_t index, const std::string& text, double coordinate) const
    {
        const std::optional<Pixel> place = placeOnEdge(index, coordinate);
        if (!place) {
            return;
        }
        AxisLabel label;
        label.markup = text;
        const double begin = (c_tickLength + c_gap) * m_em;
        set.reach = std::max(set.reach, begin + moveOut(label, *place, m_axes[index].edge->outward, begin));
        set.labels.push_back({label, *place, coordinate});
    }

    /// Where a coordinate is on the labelled edge of its axis; nothing if that is out of sight.
    std::optional<Pixel> placeOnEdge(std::size_t index, double coordinate) const
    {
        const Edge& edge = *m_axes[index].edge;
        Point point = edge.start;
        point[index] = coordinate;
        const std::optional<Pixel> place = m_projector.pixelOf(point);
        if (!place) {
            return std::nullopt;
        }
        const Pixel along = edge.to - edge.from;
        const double part = (*place - edge.from).dot(along) / along.dot(along);
        return part < edge.visible.from - 1e-6 || part > edge.visible.to + 1e-6 ? std::nullopt : place;
    }

    /// Moves a label to where its rectangle just touches a line next to an edge.
    /// @return the extent of the label at right angles to the edge
    double moveOut(AxisLabel& label, const Pixel& from, const Pixel& outward, double distance) const
    {
        const LabelSize size = sizeOfMarkup(label.markup, m_metrics.of(label));
        const double half = 0.5 * (std::abs(outward.x) * static_cast<double>(size.width) +
                                   std::abs(outward.y) * static_cast<double>(size.height));
        const Pixel center = from + outward * (distance + half);
        label.x = static_cast<float>(center.x);
        label.y = static_cast<float>(center.y);
        return 2.0 * half;
    }

    /// A line in the world, between two corners of which one coordinate may be given.
    static AxisLine worldLine(const Point& from, const Point& to)
    {
        return {Vector3f(from[0], from[1], from[2]), Vector3f(to[0], to[1], to[2]), false};
    }

    void addGrid()
    {
        for (std::size_t normal = 0; normal < 3; ++normal) {
            for (const bool isHigh : {false, true}) {
                if (isBehind(normal, isHigh)) {
                    addFaceLines(normal, isHigh, (normal + 1) % 3, (normal + 2) % 3);
                    addFaceLines(normal, isHigh, (normal + 2) % 3, (normal + 1) % 3);
                }
            }
        }
    }

    /// The lines of a face at the ticks of one axis, along another one.
    void addFaceLines(std::size_t normal, bool isHigh, std::size_t tickAxis, std::size_t lineAxis)
    {
        if (isFlat(lineAxis)) {
            return;
        }
        const double part = std::min(c_besideEdge * m_em / std::max(shortestEdge(tickAxis), 1.0), c_largestBeside);
        const double beside = part * (m_high[tickAxis] - m_low[tickAxis]);
        for (const double tick : m_axes[tickAxis].ticks) {
            if (tick - m_low[tickAxis] < beside || m_high[tickAxis] - tick < beside) {
                continue;
            }
            Point from = m_low;
            from[normal] = isHigh ? m_high[normal] : m_low[normal];
            from[tickAxis] = tick;
            Point to = from;
            to[lineAxis] = m_high[lineAxis];
            m_layout.grid.push_back(worldLine(from, to));
        }
    }

    void addEdges()
    {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const std::size_t other = (axis + 1) % 3;
            const std::size_t third = (axis + 2) % 3;
            for (unsigned corner = 0; corner < 8 && !isFlat(axis); ++corner) {
                const bool isTwin =
                    (isFlat(other) && (corner >> other & 1u) != 0) || (isFlat(third) && (corner >> third & 1u) != 0);
                const bool isOnBackFace =
                    isBehind(other, (corner >> other & 1u) != 0) || isBehind(third, (corner >> third & 1u) != 0);
                const bool isLow = (corner >> axis & 1u) == 0;
                if (isLow && !isTwin && isOnBackFace) {
                    m_layout.edges.push_back(worldLine(cornerOf(corner), cornerOf(corner | (1u << axis))));
                }
            }
        }
    }

    /// Numbers come first, those of the shortest axis before others, since it has the fewest; then the names.
    void addLabels()
    {
        std::vector<std::pair<double, std::size_t>> order;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            if (const std::optional<Edge>& edge = m_axes[axis].edge) {
                order.push_back({(edge->to - edge->from).length(), axis});
            }
        }
        std::sort(order.begin(), order.end());
        for (const auto& [length, axis] : order) {
            addNumbers(axis);
            addMinorTicks(axis, length);
        }
        for (const auto& [length, axis] : order) {
            addName(axis);
        }
    }

    void addNumbers(std::size_t index)
    {
        const Axis& axis = m_axes[index];
        for (const AxisTickSet::Label& label : axis.labels) {
            addTickLine(m_layout.ticks, label.place, axis.edge->outward, c_tickLength);
            if (isInPicture(label.label)) {
                m_labels.place(label.label);
            }
        }
    }

    void addTickLine(std::vector<AxisLine>& lines, const Pixel& from, const Pixel& outward, double length) const
    {
        const Pixel to = from + outward * (length * m_em);
        lines.push_back({Vector3f(from.x, from.y, 0.0), Vector3f(to.x, to.y, 0.0), false});
    }

    /// Between the ticks, and at those whose numbers had no space.
    void addMinorTicks(std::size_t index, double length)
    {
        const Axis& axis = m_axes[index];
        if (!axis.isScale() || axis.ticks.size() < 2) {
            return;
        }
        const AxisUnits& units = m_input.units[index];
        const double low = units.valueAt(m_low[index]);
        const double high = units.valueAt(m_high[index]);
        const double first = units.valueAt(axis.ticks[0]);
        const double step = units.valueAt(axis.ticks[1]) - first;
        std::vector<double> minor =
            makeMinorValues(low, high, first, step, c_minorTickDistance * m_em / length * (high - low), m_steps[index]);
        std::ranges::transform(minor, minor.begin(), [&](double value) { return units.coordinateOf(value); });
        std::ranges::copy_if(axis.ticks, std::back_inserter(minor),
                             [&](double tick) { return !axis.isLabelled(tick); });
        for (const double tick : minor) {
            if (const std::optional<Pixel> place = placeOnEdge(index, tick)) {
                addTickLine(m_layout.minorTicks, *place, axis.edge->outward, c_minorTickLength);
            }
        }
    }

    bool isInPicture(const AxisLabel& label) const
    {
        const PixelArea& picture = m_input.picture;
        const LabelRect rect = rectOf(label, m_metrics);
        return picture.isEmpty() ||
               (rect.left >= static_cast<float>(picture.x) && rect.top >= static_cast<float>(picture.y) &&
                rect.right <= static_cast<float>(picture.x + picture.width) &&
                rect.bottom <= static_cast<float>(picture.y + picture.height));
    }

    /// A name is next to the numbers, in the middle of what is seen of its edge, or near that where it would cover a
    /// number of another axis.
    void addName(std::size_t index)
    {
        const Axis& axis = m_axes[index];
        const Edge& edge = *axis.edge;
        const std::string& name = m_input.names[index];
        AxisLabel label;
        label.isTitle = true;
        label.markup = axis.power.empty() ? name : name.empty() ? axis.power : name + " (" + axis.power + ")";
        for (const double step : c_nameSteps) {
            for (const double aside : c_nameMoves) {
                const double part = 0.5 * (edge.visible.from + edge.visible.to) + aside * edge.visible.length();
                moveOut(label, edge.from + (edge.to - edge.from) * part, edge.outward,
                        std::max(axis.reach, c_tickLength * m_em) + (c_titleGap + step) * m_em);
                if (isInPicture(label) && m_labels.place(label)) {
                    return;
                }
            }
        }
    }

    const GridBoxInput& m_input;
    PixelArea m_area;
    AxisMetrics m_metrics;
    double m_em;
    Projector m_projector;
    Point m_low;
    Point m_high;
    LabelPlacer m_labels;
    std::array<TickSteps, 3> m_steps{};
    std::array<Pixel, 8> m_corners{};
    bool m_isWhole = false;
    Facing m_facing[3][2] = {};
    std::array<Axis, 3> m_axes;
    GridBoxLayout m_layout;
};

} // namespace

AxisMargins gridBoxMargins(const GridBoxInput& input, const AxisMetrics& metrics)
{
    LabelSize name;
    for (const std::string& markup : input.names) {
        const LabelSize size = sizeOfMarkup(markup, metrics.titles);
        name = {std::max(name.width, size.width), std::max(name.height, size.height)};
    }
    const LabelSize label = sizeOfMarkup(widestLabel(input.digits), metrics.ticks);
    const float gaps = static_cast<float>(c_tickLength + c_gap + c_titleGap) * metrics.ticks.fontSize();
    const float beside = gaps + label.width + name.width;
    // Along a slanted edge the width of a label moves the name down as well.
    const float below = gaps + label.height + 0.5f * label.width + name.height;
    return {beside, below, beside, below};
}

GridBoxLayout layoutGridBox(const GridBoxInput& input, const PixelArea& area, const AxisMetrics& metrics)
{
    return Layouter(input, area, metrics).layout();
}

} // namespace vxrenderer
