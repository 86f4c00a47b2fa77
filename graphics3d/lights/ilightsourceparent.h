#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// The owner of a light source, as the source sees it.
class VX_API ILightSourceParent {
public:
    /// Counts a change of one of the sources.
    virtual void markChanged() = 0;
    /// Whether a source may be switched on or off.
    virtual bool mayChangeLightSourceActiveState(int id, bool active) = 0;
    /// Factor on the intensity of every source.
    virtual float getTotalLightSourceIntensity() const = 0;
    virtual ~ILightSourceParent();
};

/// The way from the sources to their owner. A Java peer may hold a source longer than its owner lives; the owner then
/// empties the link, and the source goes on alone.
struct LightSourceLink {
    ILightSourceParent* parent = nullptr;
};

} // namespace vxgraphics3d
