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
    /// Factor for the intensity of every source.
    virtual float getTotalLightSourceIntensity() const = 0;
    virtual ~ILightSourceParent();
};

} // namespace vxgraphics3d
