#pragma once

#include "graphics3d/plots/plotinput.h"

#include <optional>

namespace vxgraphics3d {

/// A part of a plot's input: the points of a record's first group with a vector each. Contains plain pointers into the
/// record's arrays.
struct VectorField {
    /// Fetches vectors in the plane (2 axes) or in space (3 axes).
    VectorField(const vxdatacarrier::PostDataView& record, int numAxes);
    /// In space if the record has third components of vectors, otherwise in the plane.
    static VectorField ofAnyAxes(const vxdatacarrier::PostDataView& record);

    /// The box of both ends of all vectors, times `scale`; nothing without points. Numbers that are NaN are ignored.
    std::optional<BoundingBox> box(double scale) const;

    PointPositions points;
    const double* x;
    const double* y;
    const double* z; ///< null in the plane
};

} // namespace vxgraphics3d
