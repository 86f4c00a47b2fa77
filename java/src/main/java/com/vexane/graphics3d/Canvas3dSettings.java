package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * The settings of one view: 3D or 2D mode, a camera for each, backgrounds, grid box, axes, fonts, and the mouse mode.
 *
 * <p>The settings of a view belong to its renderer and are reached by {@link #connect}; settings made by the
 * constructor belong to no view. The parts of the settings have peers of their own: {@link Camera3d},
 * {@link Camera2d}, {@link GridBoxSettings} and {@link AxisSetup}; they may outlive the settings and the view. All
 * calls except {@link #copyOf} take constant time.
 */
public final class Canvas3dSettings extends NativePeer {
    /** What a view shows. */
    public enum RenderMode implements NativeEnum {
        /** The scene in space, through the 3D camera. */
        VIEW_3D(0),
        /** The scene in a plane, through the 2D camera. */
        VIEW_2D(1);

        private final int number;

        RenderMode(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /**
     * What the mouse does in a view. Constants named {@code RENDERER_n} have the number n and the meaning that the
     * renderer gives them.
     */
    public enum MouseMode implements NativeEnum {
        /** The renderer's mode 0. */
        RENDERER_0(0),
        /** The initial mode. */
        DEFAULT(1),
        /** The renderer's mode 2. */
        RENDERER_2(2),
        /** The renderer's mode 3. */
        RENDERER_3(3),
        /** The renderer's mode 4. */
        RENDERER_4(4),
        /** The renderer's mode 5. */
        RENDERER_5(5),
        /** The renderer's mode 6. */
        RENDERER_6(6);

        private final int number;

        MouseMode(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** The kinds of text that belong to a view, each with a font of its own. */
    public enum Text implements NativeEnum {
        /** Titles of axes. */
        AXIS_TITLE(0),
        /** Numbers along axes and grid boxes. */
        AXIS_TICK(1),
        /** Titles of legends, and names in line legends. */
        LEGEND_TITLE(2),
        /** Numbers next to legends. */
        LEGEND_TICK(3),
        /** Letters of the axis orientation indicator. */
        AXIS_ORIENTATION(4);

        private final int number;

        Text(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** Where the image of a background is between left and right. */
    public enum HorizontalPosition implements NativeEnum {
        /** At the left. */
        LEFT(0),
        /** In the middle. */
        CENTER(1),
        /** At the right. */
        RIGHT(2);

        private final int number;

        HorizontalPosition(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** Where the image of a background is between top and bottom. */
    public enum VerticalPosition implements NativeEnum {
        /** At the top. */
        TOP(0),
        /** In the middle. */
        CENTER(1),
        /** At the bottom. */
        BOTTOM(2);

        private final int number;

        VerticalPosition(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /**
     * Makes settings that belong to no view: 3D mode, new cameras, a black background, and the fonts that the
     * {@linkplain Canvas3dGlobalSettings settings of the process} have now.
     */
    public Canvas3dSettings() {
        createNative(this);
    }

    private Canvas3dSettings(NativePeer renderer) {
        connectNative(this, requireOpen(renderer, "renderer"));
    }

    private Canvas3dSettings(Canvas3dSettings source) {
        cloneNative(this, requireOpen(source, "source"));
    }

    /**
     * Makes a peer of a view's settings.
     *
     * @param renderer the peer of the renderer's view
     * @return the peer
     * @throws NullPointerException if the view's peer is null
     * @throws IllegalStateException if the view's peer is closed
     * @throws NativeException if the peer is not a view of a renderer, or the view has no settings
     */
    public static Canvas3dSettings connect(NativePeer renderer) {
        return new Canvas3dSettings(renderer);
    }

    /**
     * Copies settings, including cameras, grid box, axes and indicator. Only the images of backgrounds are shared.
     *
     * @param source the settings to copy
     * @return the copy, which belongs to no view
     * @throws NullPointerException if the source is null
     * @throws IllegalStateException if the source is closed
     */
    public static Canvas3dSettings copyOf(Canvas3dSettings source) {
        return new Canvas3dSettings(source);
    }

    /**
     * {@return what the view shows, initially {@link RenderMode#VIEW_3D}}
     *
     * @throws IllegalStateException if the renderer has set a mode that has no constant here
     */
    public RenderMode getRenderMode() {
        return NativeEnum.of(RenderMode.class, getRenderMode(this));
    }

    /**
     * Sets what the view shows.
     *
     * @param mode the mode
     * @throws NullPointerException if the mode is null
     */
    public void setRenderMode(RenderMode mode) {
        setRenderMode(this, mode.number());
    }

    /**
     * {@return which kinds of item the renderer draws: one bit per kind, among bits 0 to 20 and 25; initially all of
     * them}
     */
    public int getRenderMask() {
        return getRenderMask(this);
    }

    /**
     * Sets which kinds of item the renderer draws. What the bits mean is the renderer's choice.
     *
     * @param mask one bit per kind; bits other than 0 to 20 and 25 are ignored
     */
    public void setRenderMask(int mask) {
        setRenderMask(this, mask);
    }

    /**
     * Makes the renderer draw more kinds of item.
     *
     * @param mask one bit per additional kind; bits other than 0 to 20 and 25 are ignored
     */
    public void addRenderMask(int mask) {
        addRenderMask(this, mask);
    }

    /**
     * Makes the renderer draw fewer kinds of item.
     *
     * @param mask one bit per kind to leave out; bits other than 0 to 20 and 25 are ignored
     */
    public void removeRenderMask(int mask) {
        removeRenderMask(this, mask);
    }

    /** {@return what the mouse does in the view, initially {@link MouseMode#DEFAULT}} */
    public MouseMode getMouseMode() {
        return NativeEnum.of(MouseMode.class, getMouseMode(this));
    }

    /**
     * Sets what the mouse does in the view.
     *
     * @param mode the mode
     * @throws NullPointerException if the mode is null
     */
    public void setMouseMode(MouseMode mode) {
        setMouseMode(this, mode.number());
    }

    /** {@return whether the pointer snaps to vertices, initially true} */
    public boolean getSnap() {
        return getSnap(this);
    }

    /**
     * Sets whether the pointer snaps to vertices.
     *
     * @param snap true to snap
     */
    public void setSnap(boolean snap) {
        setSnap(this, snap);
    }

    /**
     * {@return the name of the font of a kind of text}
     *
     * @param text the kind of text
     * @throws NullPointerException if the kind is null
     */
    public String getFontName(Text text) {
        return getFontName(this, text.number());
    }

    /**
     * {@return the size in points of the font of a kind of text, -1 if none has been set}
     *
     * @param text the kind of text
     * @throws NullPointerException if the kind is null
     */
    public int getFontSize(Text text) {
        return getFontSize(this, text.number());
    }

    /**
     * Sets the font of a kind of text.
     *
     * @param text the kind of text
     * @param name the name of the font
     * @param size the size in points
     * @throws NullPointerException if the kind or the name is null
     */
    public void setFont(Text text, String name, int size) {
        setFont(this, text.number(), Objects.requireNonNull(name, "name"), size);
    }

    /**
     * Sets the background of a mode to one colour.
     *
     * @param mode the mode
     * @param color 0xRRGGBB; higher bits are ignored
     * @throws NullPointerException if the mode is null
     */
    public void setBackgroundColor(RenderMode mode, int color) {
        setBackgroundColor(this, mode.number(), color);
    }

    /**
     * Sets the background of a mode to a gradient of two colours. Two equal colours are one plain colour.
     *
     * @param mode the mode
     * @param topColor 0xRRGGBB; higher bits are ignored
     * @param bottomColor 0xRRGGBB; higher bits are ignored
     * @throws NullPointerException if the mode is null
     */
    public void setShadedBackground(RenderMode mode, int topColor, int bottomColor) {
        setShadedBackground(this, mode.number(), topColor, bottomColor);
    }

    /**
     * {@return whether the background of a mode has two colours, initially false}
     *
     * @param mode the mode
     * @throws NullPointerException if the mode is null
     */
    public boolean isBackgroundShaded(RenderMode mode) {
        return isBackgroundShaded(this, mode.number());
    }

    /**
     * {@return the colour at the top of the background of a mode as 0xRRGGBB, initially black}
     *
     * @param mode the mode
     * @throws NullPointerException if the mode is null
     */
    public int getTopBackgroundColor(RenderMode mode) {
        return getTopBackgroundColor(this, mode.number());
    }

    /**
     * {@return the colour at the bottom of the background of a mode as 0xRRGGBB, initially black}
     *
     * @param mode the mode
     * @throws NullPointerException if the mode is null
     */
    public int getBottomBackgroundColor(RenderMode mode) {
        return getBottomBackgroundColor(this, mode.number());
    }

    /**
     * Sets the image on the background of a mode. The view holds a reference to the image and follows its
     * changes.
     *
     * @param mode the mode
     * @param image the image, or null for none
     * @param horizontal where it is between left and right
     * @param vertical where it is between top and bottom
     * @throws NullPointerException if the mode or a position is null
     * @throws IllegalStateException if the image is closed
     */
    public void setBackgroundImage(
            RenderMode mode, CanvasBackgroundImage image, HorizontalPosition horizontal, VerticalPosition vertical) {
        if (image != null) {
            requireOpen(image, "image");
        }
        setBackgroundImage(this, mode.number(), image, horizontal.number(), vertical.number());
    }

    /** {@return whether the axis orientation indicator is shown, initially false} */
    public boolean isAxisOrientationIndicatorShown() {
        return isAxisOrientationIndicatorShown(this);
    }

    /**
     * Sets whether the axis orientation indicator is shown.
     *
     * @param show true to show it
     */
    public void setShowAxisOrientationIndicator(boolean show) {
        setShowAxisOrientationIndicator(this, show);
    }

    /**
     * Sets how the axis orientation indicator looks.
     *
     * @param length the length of its axes, in the renderer's units
     * @param labelX the label of the x axis
     * @param colorX the colour of the x axis, 0xRRGGBB; higher bits are ignored
     * @param labelY the label of the y axis
     * @param colorY the colour of the y axis, 0xRRGGBB; higher bits are ignored
     * @param labelZ the label of the z axis
     * @param colorZ the colour of the z axis, 0xRRGGBB; higher bits are ignored
     * @throws NullPointerException if a label is null
     */
    public void setAxisOrientationIndicator(
            float length, String labelX, int colorX, String labelY, int colorY, String labelZ, int colorZ) {
        setAxisOrientationIndicator(
                this,
                length,
                Objects.requireNonNull(labelX, "labelX"),
                colorX,
                Objects.requireNonNull(labelY, "labelY"),
                colorY,
                Objects.requireNonNull(labelZ, "labelZ"),
                colorZ);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(Canvas3dSettings peer);

    private static native void cleanupNative(Canvas3dSettings peer);

    private static native void connectNative(Canvas3dSettings peer, Object renderer);

    private static native void cloneNative(Canvas3dSettings peer, Canvas3dSettings source);

    private static native int getRenderMode(Canvas3dSettings peer);

    private static native void setRenderMode(Canvas3dSettings peer, int mode);

    private static native int getRenderMask(Canvas3dSettings peer);

    private static native void setRenderMask(Canvas3dSettings peer, int mask);

    private static native void addRenderMask(Canvas3dSettings peer, int mask);

    private static native void removeRenderMask(Canvas3dSettings peer, int mask);

    private static native int getMouseMode(Canvas3dSettings peer);

    private static native void setMouseMode(Canvas3dSettings peer, int mode);

    private static native boolean getSnap(Canvas3dSettings peer);

    private static native void setSnap(Canvas3dSettings peer, boolean snap);

    private static native String getFontName(Canvas3dSettings peer, int item);

    private static native int getFontSize(Canvas3dSettings peer, int item);

    private static native void setFont(Canvas3dSettings peer, int item, String name, int size);

    private static native void setBackgroundColor(Canvas3dSettings peer, int mode, int color);

    private static native void setShadedBackground(Canvas3dSettings peer, int mode, int topColor, int bottomColor);

    private static native boolean isBackgroundShaded(Canvas3dSettings peer, int mode);

    private static native int getTopBackgroundColor(Canvas3dSettings peer, int mode);

    private static native int getBottomBackgroundColor(Canvas3dSettings peer, int mode);

    private static native void setBackgroundImage(
            Canvas3dSettings peer, int mode, CanvasBackgroundImage image, int horizontal, int vertical);

    private static native boolean isAxisOrientationIndicatorShown(Canvas3dSettings peer);

    private static native void setShowAxisOrientationIndicator(Canvas3dSettings peer, boolean show);

    private static native void setAxisOrientationIndicator(
            Canvas3dSettings peer,
            float length,
            String labelX,
            int colorX,
            String labelY,
            int colorY,
            String labelZ,
            int colorZ);
}
