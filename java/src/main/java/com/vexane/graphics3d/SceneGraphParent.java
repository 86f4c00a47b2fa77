package com.vexane.graphics3d;

/**
 * A node that holds other nodes.
 *
 * <p>A parent owns its children. No parent may come to stand below itself: what would make it so is refused before
 * anything changes. A tree may be of any depth.
 */
public abstract class SceneGraphParent extends SceneGraphNode {
    SceneGraphParent() {}
}
