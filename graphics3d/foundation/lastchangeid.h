#pragma once

namespace vxgraphics3d {

/// The observer's side of change counting: the change number that the observer last took.
///
/// Change numbers start at 1 and this one at 0, so a new observer is never up to date.
struct LastChangeId {
    int changeId = 0;

    /// Whether the observer has yet to look at the change that this number counts.
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
