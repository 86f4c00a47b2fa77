package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;

/**
 * A node of the scene tree: a parent of other nodes, an object to show, or a group of plots.
 *
 * <p>A node is owned by its parents and by its peers: a peer may be closed while its node stays in the scene, and a
 * node that has been removed from the scene lives on while it has a peer. A node may have several parents; its current
 * parent is the one that added it last.
 *
 * <p>Every node has a bounding box, which is always up to date: a change of a box costs a merge of the boxes of all
 * siblings on each level above, as far up as the boxes change.
 */
public abstract class SceneGraphNode extends NativePeer {
    /** What a node is. */
    public enum NodeType implements NativeEnum {
        /** The root of a scene. */
        ROOT(0),
        /** A group of nodes. */
        GROUP(1),
        /** An object to show. */
        OBJECT(2),
        /** A group of plots. */
        PLOT_GROUP(3);

        private final int number;

        NodeType(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    SceneGraphNode() {}

    /** {@return the type of the node} */
    public NodeType getType() {
        return NativeEnum.of(NodeType.class, getType(this));
    }

    /**
     * {@return the id of the node under its current parent: from 1 under a group, 0 under a root; -1 if the node never
     * had a parent, and 0 if it has lost its parent}
     */
    public int getChildId() {
        return getChildId(this);
    }

    /** {@return whether the node is shown, initially true} */
    public boolean isActive() {
        return isActive(this);
    }

    /**
     * Shows or hides the node and everything below it. A hidden node counts as empty in the boxes above it.
     *
     * @param active true to show the node
     */
    public void setActive(boolean active) {
        setActive(this, active);
    }

    /** Removes the node from its current parent, if there is one. */
    public void disconnectFromParent() {
        disconnectFromParent(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native int getType(SceneGraphNode peer);

    private static native int getChildId(SceneGraphNode peer);

    private static native boolean isActive(SceneGraphNode peer);

    private static native void setActive(SceneGraphNode peer, boolean active);

    private static native void disconnectFromParent(SceneGraphNode peer);

    private static native void cleanupNative(SceneGraphNode peer);
}
