#pragma once

#include "graphics3d/plots/vector/arrowrecords.h"

namespace vxgraphics3d {

/// An arrow in the plane, as a renderer passes it to the graphics hardware.
struct ArrowRecord2d {
    float x, y;
    float angle; ///< from the x axis, in radians; 0 without a length
    float length;
    float u; ///< the coordinate in the colour table
};
static_assert(sizeof(ArrowRecord2d) == 20);

/// Vectors in the plane. Reads the points of group 0 with the first two components of vectors, and colour data if
/// present. A fill scales all lengths so that the longest arrow is about as long as the mean distance of points.
class VX_API SceneGraphPlotArrow2d : public ArrowRecords<ArrowRecord2d> {
public:
    explicit SceneGraphPlotArrow2d(int id);
    ~SceneGraphPlotArrow2d() override;

    // Direct filling

    /// Drops all arrows and makes space for `count` others.
    /// @throws std::invalid_argument if the number is negative; then nothing has changed
    void allocate(int count);
    /// Appends an arrow, for which there must be space, with its length as it is.
    /// @param t the coordinate in the colour table, 0 to 1
    /// @return the index of the arrow
    int appendArrow(float x, float y, float vx, float vy, float t);

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    void fillPlotImpl(const ArrowInput& input);
};

} // namespace vxgraphics3d
