#pragma once

namespace vxgraphics3d {

/// The marks of a selectable part, one bit each. The low 16 bits decide how the part looks
/// (`MarkingModeSetup::getMarkingType`), the high 16 bits only what can be done with it. An adjacent mark is one that
/// the part gets from its neighbours.
enum MarkFlags : unsigned {
    MarkPrimary = 0x1,
    MarkSecondary = 0x2,
    MarkHidden = 0x4,
    MarkPrimaryAdjacent = 0x10,
    MarkSecondaryAdjacent = 0x20,
    MarkHiddenAdjacent = 0x40,
    MarkMeshed = 0x100,
    MarkUnpickable = 0x10000,
    MarkUnpickableAdjacent = 0x20000,
};

} // namespace vxgraphics3d
