#pragma once

namespace vxrenderer {

// The shaders of spheres, which face the eye, and of discs, which lie in the plane of x and y. Each is one triangle, or
// one point if all are small in the picture, in which every pixel finds out where its line of sight meets the shape.
//
// A sphere stays round whatever the scales of the axes are; its radius is in the mean of the units of x and y. One that
// is smaller than a pixel of the screen is drawn as large as that, and one without a radius not at all.

/// The end of a vertex shader, after the constants c_areDiscs and c_arePoints, the blocks `View`
/// and `Model`, and `Material::c_source`.
extern const char* const c_sphereVertexMain;
/// The end of a fragment shader, after the block `View`, `Material::c_source` and the function `lit`.
extern const char* const c_sphereFragmentMain;

} // namespace vxrenderer
