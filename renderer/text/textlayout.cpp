#include "renderer/text/textlayout.h"

#include <algorithm>
#include <cstddef>

namespace vxrenderer {
namespace {

using Kind = TitleItem::Kind;

/// What stays together on one line: a character with its indices and exponents, a blank, or a line end.
struct Cluster {
    enum class Type { text, blankWithinBox, blankBetweenBoxes, lineEnd };

    Type type = Type::text;
    std::size_t firstCharacter = 0;
    std::size_t endCharacter = 0;
    float kerning = 0.0f;
    float width = 0.0f;
    bool isCentered = false;
};

/// Text cut into clusters; the positions of characters are relative to the start of their cluster and its baseline.
struct MeasuredText {
    std::vector<PlacedCharacter> characters;
    std::vector<Cluster> clusters;
};

class Measurer {
public:
    Measurer(const std::vector<TitleItem>& items, TextMetrics& metrics) : m_items(items), m_metrics(metrics) {}

    MeasuredText measure()
    {
        for (const TitleItem& item : m_items) {
            step(item);
        }
        finishCluster();
        return std::move(m_text);
    }

private:
    void step(const TitleItem& item)
    {
        switch (item.kind) {
        case Kind::character:
            addCharacter(item);
            break;
        case Kind::space:
            if (m_scriptStarts.empty()) {
                addBlank(item);
            } else {
                m_pen += m_metrics.advance(item.character, item.style);
            }
            break;
        case Kind::newLine:
            finishCluster();
            m_cluster.type = Cluster::Type::lineEnd;
            m_isOpen = true;
            finishCluster();
            break;
        case Kind::openScripts:
            m_isOpen = true;
            m_scriptStarts.push_back({m_pen, m_pen});
            m_last = 0;
            break;
        case Kind::nextScript:
            m_scriptStarts.back().widest = std::max(m_scriptStarts.back().widest, m_pen);
            m_pen = m_scriptStarts.back().start;
            m_last = 0;
            break;
        case Kind::closeScripts:
            m_pen = std::max(m_scriptStarts.back().widest, m_pen);
            m_scriptStarts.pop_back();
            m_last = 0;
            break;
        case Kind::beginCenter:
        case Kind::endCenter:
            finishCluster();
            m_cluster.isCentered = item.kind == Kind::beginCenter;
            break;
        }
    }

    void addCharacter(const TitleItem& item)
    {
        const bool isKerned = m_last != 0 && m_lastStyle == item.style;
        const float kerning = isKerned ? m_metrics.kerning(m_last, item.character, item.style) : 0.0f;
        if (m_scriptStarts.empty()) {
            finishCluster();
            m_cluster.kerning = kerning;
        } else {
            m_pen += kerning;
        }
        m_isOpen = true;
        m_text.characters.push_back({item.character, item.style, m_pen, -item.style.rise * m_metrics.fontSize()});
        m_pen += m_metrics.advance(item.character, item.style);
        m_last = item.character;
        m_lastStyle = item.style;
    }

    void addBlank(const TitleItem& item)
    {
        finishCluster();
        const bool isWithin = item.breaks == TitleItem::Breaks::withinBox;
        m_cluster.type = isWithin ? Cluster::Type::blankWithinBox : Cluster::Type::blankBetweenBoxes;
        m_pen = m_metrics.advance(item.character, item.style);
        m_isOpen = true;
        m_last = 0;
        finishCluster();
    }

    void finishCluster()
    {
        if (m_isOpen) {
            m_cluster.width = m_pen;
            m_cluster.endCharacter = m_text.characters.size();
            m_text.clusters.push_back(m_cluster);
        }
        const bool isCentered = m_cluster.isCentered;
        m_cluster = Cluster();
        m_cluster.isCentered = isCentered;
        m_cluster.firstCharacter = m_text.characters.size();
        m_pen = 0.0f;
        m_isOpen = false;
    }

    struct ScriptStart {
        float start;
        float widest;
    };

