#include "graphics3d/picking/selectionfrustrum.h"

#include "graphics3d/viewing/icameratransforms.h"

namespace vxgraphics3d {

namespace {

/// The plane through a near corner, the next near corner, and the far corner that corresponds to the first.
SelectionFrustrum::FrustrumPlane planeThrough(const Vector3f& corner, const Vector3f& next, const Vector3f& behind)
{
    return {corner, (next - corner).cross(behind - corner)};
}

} // namespace

SelectionFrustrum::SelectionFrustrum(const ICameraTransforms& camera, int x0, int y0, int x1, int y1)
    : SelectionFrustrum(camera.screenToWorld(x0, y0, -1.0f), camera.screenToWorld(x0, y1, -1.0f),
                        camera.screenToWorld(x1, y1, -1.0f), camera.screenToWorld(x1, y0, -1.0f),
                        camera.screenToWorld(x0, y0, 1.0f), camera.screenToWorld(x0, y1, 1.0f),
                        camera.screenToWorld(x1, y1, 1.0f), camera.screenToWorld(x1, y0, 1.0f))
{
    for (FrustrumPlane& plane : m_planes) {
        plane.normal.normalize();
    }
}

SelectionFrustrum::SelectionFrustrum(const Vector3f& v1, const Vector3f& v2, const Vector3f& v3, const Vector3f& v4,
                                     const Vector3f& v5, const Vector3f& v6, const Vector3f& v7, const Vector3f& v8)
    : m_planes{planeThrough(v4, v1, v8), planeThrough(v2, v3, v6), planeThrough(v1, v2, v5), planeThrough(v3, v4, v7)}
{}

int SelectionFrustrum::enclosesBoundingBox(const BoundingBox& box) const
{
    if (!box.isValid()) {
        return Outside;
    }
    bool allInside = true;
    for (const FrustrumPlane& plane : m_planes) {
        const int count = calcNumberOfInside(plane, box);
        if (count == 0) {
            return Outside;
        }
        allInside = allInside && count == 8;
    }
    return allInside ? Inside : PartlyInside;
}

int SelectionFrustrum::calcNumberOfInside(const FrustrumPlane& plane, const BoundingBox& box)
{
    int count = 0;
    for (int corner = 0; corner < 8; ++corner) {
        count += plane.isInside(box.getVertex(corner)) ? 1 : 0;
    }
    return count;
}

} // namespace vxgraphics3d
