#include "renderer/paint/picturepoint.h"

#include "renderer/frame/view.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

/// The w of a point of the eye's coordinates after the projection: what lies at the eye or behind it has none above 0.
float projectedW(const View& view, const Vector3f& eye)
{
    return view.projection.get(4, 1) * eye.x + view.projection.get(4, 2) * eye.y + view.projection.get(4, 3) * eye.z +
           view.projection.get(4, 4);
}

bool isInView(const Vector3f& clip)
{
    return std::abs(clip.x) <= 1.0f && std::abs(clip.y) <= 1.0f && std::abs(clip.z) <= 1.0f;
}

} // namespace

std::optional<PicturePoint> PicturePoint::of(const Vector3f& point, const View& view, float reach)
{
    const Vector3f eye = view.sceneToEye * point;
    const float w = projectedW(view, eye);
    const Vector3f clip = view.projection * eye;
    if (!(w > 0.0f) || !isInView(clip)) {
        return std::nullopt;
    }
    const float unitsPerPixel = 2.0f * w / (view.projection.get(2, 2) * static_cast<float>(view.area.height));
    const Vector3f nearer = view.projection * (eye + Vector3f(0.0f, 0.0f, reach * unitsPerPixel));
    return PicturePoint{static_cast<float>(view.area.x) + 0.5f * (1.0f + clip.x) * static_cast<float>(view.area.width),
                        static_cast<float>(view.area.y) + 0.5f * (1.0f - clip.y) * static_cast<float>(view.area.height),
                        clip.z, std::clamp(nearer.z, -1.0f, clip.z)};
}

} // namespace vxrenderer
