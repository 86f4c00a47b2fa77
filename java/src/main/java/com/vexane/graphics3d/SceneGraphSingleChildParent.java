package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeException;

/** A node with at most one child, whose id is 0. */
public abstract class SceneGraphSingleChildParent extends SceneGraphParent {
    SceneGraphSingleChildParent() {}

    /**
     * Sets the child and removes the previous one.
     *
     * @param child the node
     * @throws NativeException if the node is this one or an ancestor of it; nothing changes then
     * @throws NullPointerException if the node is null
     * @throws IllegalStateException if the node's peer is closed
     */
    public void setChild(SceneGraphNode child) {
        setChild(this, requireOpen(child, "child"));
    }

    /** {@return whether there is a child} */
    public boolean hasChild() {
        return hasChild(this);
    }

    /**
     * {@return the type of the child}
     *
     * @throws NativeException if there is no child
     */
    public NodeType getChildType() {
        return NativeEnum.of(NodeType.class, getChildType(this));
    }

    /**
     * {@return the kind of object that the child is}
     *
     * @throws NativeException if there is no child, or if it is not an object
     */
    public SceneGraphObject.ObjectType getChildObjectType() {
        return NativeEnum.of(SceneGraphObject.ObjectType.class, getChildObjectType(this));
    }

    private static native void setChild(SceneGraphSingleChildParent peer, SceneGraphNode child);

    private static native boolean hasChild(SceneGraphSingleChildParent peer);

    private static native int getChildType(SceneGraphSingleChildParent peer);

    private static native int getChildObjectType(SceneGraphSingleChildParent peer);
}
