package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeException;

/**
 * A node with any number of children, which are ordered by their ids.
 *
 * <p>Ids count from 1 in the order of addition and are never reused. Adding a child takes a time that does not depend
 * on the number of children; removing one merges the boxes of the remaining children.
 */
public final class SceneGraphGroup extends SceneGraphParent {
    /** Makes a group without children that belongs to no scene. */
    public SceneGraphGroup() {
        this(true);
        createNative(this);
    }

    private SceneGraphGroup(boolean unattached) {}

    /**
     * Makes another peer of a group that has a parent.
     *
     * @param parent the parent
     * @param childId the id of the group under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one that is not a group
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphGroup connect(SceneGraphParent parent, int childId) {
        SceneGraphGroup group = new SceneGraphGroup(true);
        connectNative(group, requireOpen(parent, "parent"), childId);
        return group;
    }

    /**
     * Adds a node under the next id, which {@link #getChildId} of the node then returns. A node that has another parent
     * stays there as well, but its current parent is this group from now on.
     *
     * @param child the node
     * @throws NativeException if the node is this group or an ancestor of it; nothing changes then
     * @throws NullPointerException if the node is null
     * @throws IllegalStateException if the node's peer is closed
     */
    public void addChild(SceneGraphNode child) {
        addChild(this, requireOpen(child, "child"));
    }

    /**
     * Removes a child.
     *
     * @param childId the id of the child; an id without child is ignored
     */
    public void removeChild(int childId) {
        removeChild(this, childId);
    }

    /** Removes all children. */
    public void removeAllChildren() {
        removeAllChildren(this);
    }

    /** {@return the number of children} */
    public int getNoOfChildren() {
        return getNoOfChildren(this);
    }

    /**
     * {@return whether the group has a child with an id}
     *
     * @param childId the id
     */
    public boolean doesChildExist(int childId) {
        return doesChildExist(this, childId);
    }

    /**
     * {@return the type of a child}
     *
     * @param childId the id of the child
     * @throws NativeException if there is no such child
     */
    public NodeType getChildType(int childId) {
        return NativeEnum.of(NodeType.class, getChildType(this, childId));
    }

    /**
     * {@return the kind of object that a child is}
     *
     * @param childId the id of the child
     * @throws NativeException if there is no such child, or if it is not an object
     */
    public SceneGraphObject.ObjectType getChildObjectType(int childId) {
        return NativeEnum.of(SceneGraphObject.ObjectType.class, getChildObjectType(this, childId));
    }

    private static native void createNative(SceneGraphGroup peer);

    private static native void connectNative(SceneGraphGroup peer, SceneGraphNode owner, int childId);

    private static native void addChild(SceneGraphGroup peer, SceneGraphNode child);

    private static native void removeChild(SceneGraphGroup peer, int childId);

    private static native void removeAllChildren(SceneGraphGroup peer);

    private static native int getNoOfChildren(SceneGraphGroup peer);

    private static native boolean doesChildExist(SceneGraphGroup peer, int childId);

    private static native int getChildType(SceneGraphGroup peer, int childId);

    private static native int getChildObjectType(SceneGraphGroup peer, int childId);
}
