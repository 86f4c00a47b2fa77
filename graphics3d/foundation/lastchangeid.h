#pragma once

namespace vxgraphics3d {

/// The observer's side of change counting: the change number that the observer last took.
///
/// Change numbers start at 1 and this one at 0, so a new observer is never up to date.
struct LastChangeId {
    int changeId = 0;
};

} // namespace vxgraphics3d
