#pragma once

#include "graphics3d/parts/partcollectionof.h"
#include "graphics3d/parts/point.h"

namespace vxgraphics3d {

/// The points of an object, or the points of a plot, which uses it as a list of positions:
///
///     PointCollection points;
///     points.allocateParts(1);
///     points.addPart(1.0f, 2.0f, 0.0f);
class VX_API PointCollection : public PartCollectionOf<Point> {
public:
    /// Adds a point at a position, with a box of zero size, and returns its index.
    /// @throws std::out_of_range if all points have been added
    int addPart(float x, float y, float z);
    int addPart(const Vector3f& position) { return addPart(position.x, position.y, position.z); }

    /// Makes a part, which the caller owns.
    virtual Point* createPart();
};

} // namespace vxgraphics3d
