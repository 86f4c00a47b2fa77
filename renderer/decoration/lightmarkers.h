#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/paint/linepainter.h"

#include <vector>

namespace vxgraphics3d {
class BoundingBox;
class ICameraTransforms;
class SceneLight;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The sign of a light source: lines in coordinates of the eye, so that it keeps its shape where axes are stretched.
struct LightMarker {
    std::vector<LineSegment> lines;
    vxgraphics3d::Color color;
    bool isSelected = false;
};

/// The signs of all lights whose marker is visible: an arrow from the direction of a direction light, a star for a
/// point light, a star and a cone for a spotlight. The arrow starts outside the scene, or nearer to it where the view
/// ends earlier. Lights that do not shine are grey.
/// @param box of the scene, which sets the size of the signs
std::vector<LightMarker> lightMarkers(const vxgraphics3d::SceneLight& light, const vxgraphics3d::BoundingBox& box,
                                      const vxgraphics3d::ICameraTransforms& camera);

} // namespace vxrenderer