    const std::vector<TitleItem>& m_items;
    TextMetrics& m_metrics;
    MeasuredText m_text;
    std::vector<ScriptStart> m_scriptStarts;
    Cluster m_cluster;
    bool m_isOpen = false;
    float m_pen = 0.0f;
    char32_t m_last = 0;
    TextStyle m_lastStyle;
};

struct Line {
    std::size_t firstCluster;
    std::size_t endCluster;
};

bool isBlank(const Cluster& cluster)
{
    return cluster.type == Cluster::Type::blankWithinBox || cluster.type == Cluster::Type::blankBetweenBoxes;
}

float widthOf(const std::vector<Cluster>& clusters, const Line& line)
{
    float width = 0.0f;
    for (std::size_t i = line.firstCluster; i < line.endCluster; ++i) {
        width += clusters[i].width + (i > line.firstCluster ? clusters[i].kerning : 0.0f);
    }
    return width;
}

/// The next line from a cluster on; `next` becomes the start of the line after it.
Line breakLine(const std::vector<Cluster>& clusters, std::size_t& next, float room)
{
    const std::size_t first = next;
    std::size_t end = first;
    std::size_t blankBetween = first;
    std::size_t blankWithin = first;
    float width = 0.0f;
    for (; end < clusters.size() && clusters[end].type != Cluster::Type::lineEnd; ++end) {
        const Cluster& cluster = clusters[end];
        width += cluster.width + (end > first ? cluster.kerning : 0.0f);
        if (isBlank(cluster)) {
            (cluster.type == Cluster::Type::blankBetweenBoxes ? blankBetween : blankWithin) = end;
        } else if (width > room && end > first) {
            if (blankBetween > first) {
                end = blankBetween;
            } else if (blankWithin > first) {
                end = blankWithin;
            }
            next = end;
            return {first, end};
        }
    }
    next = end < clusters.size() ? end + 1 : end;
    return {first, end};
}

std::vector<Line> breakLines(const std::vector<Cluster>& clusters, float room)
{
    std::vector<Line> lines;
    for (std::size_t next = 0; next < clusters.size();) {
        // Blanks that ended the line before, or that begin the text between boxes, take no space.
        while (next < clusters.size() && (clusters[next].type == Cluster::Type::blankBetweenBoxes ||
                                          (!lines.empty() && isBlank(clusters[next])))) {
            ++next;
        }
        if (next == clusters.size()) {
            break;
        }
        Line line = breakLine(clusters, next, room);
        while (line.endCluster > line.firstCluster && isBlank(clusters[line.endCluster - 1])) {
            --line.endCluster;
        }
        lines.push_back(line);
    }
    return lines;
}

} // namespace

TextLayout layoutTitle(const std::vector<TitleItem>& items, TextMetrics& metrics, TextSpace room)
{
    const MeasuredText text = Measurer(items, metrics).measure();
    const std::vector<Line> lines = breakLines(text.clusters, room.width);

    TextLayout layout;
    for (const Line& line : lines) {
        layout.width = std::max(layout.width, widthOf(text.clusters, line));
    }
    for (const Line& line : lines) {
        float ascent = metrics.ascent({});
        float descent = metrics.descent({});
        for (std::size_t i = line.firstCluster; i < line.endCluster; ++i) {
            for (std::size_t c = text.clusters[i].firstCharacter; c < text.clusters[i].endCharacter; ++c) {
                ascent = std::max(ascent, metrics.ascent(text.characters[c].style) - text.characters[c].y);
                descent = std::max(descent, metrics.descent(text.characters[c].style) + text.characters[c].y);
            }
        }
        if (layout.numLines > 0 && layout.height + ascent + descent > room.height) {
            break;
        }
        const bool isCentered = line.firstCluster < line.endCluster && text.clusters[line.firstCluster].isCentered;
        float pen = isCentered ? (layout.width - widthOf(text.clusters, line)) * 0.5f : 0.0f;
        for (std::size_t i = line.firstCluster; i < line.endCluster; ++i) {
            const Cluster& cluster = text.clusters[i];
            pen += i > line.firstCluster ? cluster.kerning : 0.0f;
            for (std::size_t c = cluster.firstCharacter; c < cluster.endCharacter; ++c) {
                PlacedCharacter placed = text.characters[c];
                placed.x += pen;
                placed.y += layout.height + ascent;
                layout.characters.push_back(placed);
            }
            pen += cluster.width;
        }
        layout.height += ascent + descent;
        ++layout.numLines;
    }
    return layout;
}

} // namespace vxrenderer
