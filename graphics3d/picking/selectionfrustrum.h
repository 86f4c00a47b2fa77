#pragma once

#include "base/export.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/vector3f.h"

#include <array>

namespace vxgraphics3d {

class ICameraTransforms;

/// The part of space behind a rectangle on the screen: four side planes, with neither near nor far plane. Built for one
/// pick and not changed afterwards.
class VX_API SelectionFrustrum {
public:
    /// A side plane; the normal points to the inside.
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

        /// Whether a point lies strictly on the inner side.
        bool isInside(const Vector3f& p) const { return normal.dot(p - point) > 0.0f; }
    };

    /// Where a box lies.
    enum Enclosure { Inside = 0, PartlyInside = 1, Outside = 2 };

    /// What a camera shows in the rectangle between two pixels, which count from the lower left corner of the drawable.
    /// From corner 0 to 1 the rectangle goes to the right and down, or to the left and up; one that goes otherwise, or
    /// has no width or height, holds nothing that the camera shows. The normals of the planes have length 1.
    SelectionFrustrum(const ICameraTransforms& camera, int x0, int y0, int x1, int y1);
    /// From eight corners: the four of the near end, then the four of the far end in the same order. The normals have
    /// any length.
    SelectionFrustrum(const Vector3f& v1, const Vector3f& v2, const Vector3f& v3, const Vector3f& v4,
                      const Vector3f& v5, const Vector3f& v6, const Vector3f& v7, const Vector3f& v8);

    const std::array<FrustrumPlane, 4>& getPlanes() const { return m_planes; }

    /// Whether a point lies strictly inside: a point on a plane is outside.
    bool isInside(float x, float y, float z) const { return isInside(Vector3f(x, y, z)); }
    bool isInside(const Vector3f& p) const
    {
        return m_planes[0].isInside(p) && m_planes[1].isInside(p) && m_planes[2].isInside(p) && m_planes[3].isInside(p);
    }
    /// Where a box lies, as a number of Enclosure. An empty box is outside. A box that lies outside without any single
    /// plane shutting it out counts as partly inside.
    int enclosesBoundingBox(const BoundingBox& box) const;
    /// How many of a box's eight corners lie strictly on the inner side of a plane.
    static int calcNumberOfInside(const FrustrumPlane& plane, const BoundingBox& box);

private:
    std::array<FrustrumPlane, 4> m_planes;
};

} // namespace vxgraphics3d
