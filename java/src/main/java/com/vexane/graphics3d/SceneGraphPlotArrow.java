package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/**
 * A plot of vectors as arrows: how their lengths are mapped and what they look like.
 *
 * <p>A fill sets the scaling back to {@link Scaling#PROPORTIONAL}; all other settings stay.
 */
public abstract class SceneGraphPlotArrow extends SceneGraphPlot {
    /**
     * How the length of a vector maps to the length of its arrow. The longest arrow is equally long with all of them, and
     * a vector of length 0 is not drawn.
     */
    public enum Scaling implements NativeEnum {
        /** Lengths are proportional, and shaft and head are scaled with the arrow. */
        PROPORTIONAL(1),
        /** All arrows are as long as the longest and show the direction only. */
        NORMALIZED(2),
        /**
         * Lengths follow the logarithm: a vector as long as the longest divided by the {@linkplain #setLogRange range}
         * has the length 0, and shorter ones are not drawn.
         */
        LOGARITHMIC(3),
        /**
         * Lengths are proportional, while heads and shafts are as large as those of the longest arrow. An arrow that is
         * shorter than its head is a smaller head without a shaft.
         */
        PROPORTIONAL_EQUAL_HEADS(4),
        /** Lengths follow the square root, which keeps short arrows visible. */
        SQUARE_ROOT(5);

        private final int number;

        Scaling(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** Which point of an arrow is at the point of its vector. */
    public enum Anchor implements NativeEnum {
        /** The arrow starts at the point. */
        TAIL(1),
        /** The middle of the arrow is at the point. */
        CENTER(2),
        /** The arrow ends at the point. */
        TIP(3);

        private final int number;

        Anchor(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** For the classes of this package. */
    SceneGraphPlotArrow() {}

    /**
     * Sets how lengths are mapped, until the next fill.
     *
     * @param scaling the mapping
     * @throws NullPointerException if it is null
     */
    public final void setScalingType(Scaling scaling) {
        setScalingType(this, scaling.number());
    }

    /**
     * Sets which point of an arrow is at the point of its vector; initially the tail.
     *
     * @param anchor the point of the arrow
     * @throws NullPointerException if it is null
     */
    public final void setAnchorPoint(Anchor anchor) {
        setAnchorPoint(this, anchor.number());
    }

    /**
     * Sets the ratio of the longest to the shortest vector that logarithmic scaling shows; initially 1000.
     *
     * @param range the ratio, above 1; with any other number lengths are proportional
     */
    public final void setLogRange(float range) {
        setLogRange(this, range);
    }

    /**
     * Sets the factor for the length of all arrows, initially 1. The bounding box follows with the next fill.
     *
     * @param scale the factor; no arrows are drawn if it is not above 0
     */
    public final void setCommonArrowScale(float scale) {
        setCommonArrowScale(this, scale);
    }

    /**
     * Sets the radius of the shaft, as a fraction of the length of the arrow; initially 0.03.
     *
     * @param radius the fraction
     */
    public final void setShaftRadius(float radius) {
        setShaftRadius(this, radius);
    }

    /**
     * Sets the length of the head, as a fraction of the length of the arrow; initially 0.3.
     *
     * @param length the fraction, from 0 to 1
     */
    public final void setHeadLength(float length) {
        setHeadLength(this, length);
    }

    /**
     * Sets the radius of the head, as a fraction of the length of the arrow; initially 0.1.
     *
     * @param radius the fraction
     */
    public final void setHeadRadius(float radius) {
        setHeadRadius(this, radius);
    }

    private static native void setLogRange(SceneGraphPlotArrow peer, float range);

    private static native void setHeadRadius(SceneGraphPlotArrow peer, float radius);

    private static native void setHeadLength(SceneGraphPlotArrow peer, float length);

    private static native void setShaftRadius(SceneGraphPlotArrow peer, float radius);

    private static native void setCommonArrowScale(SceneGraphPlotArrow peer, float scale);

    private static native void setAnchorPoint(SceneGraphPlotArrow peer, int anchorPoint);

    private static native void setScalingType(SceneGraphPlotArrow peer, int scalingType);
}
