package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * A node of the scene tree: a parent of other nodes, an object to show, or a group of plots.
 *
 * <p>A node is owned by the parents that hold it and by its peers, so a peer may be closed while its node stays in the
 * scene, and a node that was taken out of the scene lives on while a peer holds it. A node may stand under several
 * parents; it answers to the one that took it last.
 *
 * <p>Bounding boxes are kept in every node and are up to date at once: a change of a box costs a merge of the boxes of
 * all siblings on each level above, as far up as the boxes change.
 */
public abstract class SceneGraphNode extends NativePeer {
    /** What a node is. */
    public enum NodeType {
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

        /**
         * The number by which native code knows the type.
         *
         * @return 0 to 3
         */
        public int number() {
            return number;
        }

        static NodeType of(int number) {
            return values()[number];
        }
    }

    SceneGraphNode() {}

    /**
     * What the node is.
     *
     * @return the type
     */
    public NodeType getType() {
        return NodeType.of(getType(this));
    }

    /**
     * The id of the node under the parent that it answers to.
     *
     * @return from 1 under a group, 0 under a root; -1 before the node had a parent, and 0 after it has lost its parent
     */
    public int getChildId() {
        return getChildId(this);
    }

    /**
     * Whether the node is shown.
     *
     * @return true unless it was hidden
     */
    public boolean isActive() {
        return isActive(this);
    }

    /**
     * Shows or hides the node and all below it. A hidden node counts as empty in the boxes above it.
     *
     * @param active true to show the node
     */
    public void setActive(boolean active) {
        setActive(this, active);
    }

    /** Takes the node out of the parent that it answers to, if there is one. */
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
