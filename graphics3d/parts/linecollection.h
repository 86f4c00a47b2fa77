#pragma once

#include "graphics3d/parts/line.h"
#include "graphics3d/parts/partcollectionof.h"

namespace vxgraphics3d {

/// The lines of an object. Each is added with its number of segments, then filled:
///
///     LineCollection lines;
///     lines.allocateParts(1);
///     lines.addPart(2);
///     lines.appendPartPolyline(0, points, 3);
class VX_API LineCollection : public PartCollectionOf<Line> {
public:
    /// Deletes all lines and makes space for `count` new ones.
    void allocateParts(int count);
    /// Deletes all lines and the array.
    void resetParts() { allocateParts(0); }
    /// Adds a line with space for `numSegments` segments and returns its index.
    /// @throws std::out_of_range if all lines have been added
    int addPart(int numSegments);
    void setPartBoundingBox(int index, const BoundingBox& box) { part(index).setBoundingBox(box); }

    /// Appends the segments between consecutive points to a line that has space for them, and gives it a direction
    /// marker. Fewer than two points add nothing.
    void appendPartPolyline(int index, const Vector3f* points, int count);
    /// Appends a segment to a line that has space for it.
    void appendPartSegment(int index, const Vector3f& a, const Vector3f& b);
    void appendPartSegment(int index, float ax, float ay, float az, float bx, float by, float bz)
    {
        appendPartSegment(index, {ax, ay, az}, {bx, by, bz});
    }

    /// The number of vertices of all lines.
    int getNumVertices() const { return m_numVertices; }

    /// Makes a part, which the caller owns.
    virtual Line* createPart(int numSegments);

private:
    int m_numVertices = 0;
};

} // namespace vxgraphics3d
