#pragma once

#include "base/export.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/vector3f.h"

#include <array>

namespace vxgraphics3d {

class ICameraTransforms;

/// The region of space behind a rectangle on the screen: four side planes, without near and far planes. Built for one
/// pick and not changed afterwards.
class VX_API SelectionFrustrum {
public:
    /// A side plane; the normal points inwards.
    struct FrustrumPlane {
        Vector3f point;
        Vector3f normal;

        FrustrumPlane() = default;
        FrustrumPlane(const Vector3f& aPoint, const Vector3f& aNormal) { init(aPoint, aNormal); }

        void init(const Vector3f& aPoint, const Vector3f& aNormal)
        {
            point = aPoint;
            normal = aNormal;
        }

        /// Whether a point is strictly on the inner side.
        bool isInside(const Vector3f& p) const { return normal.dot(p - point) > 0.0f; }
    };

    /// The position of a box relative to the frustum.
    enum Enclosure { Inside = 0, PartlyInside = 1, Outside = 2 };

    /// What a camera shows in the rectangle between two pixels, which count from the lower left corner of the drawable.
    /// Corner 1 must be to the right of and below corner 0, or to the left of and above it; any other rectangle, or one
    /// without width or height, contains nothing that the camera shows. The normals of the planes have length 1.
    SelectionFrustrum(const ICameraTransforms& camera, int x0, int y0, int x1, int y1);
    /// From eight corners: the four at the near end, then the four at the far end in the same order. The normals are
    /// not normalised.
    SelectionFrustrum(const Vector3f& v1, const Vector3f& v2, const Vector3f& v3, const Vector3f& v4,
                      const Vector3f& v5, const Vector3f& v6, const Vector3f& v7, const Vector3f& v8);

    const std::array<FrustrumPlane, 4>& getPlanes() const { return m_planes; }

    /// Whether a point is strictly inside: a point on a plane is outside.
    bool isInside(float x, float y, float z) const { return isInside(Vector3f(x, y, z)); }
    bool isInside(const Vector3f& p) const
    {
        return m_planes[0].isInside(p) && m_planes[1].isInside(p) && m_planes[2].isInside(p) && m_planes[3].isInside(p);
    }
    /// The position of a box, as a number of Enclosure. An empty box is outside. A box that is outside, but not
    /// entirely outside any single plane, counts as partly inside.
    int enclosesBoundingBox(const BoundingBox& box) const;
    /// The number of a box's eight corners that are strictly on the inner side of a plane.
    static int calcNumberOfInside(const FrustrumPlane& plane, const BoundingBox& box);

private:
    std::array<FrustrumPlane, 4> m_planes;
};

} // namespace vxgraphics3d
