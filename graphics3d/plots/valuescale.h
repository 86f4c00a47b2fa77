#pragma once

#include "datacarrier/postdataview.h"

namespace vxgraphics3d {

/// Converts data values to the texture coordinates of vertices: 0 at the smallest value, 1 at the largest, and 0 for
/// constant data. Computed in double and narrowed.
class ValueScale {
public:
    ValueScale(double min, double max) : m_min(min), m_factor(max - min > 0.0 ? 1.0 / (max - min) : 0.0) {}

    /// From the limits of a filled role in one group.
    static ValueScale ofGroup(const vxdatacarrier::PostDataView& record, int group,
                              const vxdatacarrier::PostDataRole& role)
    {
        return {record.dataMin(group, role), record.dataMax(group, role)};
    }
    /// From the limits of a filled role over all groups.
    static ValueScale ofRecord(const vxdatacarrier::PostDataView& record, const vxdatacarrier::PostDataRole& role)
    {
        return {record.dataMin(role), record.dataMax(role)};
    }

    float operator()(double value) const { return static_cast<float>((value - m_min) * m_factor); }

private:
    double m_min;
    double m_factor;
};

} // namespace vxgraphics3d
