package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;

/**
 * What a drawing context of the renderer turned out to be: sizes of its buffers, and how it smooths edges. The numbers
 * are those of the moment of each call.
 */
public final class ContextData extends NativePeer {
    /** How a renderer smooths edges. */
    public enum AntialiasingType {
        /** Not at all. */
        NONE(0),
        /** By several samples a pixel. */
        FULL_SCREEN(1),
        /** By adding up several pictures. */
        ACCUMULATION_BUFFER(2);

        private final int number;

        AntialiasingType(int number) {
            this.number = number;
        }

        /**
         * The number by which native code knows the type.
         *
         * @return 0 to 2
         */
        public int number() {
            return number;
        }
    }

    private ContextData() {}

    /**
     * Makes a peer of a view's context data.
     *
     * @param renderer the peer of the renderer's view
     * @return the peer
     * @throws NullPointerException if the view's peer is null
     * @throws IllegalStateException if the view's peer is closed
     * @throws NativeException if the peer is no view of a renderer, or the view has no context yet
     */
    public static ContextData connect(NativePeer renderer) {
        ContextData data = new ContextData();
        connectNative(data, requireOpen(renderer, "renderer"));
        return data;
    }

    /**
     * Bits a pixel for its colour.
     *
     * @return the number of bits
     */
    public int getColorBits() {
        return getColorBits(this);
    }

    /**
     * Bits a pixel for red.
     *
     * @return the number of bits
     */
    public int getRedBits() {
        return getRedBits(this);
    }

    /**
     * Bits a pixel for green.
     *
     * @return the number of bits
     */
    public int getGreenBits() {
        return getGreenBits(this);
    }

    /**
     * Bits a pixel for blue.
     *
     * @return the number of bits
     */
    public int getBlueBits() {
        return getBlueBits(this);
    }

    /**
     * Bits a pixel for opacity.
     *
     * @return the number of bits
     */
    public int getAlphaBits() {
        return getAlphaBits(this);
    }

    /**
     * Bits a pixel for depth.
     *
     * @return the number of bits
     */
    public int getDepthBits() {
        return getDepthBits(this);
    }

    /**
     * Bits a pixel for stencils.
     *
     * @return the number of bits
     */
    public int getStencilBits() {
        return getStencilBits(this);
    }

    /**
     * Bits a pixel for red in the accumulation buffer.
     *
     * @return the number of bits
     */
    public int getAccumBufferRedBits() {
        return getAccumBufferRedBits(this);
    }

    /**
     * Bits a pixel for green in the accumulation buffer.
     *
     * @return the number of bits
     */
    public int getAccumBufferGreenBits() {
        return getAccumBufferGreenBits(this);
    }

    /**
     * Bits a pixel for blue in the accumulation buffer.
     *
     * @return the number of bits
     */
    public int getAccumBufferBlueBits() {
        return getAccumBufferBlueBits(this);
    }

    /**
     * Bits a pixel for opacity in the accumulation buffer.
     *
     * @return the number of bits
     */
    public int getAccumBufferAlphaBits() {
        return getAccumBufferAlphaBits(this);
    }

    /**
     * Samples a pixel.
     *
     * @return the number of samples, 0 without multisampling
     */
    public int getMultipleSamples() {
        return getMultipleSamples(this);
    }

    /**
     * Whether pictures are drawn out of sight and shown when they are complete.
     *
     * @return true if so
     */
    public boolean isDoubleBuffered() {
        return isDoubleBuffered(this);
    }

    /**
     * Whether a graphics processor draws.
     *
     * @return true if so, false if the main processor draws
     */
    public boolean isHardwareAccelerated() {
        return isHardwareAccelerated(this);
    }

    /**
     * How edges are smoothed.
     *
     * @return the type; {@link AntialiasingType#NONE} also for one that is not known here
     */
    public AntialiasingType getAntialiasingType() {
        return AntialiasingType.values()[getAntialiasingType(this)];
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(ContextData peer, Object renderer);

    private static native void cleanupNative(ContextData peer);

    private static native int getColorBits(ContextData peer);

    private static native int getRedBits(ContextData peer);

    private static native int getGreenBits(ContextData peer);

    private static native int getBlueBits(ContextData peer);

    private static native int getAlphaBits(ContextData peer);

    private static native int getDepthBits(ContextData peer);

    private static native int getStencilBits(ContextData peer);

    private static native int getAccumBufferRedBits(ContextData peer);

    private static native int getAccumBufferGreenBits(ContextData peer);

    private static native int getAccumBufferBlueBits(ContextData peer);

    private static native int getAccumBufferAlphaBits(ContextData peer);

    private static native int getMultipleSamples(ContextData peer);

    private static native boolean isDoubleBuffered(ContextData peer);

    private static native boolean isHardwareAccelerated(ContextData peer);

    private static native int getAntialiasingType(ContextData peer);
}
