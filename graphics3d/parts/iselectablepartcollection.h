#pragma once

#include "graphics3d/parts/ipartcollection.h"

namespace vxgraphics3d {

/// A collection whose parts can be marked, and get marks from adjacent parts. `MarkCounts` says what each operation
/// does to a part.
class VX_API ISelectablePartCollection : public IPartCollection {
public:
    virtual void setPrimaryMark(bool on, int index) = 0;
    virtual bool isPrimaryMarked(int index) const = 0;
    virtual void setSecondaryMark(bool on, int index) = 0;
    virtual bool isSecondaryMarked(int index) const = 0;
    virtual void setHiddenMark(bool on, int index) = 0;
    virtual bool isHiddenMarked(int index) const = 0;
    virtual void setUnpickableMark(bool on, int index) = 0;
    virtual bool isUnpickableMarked(int index) const = 0;

    virtual void adjacentPrimaryMark(bool on, int index) = 0;
    virtual void adjacentSecondaryMark(bool on, int index) = 0;
    virtual bool adjacentHiddenMark(bool on, int index, int level, int sourceFlags) = 0;
    virtual bool adjacentUnpickableMark(bool on, int index, int level, int sourceFlags) = 0;
};

} // namespace vxgraphics3d
