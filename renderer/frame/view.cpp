#include "renderer/frame/view.h"

#include "graphics3d/viewing/icameratransforms.h"

namespace vxrenderer {

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

} // namespace vxrenderer
