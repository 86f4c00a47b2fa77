package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/** A node with at most one child, whose id is 0. */
public abstract class SceneGraphSingleChildParent extends SceneGraphParent {
    SceneGraphSingleChildParent() {}

    /**
     * Takes a node in, and lets a present child go.
     *
     * @param child the node
     * @throws NativeException if the node is this one, or a parent of it on whatever level; nothing has then changed
     * @throws NullPointerException if the node is null
     * @throws IllegalStateException if the node's peer is closed
     */
    public void setChild(SceneGraphNode child) {
        setChild(this, requireOpen(child, "child"));
    }

    /**
     * Whether there is a child.
     *
     * @return true if there is one
     */
    public boolean hasChild() {
        return hasChild(this);
    }

    /**
     * What the child is.
     *
     * @return its type
     * @throws NativeException if there is no child
     */
    public NodeType getChildType() {
        return NodeType.of(getChildType(this));
    }

    /**
     * What kind of object the child is.
     *
     * @return its kind
     * @throws NativeException if there is no child, or one that is no object
     */
    public SceneGraphObject.ObjectType getChildObjectType() {
        return SceneGraphObject.ObjectType.of(getChildObjectType(this));
    }

    private static native void setChild(SceneGraphSingleChildParent peer, SceneGraphNode child);

    private static native boolean hasChild(SceneGraphSingleChildParent peer);

    private static native int getChildType(SceneGraphSingleChildParent peer);

    private static native int getChildObjectType(SceneGraphSingleChildParent peer);
}
