package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.EnumSet;
import java.util.Objects;
import java.util.Set;

/** What a pick on a canvas looks for: one kind of target, and the kinds of geometry by which it can be picked. */
public final class CanvasPickSettings extends NativePeer {
    /** The targets of a pick. */
    public enum Target implements NativeEnum {
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
        /** Targets that the renderer finds by itself. */
        OTHER(6);

        private final int number;

        Target(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** Kinds of geometry by which a draw object can be picked; the pick mask does not concern physics objects. */
    public enum Mask implements NativeEnum {
        /** Faces. */
        SHEETS(1),
        /** Edges. */
        LINES(2),
        /** Vertices. */
        POINTS(4);

        private final int number;

        Mask(int number) {
            this.number = number;
        }

        /** {@return the bit of this kind in the pick mask} */
        @Override
        public int number() {
            return number;
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
     * @throws NullPointerException if the canvas is null
     * @throws IllegalStateException if the peer is closed
     * @throws NativeException if the peer is not the canvas of a renderer
     */
    public CanvasPickSettings(NativePeer canvas) {
        connectNative(this, requireOpen(canvas, "canvas"));
    }

    /**
     * Sets what a pick looks for.
     *
     * @param target the target
     * @throws NullPointerException if the target is null
     */
    public void setPickTarget(Target target) {
        setPickTarget(this, target.number());
    }

    /** {@return what a pick looks for} */
    public Target getPickTarget() {
        return NativeEnum.of(Target.class, getPickTarget(this));
    }

    /**
     * Sets the kinds of geometry by which a draw object can be picked.
     *
     * @param kinds the kinds; with none, no draw object is picked
     * @throws NullPointerException if the set is null
     */
    public void setPickMask(Set<Mask> kinds) {
        setPickMask(this, Objects.requireNonNull(kinds, "kinds").stream().mapToInt(Mask::number).sum());
    }

    /** {@return the kinds of geometry by which a draw object can be picked} */
    public Set<Mask> getPickMask() {
        int bits = getPickMask(this);
        Set<Mask> kinds = EnumSet.noneOf(Mask.class);
        for (Mask kind : Mask.values()) {
            if ((bits & kind.number()) != 0) {
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
