#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// The parts of one kind of an object, known by their indices. Indices are the caller's to keep in range, here and in
/// all collections.
class VX_API IPartCollection {
public:
    /// The marks of a part that decide how it looks.
    virtual unsigned short getMarkFlags(int index) const = 0;
    virtual ~IPartCollection() = default;
};

} // namespace vxgraphics3d
