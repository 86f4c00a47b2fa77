#pragma once

#include "graphics3d/geometry/objectparts.h"

namespace vxgraphics3d {

class PickedObjectCollection;
class SelectionFrustrum;
struct CanvasPickSettings;

// Picks among the parts of an object. Parts that are hidden or unpickable and parts without geometry cannot be picked.
// A part is found if all its vertices are inside the frustum; if the object is known to be inside, no geometry is
// visited.

/// Adds the whole draw object or its points, lines or sheets to the result, as the settings ask for. The whole object
/// is found if all its pickable points are inside, of which there must be one, or else all its lines, or else all
/// its sheets. Parts are added as parts of a solid, regardless of the class of the object.
/// @param inside whether the object is known to be inside the frustum
void pickDrawObject(const ObjectParts& parts, int id, const SelectionFrustrum& frustrum,
                    const CanvasPickSettings& settings, PickedObjectCollection& result, bool inside);

/// Adds points, lines, sheets or subdomains of a physics object to the result; the mask does not apply to them. A
/// subdomain is found if all its pickable sheets are inside, of which there must be one.
/// @param inside whether the object is known to be inside the frustum
void pickPhysicsObject(const ObjectParts& parts, int id, const SelectionFrustrum& frustrum,
                       const CanvasPickSettings& settings, PickedObjectCollection& result, bool inside);

} // namespace vxgraphics3d
