package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * What one or several views show: a tree of nodes, below {@link SceneGraphRoot#connect its root}, and
 * {@linkplain SceneLight#connect light}. How a view shows it is set in the {@link SceneSettings} of that view.
 *
 * <p>A scene lives while its peer is open or a renderer shows it. Its tree and its light live longer if a peer of them
 * is open.
 */
public final class Scene extends NativePeer {
    /** Makes an empty scene. */
    public Scene() {
        createNative(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(Scene peer);

    private static native void cleanupNative(Scene peer);
}
