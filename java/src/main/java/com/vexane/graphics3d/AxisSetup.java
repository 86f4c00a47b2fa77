package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * How the axes of a 2D view are laid out: their type, logarithmic scales, grid spacing and titles, and where the
 * legends of lines are placed.
 *
 * <p>The model stores types, positions and layouts for the renderer. Constants named {@code RENDERER_n} have the number
 * n and the meaning that the renderer gives them.
 */
public final class AxisSetup extends NativePeer {
    /** The types of axes. */
    public enum AxisType implements NativeEnum {
        /** The renderer's type 0. */
        RENDERER_0(0),
        /** Polar axes. */
        POLAR(1),
        /** The renderer's type 2. */
        RENDERER_2(2),
        /** The renderer's type 3. */
        RENDERER_3(3),
        /** The axes of graphs. */
        GRAPH(4),
        /** The initial type. */
        DEFAULT(5),
        /** The renderer's type 6. */
        RENDERER_6(6);

        private final int number;

        AxisType(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** Where the legends of lines are placed. */
    public enum LegendPosition implements NativeEnum {
        /** The initial position. */
        DEFAULT(0),
        /** The renderer's position 1. */
        RENDERER_1(1),
        /** The renderer's position 2. */
        RENDERER_2(2),
        /** The renderer's position 3. */
        RENDERER_3(3);

        private final int number;

        LegendPosition(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** How legends are laid out. */
    public enum LegendLayoutStrategy implements NativeEnum {
        /** The renderer's layout 0. */
        RENDERER_0(0),
        /** The initial layout. */
        DEFAULT(1),
        /** The renderer's layout 2. */
        RENDERER_2(2),
        /** The renderer's layout 3. */
        RENDERER_3(3),
        /** The renderer's layout 4. */
        RENDERER_4(4),
        /** The renderer's layout 5. */
        RENDERER_5(5);

        private final int number;

        LegendLayoutStrategy(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    private AxisSetup() {}

    /**
     * Makes a peer of the axis setup of a view. The setup lives as long as the peer, even after the view is gone.
     *
     * @param settings the settings of the view
     * @return the peer
     * @throws NullPointerException if the settings are null
     * @throws IllegalStateException if the settings are closed
     */
    public static AxisSetup connect(Canvas3dSettings settings) {
        AxisSetup setup = new AxisSetup();
        connectNative(setup, requireOpen(settings, "settings"));
        return setup;
    }

    /**
     * Sets the type of the axes.
     *
     * @param type the type, initially {@link AxisType#DEFAULT}
     * @throws NullPointerException if the type is null
     */
    public void setAxisType(AxisType type) {
        setAxisType(this, Objects.requireNonNull(type, "type").number());
    }

    /** {@return whether the axes are {@linkplain AxisType#POLAR polar}} */
    public boolean isPolar() {
        return isPolar(this);
    }

    /** {@return whether the axes are {@linkplain AxisType#GRAPH those of graphs}} */
    public boolean isGraph() {
        return isGraph(this);
    }

    /** {@return whether the x axis is logarithmic, initially false} */
    public boolean getXAxisLog() {
        return getXAxisLog(this);
    }

    /**
     * Sets whether the x axis is logarithmic.
     *
     * @param logScale true for a logarithmic axis
     */
    public void setXAxisLog(boolean logScale) {
        setXAxisLog(this, logScale);
    }

    /** {@return whether the y axis is logarithmic, initially false} */
    public boolean getYAxisLog() {
        return getYAxisLog(this);
    }

    /**
     * Sets whether the y axis is logarithmic.
     *
     * @param logScale true for a logarithmic axis
     */
    public void setYAxisLog(boolean logScale) {
        setYAxisLog(this, logScale);
    }

    /**
     * Sets whether the renderer chooses the grid spacing.
     *
     * @param autoSpacing true, as initially, for a spacing that the renderer chooses; false for the spacings set here
     */
    public void setAutoSpacing(boolean autoSpacing) {
        setAutoSpacing(this, autoSpacing);
    }

    /** {@return the distance between grid lines on the x axis in data units, initially 0} */
    public double getXAxisSpacing() {
        return getXAxisSpacing(this);
    }

    /**
     * Sets the distance between grid lines on the x axis.
     *
     * @param spacing the distance in data units; not checked
     */
    public void setXSpacing(double spacing) {
        setXSpacing(this, spacing);
    }

    /** {@return the distance between grid lines on the y axis in data units, initially 0} */
    public double getYAxisSpacing() {
        return getYAxisSpacing(this);
    }

    /**
     * Sets the distance between grid lines on the y axis.
     *
     * @param spacing the distance in data units; not checked
     */
    public void setYSpacing(double spacing) {
        setYSpacing(this, spacing);
    }

    /** {@return the additional grid positions on the x axis in data units, as they were set; initially none} */
    public double[] getExtraX() {
        return getExtraX(this);
    }

    /**
     * Sets additional grid positions on the x axis.
     *
     * @param positions the positions in data units, which are copied
     * @throws NullPointerException if the array is null
     */
    public void setExtraX(double... positions) {
        setExtraX(this, Objects.requireNonNull(positions, "positions"));
    }

    /** {@return the additional grid positions on the y axis in data units, as they were set; initially none} */
    public double[] getExtraY() {
        return getExtraY(this);
    }

    /**
     * Sets additional grid positions on the y axis.
     *
     * @param positions the positions in data units, which are copied
     * @throws NullPointerException if the array is null
     */
    public void setExtraY(double... positions) {
        setExtraY(this, Objects.requireNonNull(positions, "positions"));
    }

    /**
     * Sets where the legends of lines are placed.
     *
     * @param position the position, initially {@link LegendPosition#DEFAULT}
     * @throws NullPointerException if the position is null
     */
    public void setLegendPosition(LegendPosition position) {
        setLegendPosition(this, Objects.requireNonNull(position, "position").number());
    }

    /** {@return how legends are laid out, initially {@link LegendLayoutStrategy#DEFAULT}} */
    public LegendLayoutStrategy getLegendLayoutStrategy() {
        return NativeEnum.of(LegendLayoutStrategy.class, getLegendLayoutStrategy(this));
    }

    /**
     * Sets how legends are laid out.
     *
     * @param strategy the layout, initially {@link LegendLayoutStrategy#DEFAULT}
     * @throws NullPointerException if the layout is null
     */
    public void setLegendLayoutStrategy(LegendLayoutStrategy strategy) {
        setLegendLayoutStrategy(this, Objects.requireNonNull(strategy, "strategy").number());
    }

    /**
     * Sets the title of the x axis.
     *
     * @param text plain text; an empty one for no title
     * @throws NullPointerException if the text is null
     */
    public void setXAxisTitle(String text) {
        setXAxisTitle(this, TextFormat.PLAIN.number(), Objects.requireNonNull(text, "text"));
    }

    /**
     * Sets the title of the y axis.
     *
     * @param text plain text; an empty one for no title
     * @throws NullPointerException if the text is null
     */
    public void setYAxisTitle(String text) {
        setYAxisTitle(this, TextFormat.PLAIN.number(), Objects.requireNonNull(text, "text"));
    }

    /**
     * Names the axis of symmetry, whose title is the name and "=0".
     *
     * @param text the name as plain text, such as "r"; an empty one for no title
     * @throws NullPointerException if the text is null
     */
    public void setSymmetryAxis(String text) {
        setSymmetryAxis(this, TextFormat.PLAIN.number(), Objects.requireNonNull(text, "text"));
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(AxisSetup peer, Canvas3dSettings owner);

    private static native void cleanupNative(AxisSetup peer);

    private static native void setAxisType(AxisSetup peer, int type);

    private static native boolean isPolar(AxisSetup peer);

    private static native boolean isGraph(AxisSetup peer);

    private static native void setXAxisLog(AxisSetup peer, boolean logScale);

    private static native void setYAxisLog(AxisSetup peer, boolean logScale);

    private static native boolean getXAxisLog(AxisSetup peer);

    private static native boolean getYAxisLog(AxisSetup peer);

    private static native void setAutoSpacing(AxisSetup peer, boolean autoSpacing);

    private static native void setXSpacing(AxisSetup peer, double spacing);

    private static native void setYSpacing(AxisSetup peer, double spacing);

    private static native double getXAxisSpacing(AxisSetup peer);

    private static native double getYAxisSpacing(AxisSetup peer);

    private static native void setExtraX(AxisSetup peer, double[] positions);

    private static native void setExtraY(AxisSetup peer, double[] positions);

    private static native double[] getExtraX(AxisSetup peer);

    private static native double[] getExtraY(AxisSetup peer);

    private static native void setLegendPosition(AxisSetup peer, int position);

    private static native void setLegendLayoutStrategy(AxisSetup peer, int strategy);

    private static native int getLegendLayoutStrategy(AxisSetup peer);

    private static native void setXAxisTitle(AxisSetup peer, int format, String text);

    private static native void setYAxisTitle(AxisSetup peer, int format, String text);

    private static native void setSymmetryAxis(AxisSetup peer, int format, String text);
}
