#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// What a pick on a canvas looks for. A plain pair that the renderer's canvas owns; Java sets it, the leaves of the
/// scene tree read it.
struct VX_API CanvasPickSettings {
    /// The kinds of objects that a pick can find.
    enum PickTarget : int {
        PickNone = 0,
        PickObject = 1,
        PickSubdomain = 2,
        PickSheet = 3,
        PickLine = 4,
        PickPoint = 5,
        PickOther = 6
    };

    /// Bits of the mask: which kinds of geometry of a draw object can be picked. Physics objects ignore it.
    enum PickMask : int { PickMaskSheets = 1, PickMaskLines = 2, PickMaskPoints = 4 };

    int pickTarget = PickNone;
    int pickMask = 0;
};

} // namespace vxgraphics3d
