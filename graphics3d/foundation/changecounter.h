#pragma once

namespace vxgraphics3d {

/// Adds one to a change number. Readers test change numbers for equality only, so the number may wrap; signed overflow
/// would be undefined, and the addition is therefore made on unsigned values.
inline void raiseChange(int& changeId)
{
    changeId = static_cast<int>(static_cast<unsigned>(changeId) + 1u);
}

} // namespace vxgraphics3d
