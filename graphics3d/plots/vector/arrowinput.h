#pragma once

#include "graphics3d/plots/vector/vectorfield.h"

namespace vxgraphics3d {

/// What the fill of an arrow plot reads.
struct ArrowInput {
    /// @param numAxes 2 or 3
    ArrowInput(const vxdatacarrier::PostDataView& record, int numAxes);

    VectorField field;
    VectorField boxedField; ///< with as many axes as the record has components of vectors
    PointColors colors;     ///< over all groups of the record, although only the first has arrows
    double targetLength;    ///< of the longest arrow, relative to the mean distance of points
};

} // namespace vxgraphics3d
