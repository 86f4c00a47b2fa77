#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/solidpainter.h"

#include <vector>

namespace vxgraphics3d {
class BoundingBox;
class ICameraTransforms;
class SceneLight;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The sign of a light source, in coordinates of the eye, so that it keeps its shape where axes are stretched.
struct LightMarker {
    /// A bulb where the light is, and the arrow of a direction light.
    std::vector<Solid> solids;
    /// What shows how it shines.
    std::vector<LineSegment> lines;
    vxgraphics3d::Color color;
    bool isSelected = false;
};

/// The signs of all lights whose marker is visible.
///
/// A direction light has an arrow from its direction, with lines beside it that go on to the scene. The arrow starts
/// outside the scene, or nearer to it where the view ends earlier. A point light has a bulb with rays to all sides, and
/// if it is fixed in the scene a line down to the bottom of the scene, which shows its position. A spotlight has a bulb
/// and its cone, which reaches as far as the middle of the scene, with a line along its axis. Lights that do not shine
/// are grey.
/// @param box of the scene, which sets the size of the signs
std::vector<LightMarker> lightMarkers(const vxgraphics3d::SceneLight& light, const vxgraphics3d::BoundingBox& box,
                                      const vxgraphics3d::ICameraTransforms& camera);

} // namespace vxrenderer
