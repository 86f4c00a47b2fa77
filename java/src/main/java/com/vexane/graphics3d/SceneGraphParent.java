package com.vexane.graphics3d;

/**
 * A node that has other nodes as children.
 *
 * <p>A parent owns its children. A parent cannot become a descendant of itself: a call that would cause this is refused
 * before anything changes. A tree may be of any depth.
 */
public abstract class SceneGraphParent extends SceneGraphNode {
    SceneGraphParent() {}
}
