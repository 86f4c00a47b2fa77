#pragma once

#include "renderer/axes/axislayout.h"
#include "renderer/text/textmetrics.h"

#include <string>
#include <utility>
#include <vector>

namespace vxrenderer {

/// Width and height of a text, in pixels.
struct LabelSize {
    float width = 0.0f;
    float height = 0.0f;
};

/// The rectangle that a text covers, in pixels from the top left corner of the picture.
struct LabelRect {
    float left = 0.0f;
    float top = 0.0f;
    float right = 0.0f;
    float bottom = 0.0f;
};

/// The size of a text set in one font.
LabelSize sizeOfMarkup(const std::string& markup, TextMetrics& metrics, float room = AxisLabel::c_noLimit);

/// Where a label lies in the picture.
LabelRect rectOf(const AxisLabel& label, const AxisMetrics& metrics);

/// Collects labels with space between them: of two that are too close, the first one stays.
class LabelPlacer {
public:
    explicit LabelPlacer(const AxisMetrics& metrics) : m_metrics(metrics) {}

    /// Takes a label, unless its text is empty, its position is not finite, or it would come too close to another one.
    bool place(const AxisLabel& label);

    const std::vector<AxisLabel>& getLabels() const { return m_labels; }
    std::vector<AxisLabel> takeLabels() { return std::move(m_labels); }

private:
    AxisMetrics m_metrics;
    std::vector<AxisLabel> m_labels;
    std::vector<LabelRect> m_rects;
};

} // namespace vxrenderer
