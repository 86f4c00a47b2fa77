package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A node with any number of children, which are ordered by their ids.
 *
 * <p>Ids count from 1 in the order of arrival and are never used again. Adding a child takes a time that does not depend
 * on the number of children; removing one takes a merge of the boxes of those that are left.
 */
public final class SceneGraphGroup extends SceneGraphParent {
    /** Makes a group without children that stands in no scene. */
    public SceneGraphGroup() {
        this(true);
        createNative(this);
    }

    private SceneGraphGroup(boolean unattached) {}

    /**
     * Makes a further peer of a group that stands under a parent.
     *
     * @param parent the parent
     * @param childId the id of the group under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one that is no group
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphGroup connect(SceneGraphParent parent, int childId) {
        SceneGraphGroup group = new SceneGraphGroup(true);
        connectNative(group, requireOpen(parent, "parent"), childId);
        return group;
    }

    /**
     * Takes a node in under the next id, which {@link #getChildId} of the node then tells. A node that stands under
     * another parent stays there as well, but answers to this group from now on.
     *
     * @param child the node
     * @throws NativeException if the node is this group, or a parent of it on whatever level; nothing has then changed
     * @throws NullPointerException if the node is null
     * @throws IllegalStateException if the node's peer is closed
     */
    public void addChild(SceneGraphNode child) {
        addChild(this, requireOpen(child, "child"));
    }

    /**
     * Lets a child go.
     *
     * @param childId the id of the child; one that is not there is ignored
     */
    public void removeChild(int childId) {
        removeChild(this, childId);
    }

    /** Lets all children go. */
    public void removeAllChildren() {
        removeAllChildren(this);
    }

    /**
     * The number of children.
     *
     * @return 0 or more
     */
    public int getNoOfChildren() {
        return getNoOfChildren(this);
    }

    /**
     * Whether there is a child with an id.
     *
     * @param childId the id
     * @return true if the group holds such a child
     */
    public boolean doesChildExist(int childId) {
        return doesChildExist(this, childId);
    }

    /**
     * What a child is.
     *
     * @param childId the id of the child
     * @return its type
     * @throws NativeException if there is no such child
     */
    public NodeType getChildType(int childId) {
        return NodeType.of(getChildType(this, childId));
    }

    /**
     * What kind of object a child is.
     *
     * @param childId the id of the child
     * @return its kind
     * @throws NativeException if there is no such child, or one that is no object
     */
    public SceneGraphObject.ObjectType getChildObjectType(int childId) {
        return SceneGraphObject.ObjectType.of(getChildObjectType(this, childId));
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
