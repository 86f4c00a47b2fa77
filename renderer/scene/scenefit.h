#pragma once

namespace vxgraphics3d {
class Camera2d;
class Camera3d;
} // namespace vxgraphics3d

namespace vxrenderer {

struct Frame;
struct FrameLayout;

/// Lets a 3D camera, which keeps its direction, show everything that a frame draws as large as its area allows: what
/// items are drawn from, the grid box, the markers of lights, and texts, whose size does not follow the zoom: labels,
/// and the numbers and names along the edges of the grid box. Markers reduce the scene to half its size at most. The
/// margin of the global settings stays free around them. If these ask for the sphere around the scene, that sphere is
/// shown instead.
///
/// It takes a pass over the points of the scene and a few layouts of the grid box.
/// @param layout of the frame, with its area
void fitCamera(vxgraphics3d::Camera3d& camera, const Frame& frame, const FrameLayout& layout);

/// The free space on each side of a fitted scene, as a part of the area that it fills.
double marginOfFit();

/// The same for a flat scene with its labels. The numbers of its axes are outside of the area of the camera.
void fitCamera(vxgraphics3d::Camera2d& camera, const Frame& frame, const FrameLayout& layout);

} // namespace vxrenderer
