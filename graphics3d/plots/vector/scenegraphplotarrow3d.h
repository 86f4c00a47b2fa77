#pragma once

#include "graphics3d/plots/vector/arrowrecords.h"

namespace vxgraphics3d {

/// An arrow in space, as a renderer passes it to the graphics hardware.
struct ArrowRecord3d {
    float x, y, z;
    float azimuth;    ///< in radians, from the x axis; 0 without a length
    float polarAngle; ///< in radians, from the z axis; 0 without a length
    float length;
    float u; ///< the coordinate in the colour table
};
static_assert(sizeof(ArrowRecord3d) == 28);

/// Vectors in space. Reads the points of group 0 with three components of vectors, and colour data if present.
/// A fill scales all lengths so that the longest arrow is about as long as the mean distance of points.
class VX_API SceneGraphPlotArrow3d : public ArrowRecords<ArrowRecord3d> {
public:
    explicit SceneGraphPlotArrow3d(int id);
    ~SceneGraphPlotArrow3d() override;

    // Direct filling

    /// Drops all arrows and makes space for `count` others.
    /// @throws std::invalid_argument if the number is negative; then nothing has changed
    void allocate(int count);
    /// Appends an arrow, for which there must be space, with its length as it is.
    /// @param t the coordinate in the colour table, 0 to 1
    /// @return the index of the arrow
    int appendArrow(float x, float y, float z, float vx, float vy, float vz, float t);
    /// Ends direct filling: stores the box and counts a change of geometry.
    void finishArrows(const BoundingBox& box);

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    void fillPlotImpl(const ArrowInput& input);
};

} // namespace vxgraphics3d
