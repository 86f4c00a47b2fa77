#pragma once

#include "graphics3d/plots/surfacemesh.h"
#include "graphics3d/plots/vector/arrowdescription.h"

#include <memory>

namespace vxrenderer {

/// The form of arrows along the z axis: round, or flat in the plane of y and z. As instances of a flat one point into
/// the plane of x and y, their other axis does so as well.
enum class ArrowForm { flat, round };

// The meshes of which arrows consist, with sizes for an arrow or a part of length 1.

/// A whole arrow, whose anchor point is at the origin.
std::unique_ptr<vxgraphics3d::SurfaceMesh> arrowMesh(const vxgraphics3d::ArrowDescription& description, ArrowForm form);
/// A head of length 1, which starts at the origin.
std::unique_ptr<vxgraphics3d::SurfaceMesh> headMesh(const vxgraphics3d::ArrowDescription& description, ArrowForm form);
/// A shaft of length and radius 1, which starts at the origin.
std::unique_ptr<vxgraphics3d::SurfaceMesh> shaftMesh(ArrowForm form);

/// The part of an arrow that lies before its anchor point, from 0 to 1.
float anchorOf(const vxgraphics3d::ArrowDescription& description);

} // namespace vxrenderer
