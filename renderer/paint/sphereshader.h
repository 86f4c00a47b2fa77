#pragma once

namespace vxrenderer {

// The shaders of spheres, which face the eye, and of discs, which lie in the plane of x and y. Each is one triangle, in
// which every pixel finds out where its line of sight meets the shape: a million of them cost a million small triangles.
//
// A sphere stays round whatever the scales of the axes are; its radius is in the mean of the units of x and y. One that
// is smaller than a pixel is drawn as large as a pixel, and one without a radius not at all.

/// The whole vertex shader; it needs the constant c_areDiscs.
extern const char* const c_sphereVertexSource;
/// The end of a fragment shader, after `Material::c_source` and the function `lit`.
extern const char* const c_sphereFragmentMain;

} // namespace vxrenderer
