package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.EnumSet;
import java.util.Objects;
import java.util.Set;

/** What a pick on a canvas looks for: one kind of target, and the kinds of geometry that may answer. */
public final class CanvasPickSettings extends NativePeer {
    /** Kinds of thing that a pick can find. */
    public enum Target {
        /** Nothing. */
        NONE(0),
        /** Whole draw objects. */
        OBJECT(1),
        /** Subdomains of physics objects. */
        SUBDOMAIN(2),
        /** Faces of geometry. */
        SHEET(3),
        /** Edges of geometry. */
        LINE(4),
        /** Vertices of geometry. */
        POINT(5),
        /** What a renderer answers itself. */
        OTHER(6);

        private final int number;

        Target(int number) {
            this.number = number;
        }

        /**
         * The number by which native code knows the target.
         *
         * @return 0 to 6
         */
        public int number() {
            return number;
        }
    }

    /** Kinds of geometry that may answer for a draw object; physics objects answer in any case. */
    public enum Mask {
        /** Faces. */
        SHEETS(1),
        /** Edges. */
        LINES(2),
        /** Vertices. */
        POINTS(4);

        private final int bit;

        Mask(int bit) {
            this.bit = bit;
        }

        /**
         * The bit by which native code knows the kind.
         *
         * @return 1, 2 or 4
         */
        public int bit() {
            return bit;
        }
    }

    /** Makes settings that look for nothing. */
    public CanvasPickSettings() {
        createNative(this);
    }

    /**
     * Connects to the settings of a renderer's canvas.
     *
     * @param canvas the peer of the canvas
     * @throws NativeException if the peer is not the canvas of a renderer
     */
    public CanvasPickSettings(NativePeer canvas) {
        connectNative(this, requireOpen(canvas, "canvas"));
    }

    /**
     * Sets what a pick looks for.
     *
     * @param target the target
     */
    public void setPickTarget(Target target) {
        setPickTarget(this, target.number());
    }

    /**
     * What a pick looks for.
     *
     * @return the target
     */
    public Target getPickTarget() {
        return Target.values()[getPickTarget(this)];
    }

    /**
     * Sets which kinds of geometry may answer for a draw object.
     *
     * @param kinds the kinds; none means that no draw object answers
     */
    public void setPickMask(Set<Mask> kinds) {
        setPickMask(this, Objects.requireNonNull(kinds, "kinds").stream().mapToInt(Mask::bit).sum());
    }

    /**
     * Which kinds of geometry may answer for a draw object.
     *
     * @return the kinds
     */
    public Set<Mask> getPickMask() {
        int bits = getPickMask(this);
        Set<Mask> kinds = EnumSet.noneOf(Mask.class);
        for (Mask kind : Mask.values()) {
            if ((bits & kind.bit()) != 0) {
                kinds.add(kind);
            }
        }
        return kinds;
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void setPickMask(CanvasPickSettings peer, int mask);

    private static native int getPickMask(CanvasPickSettings peer);

    private static native void setPickTarget(CanvasPickSettings peer, int target);

    private static native int getPickTarget(CanvasPickSettings peer);

    private static native void createNative(CanvasPickSettings peer);

    private static native void connectNative(CanvasPickSettings peer, Object renderer);

    private static native void cleanupNative(CanvasPickSettings peer);
}
