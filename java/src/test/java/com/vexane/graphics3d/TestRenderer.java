package com.vexane.graphics3d;

/** One view of a renderer that draws nothing, for what peers get from a renderer. */
final class TestRenderer extends NativePeer {
    static {
        NativeLibrary.require(TestRenderer.class, "vxtestrenderer");
    }

    /** Makes a view without context. */
    TestRenderer() {
        createNative(this);
    }

    /** Gives the view a context; its fields are 1 to 12 in their order, double buffered, not accelerated. */
    void openContext(int antialiasingType) {
        openContext(this, antialiasingType);
    }

    /** The record of a renderer's capabilities, as the native side of these tests fills it. */
    static final class Info extends RendererInfo {
        Info() {
            connectInfo(this);
        }

        /** Makes this record the one that the settings of the process ask. */
        void announce() {
            TestRenderer.announce(this);
        }

        /** Leaves the process without a renderer. */
        static void withdraw() {
            TestRenderer.announce(null);
        }
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(TestRenderer peer);

    private static native void cleanupNative(TestRenderer peer);

    private static native void openContext(TestRenderer peer, int antialiasingType);

    private static native void connectInfo(RendererInfo info);

    private static native void announce(RendererInfo infoOrNull);
}
