#pragma once

namespace vxgraphics3d {

/// Names what a renderer's mouse handling reports to Java; the handling itself is the renderer's.
class MouseActionHandler {
public:
    /// What is left to do after a mouse action: numbers 0 to 7, whose meaning the renderer and its Java side agree on.
    enum PostMouseActions : int {};
};

} // namespace vxgraphics3d
