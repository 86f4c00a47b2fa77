package com.vexane.graphics3d;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;

/** One view of a renderer that draws nothing, for peers that connect to a renderer. */
public final class TestRenderer extends NativePeer {
    static {
        NativeLibrary.require(TestRenderer.class, "vxtestrenderer");
    }

    /** Makes a view without context and scene, with settings of a view and of picks. */
    public TestRenderer() {
        createNative(this);
    }

    /** Gives the view a context; its fields are 1 to 12 in their order, double buffered, not accelerated. */
    void openContext(int antialiasingType) {
        openContext(this, antialiasingType);
    }

    /** Makes the view show a scene, or none for null; settings of the scene shown before are disconnected. */
    void show(Scene scene) {
        show(this, scene);
    }

    /** Sets the mode of the view as a renderer does, which may have more modes. */
    void setRenderMode(int mode) {
        setRenderMode(this, mode);
    }

    /** The change bits of the settings of the scene that the view shows. */
    int getChangedFlags() {
        return getChangedFlags(this);
    }

    /** The record of a renderer's capabilities, as the native side of these tests fills it. */
    static final class Info extends RendererInfo {
        Info() {
            connectInfo(this);
        }

        /** Makes this record the one in the settings of the process. */
        void announce() {
            TestRenderer.announce(this);
        }

        /** Leaves the process without a renderer. */
        static void withdraw() {
            TestRenderer.announce(null);
        }
    }

    /** An object of the scene tree that shows nothing. */
    static final class Leaf extends SceneGraphObject {
        Leaf() {
            connectObject(this);
        }
    }

    /** Gives a peer without an object an object that no native knows. */
    static void connectForeignTo(NativePeer peer) {
        connectForeign(peer);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(TestRenderer peer);

    private static native void cleanupNative(TestRenderer peer);

    private static native void openContext(TestRenderer peer, int antialiasingType);

    private static native void show(TestRenderer peer, Scene sceneOrNull);

    private static native void setRenderMode(TestRenderer peer, int mode);

    private static native int getChangedFlags(TestRenderer peer);

    private static native void connectInfo(RendererInfo info);

    private static native void connectObject(SceneGraphObject object);

    private static native void connectForeign(NativePeer peer);

    private static native void announce(RendererInfo infoOrNull);

    /** The settings of a graph, then those of each line: symbol, style, colour, number of markers, description. */
    static native String describeGraph(SceneGraphPlotGraph plot);

    /** What the natives of a plot set and none of them returns. */
    static native String describe(SceneGraphPlot plot);

    /** The flags of all parts of a model, its materials, images, markers and connectors, one a line. */
    static native String describeModel(SceneGraphPhysicsObject model);

    /** The title over a plot group, in markup. */
    static native String titleOf(SceneGraphPlotGroup group);

    /** Fails natively: 0 by an exception with a key, 1 for lack of memory, 2 by another exception, 3 by a number. */
    static native void fail(int kind);

    /** Whether natives of all types return zero and leave a Java exception pending when they fail. */
    static native boolean isZeroAfterFailure(int kind);
}
