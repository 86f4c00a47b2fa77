#pragma once

namespace vxgraphics3d {

/// The observer's side of change counting: the change number that the observer took last.
///
/// Change numbers start at 1 and this one at 0, so a new observer is never up to date.
struct LastChangeId {
    int changeId = 0;

    /// Whether the observer has not yet seen the change with this number.
    bool differsFrom(int number) const { return changeId != number; }
    /// Takes the number.
    /// @return whether it differs from the one taken before
    bool take(int number)
    {
        const bool isNew = differsFrom(number);
        changeId = number;
        return isNew;
    }
};

} // namespace vxgraphics3d
