#include "renderer/frame/view.h"

#include "graphics3d/viewing/icameratransforms.h"

#include <algorithm>

namespace vxrenderer {
namespace {

/// How far samples of the pixels that a line covers lie on both sides beyond it, in pixels.
constexpr float c_sampleReach = 0.6f;

} // namespace

View View::of(const vxgraphics3d::ICameraTransforms& camera, const PixelArea& area, bool isFlat)
{
    View view;
    view.area = area;
    view.sceneToEye = camera.getViewTransform();
    if (camera.hasViewScaleTransform()) {
        view.sceneToEye *= camera.getAxisViewScaleTransform();
    }
    if (isFlat) {
        view.sceneToEye.scale(1.0f, 1.0f, 0.0f);
    }
    view.projection = camera.getProjectionTransformRH();
    // The last row of a perspective projection takes w from the depth.
    view.isPerspective = view.projection.get(4, 3) != 0.0f;
    view.isFlat = isFlat;
    return view;
}

float View::pixelSize() const
{
    return 2.0f / (projection.get(1, 1) * static_cast<float>(area.width));
}

float View::pixelSizeAt(const vxgraphics3d::Vector3f& eyePoint) const
{
    return pixelSize() * (projection.get(4, 3) * eyePoint.z + projection.get(4, 4));
}

DepthShift View::nearer(float pixels) const
{
    const float pixel = pixelSize();
    const float distance = isPerspective ? std::min(pixels * pixel, 0.5f) : pixels * pixel;
    return {projection.get(3, 3) * distance, projection.get(4, 3) * distance};
}

DepthShift View::aboveFaces(float lineWidth) const
{
    return isFlat ? DepthShift{-0.001f, 0.0f} : nearer(3.0f * (std::max(lineWidth, 1.0f) + c_sampleReach));
}

DepthShift View::aboveLayers(int rank) const
{
    const auto steps = static_cast<float>(rank);
    return isFlat ? DepthShift{-0.00005f * steps, 0.0f} : nearer(0.25f * steps);
}

} // namespace vxrenderer
