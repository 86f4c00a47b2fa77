#pragma once

#include "datacarrier/postdataview.h"

namespace vxgraphics3d {

/// Turns data values into the texture coordinates of vertices: 0 at the smallest value, 1 at the largest, and 0
/// throughout for constant data. Computed in double and narrowed.
class ValueScale {
public:
    ValueScale(double min, double max) : m_min(min), m_factor(max - min > 0.0 ? 1.0 / (max - min) : 0.0) {}

    /// By the limits of a filled role in one group.
    static ValueScale ofGroup(const vxdatacarrier::PostDataView& data, int group, int role)
    {
        return {data.dataMin(group, role), data.dataMax(group, role)};
    }

    float operator()(double value) const { return static_cast<float>((value - m_min) * m_factor); }

private:
    double m_min;
    double m_factor;
};

} // namespace vxgraphics3d
