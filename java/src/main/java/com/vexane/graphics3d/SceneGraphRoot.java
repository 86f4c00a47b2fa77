package com.vexane.graphics3d;

/** The root of the tree of a scene. Every scene has one root, which it creates itself. */
public final class SceneGraphRoot extends SceneGraphSingleChildParent {
    private SceneGraphRoot() {}

    /**
     * Makes a peer of the root of a scene. The tree lives as long as the peer, even after the scene is closed.
     *
     * @param scene the scene
     * @return the peer
     * @throws NullPointerException if the scene is null
     * @throws IllegalStateException if the scene is closed
     */
    public static SceneGraphRoot connect(Scene scene) {
        SceneGraphRoot root = new SceneGraphRoot();
        connectNative(root, requireOpen(scene, "scene"));
        return root;
    }

    private static native void connectNative(SceneGraphRoot peer, Scene owner);
}
