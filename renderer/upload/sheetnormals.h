#pragma once

#include "graphics3d/buffers/vertexlayout.h"

#include <cstdint>
#include <span>

namespace vxrenderer {

/// Replaces normals of a sheet that cannot be its own.
///
/// A sheet is a smooth piece of a body, and its normals are better than those of its triangles. But where sheets meet
/// at an edge, some sources give the mean of both to their vertices. All normals of a flat sheet are that of its plane.
/// On another sheet, a normal far from those of all triangles around its vertex is replaced by their mean.
/// @param vertices of the sheet; normals that are absent or not finite stay
/// @param triangles indices of its vertices
void correctNormals(std::span<vxgraphics3d::VertexNormal> vertices, std::span<const std::uint32_t> triangles);

} // namespace vxrenderer
