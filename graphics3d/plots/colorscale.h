#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// How the values of a plot map to its legend: the value range of the data, the limits of the legend and a restriction
/// of the values shown. A plain value without change numbers, which belong to the plot.
///
/// Vertices carry texture coordinates from 0 at the smallest value to 1 at the largest. All numbers here whose names
/// contain Tex are floats on that or a similar scale, computed in double and narrowed, from which a renderer finds the
/// colour:
///
///     scale.setValues(-1.0, 3.0);         // the legend follows the data, nothing is restricted
///     scale.setLegendLimits(-5.0, 5.0);   // the data are at 0.4 to 0.8 of the legend
///     scale.setRestriction(0.0, 3.0);     // vertices from 0.25 to 1 are shown
class VX_API ColorScale {
public:
    /// Stores the range of new data. The legend follows it automatically and nothing is restricted; symmetry is kept.
    void setValues(double min, double max);

    /// Sets the values at the ends of the legend and ends automatic limits. Under symmetry the current limits are plus
    /// and minus the larger magnitude of the two.
    void setLegendLimits(double min, double max);
    /// Makes the legend show the whole value range. The reported limits stay as they are until the next setValues() or
    /// resetRestriction().
    void setAutoLegendLimits();
    /// Sets whether the legend is symmetric about 0, and applies the requested limits again.
    void setSymmetric(bool symmetric);

    /// Shows only values within the limits, which are clamped to the value range; a limit that is NaN hides nothing.
    /// Constant data are hidden entirely if their value is outside.
    void setRestriction(double min, double max);
    /// Shows all values again. With automatic limits the legend reports the plain value range, symmetric or not.
    void resetRestriction();

    double getValueMin() const { return m_valueMin; }
    double getValueMax() const { return m_valueMax; }
    bool isConstant() const { return m_constant; }
    /// The position of the value range on the legend: 0 at its minimum, 1 at its maximum.
    float getDataTexMin() const { return m_dataTexMin; }
    float getDataTexMax() const { return m_dataTexMax; }

    /// The limits as they were last set, before symmetry.
    double getRequestedLegendMin() const { return m_requestedLegendMin; }
    double getRequestedLegendMax() const { return m_requestedLegendMax; }
    double getLegendMin() const { return m_legendMin; }
    double getLegendMax() const { return m_legendMax; }
    bool hasAutoLegendLimits() const { return m_autoLegendLimits; }
    bool isSymmetric() const { return m_symmetric; }
    /// The part of the colour table that the legend shows, from 0 to 1.
    float getLegendTexMin() const { return m_legendTexMin; }
    float getLegendTexMax() const { return m_legendTexMax; }

    bool hasRestriction() const { return m_hasRestriction; }
    double getRestrictionMin() const { return m_restrictionMin; }
    double getRestrictionMax() const { return m_restrictionMax; }
    /// The restriction in texture coordinates of the vertices; 0 and 0 hide everything.
    float getRestrictionTexMin() const { return m_restrictionTexMin; }
    float getRestrictionTexMax() const { return m_restrictionTexMax; }

private:
    void clearRestriction();

    double m_valueMin = 0.0;
    double m_valueMax = 1.0;
    bool m_constant = false;
    float m_dataTexMin = 0.0f;
    float m_dataTexMax = 1.0f;
    double m_requestedLegendMin = 0.0;
    double m_requestedLegendMax = 1.0;
    double m_legendMin = 0.0;
    double m_legendMax = 1.0;
    bool m_autoLegendLimits = false;
    bool m_symmetric = false;
    float m_legendTexMin = 0.0f;
    float m_legendTexMax = 1.0f;
    bool m_hasRestriction = false;
    double m_restrictionMin = 0.0;
    double m_restrictionMax = 1.0;
    float m_restrictionTexMin = 0.0f;
    float m_restrictionTexMax = 1.0f;
};

} // namespace vxgraphics3d
