#pragma once

namespace vxgraphics3d {

/// Declares what a renderer's mouse handling reports to Java; the renderer implements the handling itself.
class MouseActionHandler {
public:
    /// What remains to be done after a mouse action: numbers 0 to 7, on whose meaning the renderer and its Java code
    /// agree.
    enum PostMouseActions : int {};
};

} // namespace vxgraphics3d
