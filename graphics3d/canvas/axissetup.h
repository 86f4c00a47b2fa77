#pragma once

#include "base/export.h"
#include "base/ustring.h"
#include "graphics3d/foundation/changenumber.h"

#include <vector>

namespace vxgraphics3d {

/// The layout of the axes of a 2D canvas: kind, logarithmic flags, spacing, titles, and the position of legends.
///
/// A canvas owns one by `boost::shared_ptr`, Java peers share it, a renderer reads it. Setters that change something
/// add one to the change number; setting the current value adds nothing unless the setter says otherwise.
class VX_API AxisSetup {
public:
    /// Type of the axes, 0 to 6. The library itself names only some of them; a renderer decides what they mean.
    enum AxisType : int { AxisPolar = 1, AxisGraph = 4, AxisDefault = 5 };

    /// Copies all values of another setup and adds one to the change number; does nothing for the object itself.
    void import(const AxisSetup& other);

    int getChangeId() const { return m_changeId.get(); }
    bool isChanged(const LastChangeId& last) const { return m_changeId.isChanged(last); }
    void resetChanged(LastChangeId& last) const { m_changeId.resetChanged(last); }

    /// The type, 0 to 6; it also determines the kind.
    void setAxisType(int type);
    int getAxisType() const { return m_axisType; }
    /// 0, 1 or 2, derived from the type.
    int getAxisKind() const { return m_axisKind; }
    bool isPolar() const { return m_axisType == AxisPolar; }
    bool isGraph() const { return m_axisType == AxisGraph; }

    void setXAxisLog(bool log) { set(m_xAxisLog, log); }
    void setYAxisLog(bool log) { set(m_yAxisLog, log); }
    bool getXAxisLog() const { return m_xAxisLog; }
    bool getYAxisLog() const { return m_yAxisLog; }

    /// Whether the renderer chooses the grid spacing.
    void setAutoSpacing(bool automatic) { set(m_autoSpacing, automatic); }
    bool isAutoSpacing() const { return m_autoSpacing; }
    /// Distance of the grid lines of an axis, in data units.
    void setXSpacing(double spacing) { set(m_xSpacing, spacing); }
    void setYSpacing(double spacing) { set(m_ySpacing, spacing); }
    double getXAxisSpacing() const { return m_xSpacing; }
    double getYAxisSpacing() const { return m_ySpacing; }
    /// Additional grid positions on an axis, in data units. Always counts a change.
    void setExtraX(std::vector<double> positions);
    void setExtraY(std::vector<double> positions);
    const std::vector<double>& getExtraX() const { return m_extraX; }
    const std::vector<double>& getExtraY() const { return m_extraY; }

    /// Where line legends are drawn, 0 to 3.
    void setLegendPosition(int position) { set(m_legendPosition, position); }
    int getLegendPosition() const { return m_legendPosition; }
    /// How legends are laid out, 0 to 5. Counts no change.
    void setLegendLayoutStrategy(int strategy) { m_legendLayoutStrategy = strategy; }
    int getLegendLayoutStrategy() const { return m_legendLayoutStrategy; }

    /// The title of an axis as plain text, stored as markup; an empty text removes the title. Always counts a change.
    void setXAxisTitle(const vxbase::UString& text);
    void setYAxisTitle(const vxbase::UString& text);
    /// Names the symmetry axis: "r" gives the title r=0. Always counts a change.
    void setSymmetryAxis(const vxbase::UString& text);
    const vxbase::UString& getXAxisTitle() const { return m_xAxisTitle; }
    const vxbase::UString& getYAxisTitle() const { return m_yAxisTitle; }
    const vxbase::UString& getSymmetryAxisTitle() const { return m_symmetryAxisTitle; }

private:
    template <class T>
    void set(T& member, T value)
    {
        if (member != value) {
            member = value;
            m_changeId.raise();
        }
    }
    void setTitle(vxbase::UString& title, const vxbase::UString& text);

    ChangeNumber m_changeId;
    bool m_yAxisLog = false;
    bool m_xAxisLog = false;
    double m_xSpacing = 0.0;
    double m_ySpacing = 0.0;
    bool m_autoSpacing = true;
    std::vector<double> m_extraX;
    std::vector<double> m_extraY;
    int m_axisType = AxisDefault;
    vxbase::UString m_symmetryAxisTitle;
    int m_axisKind = 1;
    int m_legendPosition = 0;
    int m_legendLayoutStrategy = 1;
    vxbase::UString m_xAxisTitle;
    vxbase::UString m_yAxisTitle;
};

} // namespace vxgraphics3d
