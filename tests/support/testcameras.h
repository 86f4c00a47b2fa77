#pragma once

#include "graphics3d/cameras/camera3d.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace vxgraphics3d {

/// Looks along negative z from (0, 0, 6), clipped at 4 and 8.
inline Camera3d frontCamera()
{
    Camera3d camera;
    camera.lookAt({0.0f, 0.0f, 6.0f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    const float half = 4.0f / 3.0f;
    camera.setBoundingBox(BoundingBox(-half, half, 0.0f, 0.0f, 0.0f, 0.0f));
    return camera;
}

/// All matrices that a renderer reads from a camera.
inline std::vector<Matrixf> displayedMatrices(const Camera3d& camera)
{
    return {camera.getViewTransform(),           camera.getInvViewTransform(),      camera.getRotationTransform(),
            camera.getInvRotationTransform(),    camera.getProjectionTransformRH(), camera.getProjectionTransformLH(),
            camera.getInvProjectionTransformRH()};
}

/// The largest difference of the elements of two matrices, relative to the largest element.
inline float relativeDifference(const Matrixf& a, const Matrixf& b)
{
    float difference = 0.0f;
    float size = 0.0f;
    for (int i = 0; i < 16; ++i) {
        difference = std::max(difference, std::abs(a.data()[i] - b.data()[i]));
        size = std::max(size, std::abs(a.data()[i]));
    }
    return difference / size;
}

/// Random cameras that look at a scene around a rotation point, in both projections and with all resize behaviours; the
/// same ones in every run.
class RandomCameras : public RandomNumbers {
public:
    RandomCameras() : RandomNumbers(20260101) {}

    BoundingBox box(const Vector3f& centre, float size)
    {
        const Vector3f half(uniform(0.1f, size), uniform(0.1f, size), uniform(0.1f, size));
        const Vector3f min = centre - half;
        const Vector3f max = centre + half;
        return {min.x, max.x, min.y, max.y, min.z, max.z};
    }

    Camera3d camera(Camera3d::ProjectionType type, int behaviour)
    {
        Camera3d camera;
        camera.setProjectionType(type);
        camera.setRenderArea(2000, 2000, integer(0, 100), integer(0, 100), integer(50, 1900), integer(50, 1900));
        camera.setAxisViewScales(uniform(0.5f, 2.0f), uniform(0.5f, 2.0f), uniform(0.5f, 2.0f));
        const Vector3f point = vector(5.0f);
        camera.setRotationPoint(point);
        camera.setFOV(uniform(5.0f, 40.0f));
        camera.setVerticalFOV(uniform(5.0f, 40.0f));
        camera.setOrthographicSize(uniform(2.0f, 20.0f));
        camera.setViewingScale(uniform(20.0f, 200.0f));
        camera.setRelativeViewOffset(uniform(-0.3f, 0.3f), uniform(-0.3f, 0.3f));
        const Vector3f centre =
            point.scaled(camera.getAxisViewScaleX(), camera.getAxisViewScaleY(), camera.getAxisViewScaleZ());
        const Vector3f direction = vector(1.0f) + Vector3f(0.0f, 0.0f, 1.5f);
        camera.lookAt(centre - direction.normalized() * uniform(8.0f, 30.0f), direction,
                      vector(1.0f) + Vector3f(3.0f, 0.0f, 0.0f));
        camera.setOverrideResizeBehaviour(true, static_cast<Camera3d::ResizeBehaviour>(behaviour));
        camera.setBoundingBox(box(point, 4.0f));
        return camera;
    }
};

/// Checks 300 random cameras, until the first failure.
template <class Check>
void forRandomCameras(Check check)
{
    RandomCameras random;
    for (int i = 0; i < 300; ++i) {
        const auto type = i % 2 == 0 ? Camera3d::ProjectionPerspective : Camera3d::ProjectionOrthographic;
        SCOPED_TRACE("random camera " + std::to_string(i));
        Camera3d camera = random.camera(type, i / 2 % 6);
        check(camera, random);
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

} // namespace vxgraphics3d
