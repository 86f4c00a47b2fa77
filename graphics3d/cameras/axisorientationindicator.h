#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/foundation/color.h"

#include <array>
#include <string>

namespace vxgraphics3d {

/// Settings of the small triad of labelled axes that shows how a 3D view is oriented. A canvas owns them and a renderer
/// draws the triad; units of lengths and sizes are the renderer's.
class VX_API AxisOrientationIndicator {
public:
    /// An axis of the triad, and the index of its label and colour.
    enum Axis { AxisX = 0, AxisY = 1, AxisZ = 2 };

    /// A hidden triad in red, green and blue.
    AxisOrientationIndicator() = default;
    AxisOrientationIndicator(const AxisOrientationIndicator&) = default;

    /// Copies all settings of another indicator and counts one change; does nothing for the object itself.
    void import(const AxisOrientationIndicator& other);

    /// Each setter stores its value and counts a change, even when the value stays the same.
    /// @throws std::out_of_range for an axis that is none of the three
    void setColor(Axis axis, const Color& color);
    /// @throws std::out_of_range for an axis that is none of the three
    void setLabel(Axis axis, const std::string& label);
    void setLineWidth(float width);
    void setAxisLength(float length);
    void show(bool shown);

    int getChangeId() const { return m_changeId.get(); }
    bool isShown() const { return m_shown; }
    float getAxisLength() const { return m_axisLength; }
    float getExtraSize() const { return m_extraSize; }
    float getLineWidth() const { return m_lineWidth; }
    const Color& getExtraColor() const { return m_extraColor; }
    const std::string& getLabel(Axis axis) const { return m_labels.at(axis); }
    const Color& getColor(Axis axis) const { return m_axisColors.at(axis); }

private:
    AxisOrientationIndicator& operator=(const AxisOrientationIndicator&) = default;

    ChangeNumber m_changeId;
    bool m_shown = false;
    float m_axisLength = 10.0f;
    float m_extraSize = 12.0f;
    float m_lineWidth = 0.75f;
    Color m_extraColor{0, 0, 0, 255};
    std::array<std::string, 3> m_labels{"x", "y", "z"};
    std::array<Color, 3> m_axisColors{Color{255, 0, 0, 255}, Color{0, 255, 0, 255}, Color{0, 0, 255, 255}};
};

} // namespace vxgraphics3d
