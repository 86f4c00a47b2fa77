package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeLibrary;
import java.util.Objects;

/**
 * What applies to all canvases of the process: rendering quality, picking, how the mouse moves the cameras, the initial
 * fonts of canvases and scenes, and the precision of numbers.
 *
 * <p>The range of values is not checked. Values last until the process ends; a renderer reads them when it draws next.
 * The settings are not synchronised: all calls, of all scenes, must come from one thread at a time. The colours of
 * marked parts are in {@link MarkingSetups}.
 */
public final class Canvas3dGlobalSettings {
    /** How much effort a renderer spends on a picture. */
    public enum RenderQuality implements NativeEnum {
        /** As little as it can. */
        FAST(0),
        /** Good enough to work with. */
        NORMAL(1),
        /** All it can. */
        BEST(2);

        private final int number;

        RenderQuality(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** What fills the canvas when a 3D camera zooms to the extent of a box. */
    public enum ZoomToExtentBehaviour implements NativeEnum {
        /** The box itself, except for the margin. */
        TIGHT(0),
        /** The sphere around the box, so that the box stays visible when it is turned. */
        SPHERE(1);

        private final int number;

        ZoomToExtentBehaviour(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** What dragging the mouse does to a camera. */
    public enum CameraMouseAction implements NativeEnum {
        /** Turns the scene about the rotation point. Only the default actions contain it. */
        ORBIT(0, -1),
        /** Turns the scene about the line of sight. */
        ORBIT_ROLL(1, 1),
        /** Moves perpendicular to the line to the rotation point. */
        SCENE_MOVE(2, 4),
        /** Moves along the line to the rotation point. */
        SCENE_DOLLY(3, 6),
        /** Turns the camera about itself. */
        TURN(4, 2),
        /** Turns the camera about its line of sight. */
        ROLL(5, 3),
        /** Moves the camera sideways. */
        MOVE(6, 5),
        /** Moves the camera forwards. */
        DOLLY(7, 7),
        /** Shifts the picture. */
        PAN(8, 8),
        /** Scales the picture. */
        ZOOM(9, 9),
        /** Does nothing. */
        NONE(10, 10);

        private final int number;

        /** The number that sets the action, which differs from the number that is read; -1 if it cannot be set. */
        private final int settable;

        CameraMouseAction(int number, int settable) {
            this.number = number;
            this.settable = settable;
        }

        /** {@return the number that native code stores and returns; setting an action uses a different one} */
        @Override
        public int number() {
            return number;
        }
    }

    /** The number of mouse buttons in the table of mouse actions; the first is button 1. */
    public static final int MOUSE_BUTTONS = 3;

    private Canvas3dGlobalSettings() {}

    /** {@return the resolution of the screen in dots per inch} */
    public static int getOnScreenResolution() {
        NativeLibrary.ensureLoaded();
        return nGetOnScreenResolution();
    }

    /**
     * Sets the resolution of the screen.
     *
     * @param dpi dots per inch
     */
    public static void setOnScreenResolution(int dpi) {
        NativeLibrary.ensureLoaded();
        nSetOnScreenResolution(dpi);
    }

    /** {@return whether a renderer may use display lists, initially true} */
    public static boolean isOpenGlDisplayListsUsed() {
        NativeLibrary.ensureLoaded();
        return nIsOpenGlDisplayListsUsed();
    }

    /**
     * Sets whether a renderer may use display lists.
     *
     * @param use whether it may
     */
    public static void setUseOpenGlDisplayLists(boolean use) {
        NativeLibrary.ensureLoaded();
        nSetUseOpenGlDisplayLists(use);
    }

    /** {@return whether a renderer may use a pixel buffer for picking, initially true} */
    public static boolean isPBufferUsedForPicking() {
        NativeLibrary.ensureLoaded();
        return nIsPBufferUsedForPicking();
    }

    /**
     * Sets whether a renderer may use a pixel buffer for picking.
     *
     * @param use whether it may
     */
    public static void setUsePBufferForPicking(boolean use) {
        NativeLibrary.ensureLoaded();
        nSetUsePBufferForPicking(use);
    }

    /** {@return the number of samples per pixel, 0 for no antialiasing} */
    public static int getMultisampleSetting() {
        NativeLibrary.ensureLoaded();
        return nGetMultisampleSetting();
    }

    /**
     * Sets the number of samples per pixel.
     *
     * @param samples the number of samples, 0 for no antialiasing
     */
    public static void setMultisampleSetting(int samples) {
        NativeLibrary.ensureLoaded();
        nSetMultisampleSetting(samples);
    }

    /**
     * Sets whether a renderer may use shaders.
     *
     * @param use whether it may, initially false
     */
    public static void setUseShaders(boolean use) {
        NativeLibrary.ensureLoaded();
        nSetUseShaders(use);
    }

    /** {@return whether edges are smoothed, that is, whether the number of samples per pixel is above 0} */
    public static boolean isAntiAliasing() {
        NativeLibrary.ensureLoaded();
        return nIsAntiAliasing();
    }

    /**
     * Switches the smoothing of edges on, with the first number of samples that the renderer offers, or off. It stays
     * off if there is no renderer or the renderer offers none.
     *
     * @param on true to smooth edges
     */
    public static void setAntiAliasing(boolean on) {
        NativeLibrary.ensureLoaded();
        nSetAntiAliasing(on);
    }

    /** {@return how far from the pointer a part may be and still be picked, in pixels} */
    public static int getPickingTolerance() {
        NativeLibrary.ensureLoaded();
        return nGetPickingTolerance();
    }

    /**
     * Sets how far from the pointer a part may be and still be picked.
     *
     * @param pixels the distance in pixels
     */
    public static void setPickingTolerance(int pixels) {
        NativeLibrary.ensureLoaded();
        nSetPickingTolerance(pixels);
    }

    /** {@return how cameras without a behaviour of their own adapt to a canvas of another shape} */
    public static ResizeBehaviour getResizeBehaviour() {
        NativeLibrary.ensureLoaded();
        return NativeEnum.of(ResizeBehaviour.class, nGetResizeBehaviour());
    }

    /**
     * Sets how cameras without a behaviour of their own adapt to a canvas of another shape.
     *
     * @param behaviour the behaviour
     * @throws NullPointerException if the behaviour is null
     */
    public static void setResizeBehaviour(ResizeBehaviour behaviour) {
        NativeLibrary.ensureLoaded();
        nSetResizeBehaviour(behaviour.number());
    }

    /** {@return what fills the canvas when a 3D camera zooms to the extent of a box} */
    public static ZoomToExtentBehaviour getZoomToExtentBehaviour() {
        NativeLibrary.ensureLoaded();
        return NativeEnum.of(ZoomToExtentBehaviour.class, nGetZoomToExtentBehaviour());
    }

    /**
     * Sets what fills the canvas when a 3D camera zooms to the extent of a box.
     *
     * @param behaviour the behaviour
     * @throws NullPointerException if the behaviour is null
     */
    public static void setZoomToExtentBehaviour(ZoomToExtentBehaviour behaviour) {
        NativeLibrary.ensureLoaded();
        nSetZoomToExtentBehaviour(behaviour.number());
    }

    /** {@return the margin around the scene after a zoom to its extent, as a fraction of the extent} */
    public static float getZoomToExtentMargin() {
        NativeLibrary.ensureLoaded();
        return nGetZoomToExtentMargin();
    }

    /**
     * Sets the margin around the scene after a zoom to its extent.
     *
     * @param margin the margin as a fraction of the extent
     */
    public static void setZoomToExtentMargin(float margin) {
        NativeLibrary.ensureLoaded();
        nSetZoomToExtentMargin(margin);
    }

    /** {@return how fast dragging turns, in radians per pixel} */
    public static float getCameraMouseOrbitSpeed() {
        NativeLibrary.ensureLoaded();
        return nGetCameraMouseOrbitSpeed();
    }

    /**
     * Sets how fast dragging turns.
     *
     * @param speed radians per pixel
     */
    public static void setCameraMouseOrbitSpeed(float speed) {
        NativeLibrary.ensureLoaded();
        nSetCameraMouseOrbitSpeed(speed);
    }

    /** {@return how fast dragging moves, in fractions of the size of the scene per pixel} */
    public static float getCameraMouseDollySpeed() {
        NativeLibrary.ensureLoaded();
        return nGetCameraMouseDollySpeed();
    }

    /**
     * Sets how fast dragging moves.
     *
     * @param speed fractions of the size of the scene per pixel
     */
    public static void setCameraMouseDollySpeed(float speed) {
        NativeLibrary.ensureLoaded();
        nSetCameraMouseDollySpeed(speed);
    }

    /** {@return how fast dragging zooms, in pixels per step of the zoom} */
    public static float getCameraMouseZoomSpeed() {
        NativeLibrary.ensureLoaded();
        return nGetCameraMouseZoomSpeed();
    }

    /**
     * Sets how fast dragging zooms.
     *
     * @param speed pixels per step of the zoom
     */
    public static void setCameraMouseZoomSpeed(float speed) {
        NativeLibrary.ensureLoaded();
        nSetCameraMouseZoomSpeed(speed);
    }

    /**
     * {@return what dragging with a button does while keys are held down; {@link CameraMouseAction#NONE} for a button
     * that is not in the table}
     *
     * @param button 1 to {@value #MOUSE_BUTTONS}
     * @param keyMask the set of keys: 1 for Shift, 2 for Control, 4 for Alt; higher bits are ignored
     */
    public static CameraMouseAction getCameraMouseAction(int button, int keyMask) {
        NativeLibrary.ensureLoaded();
        return NativeEnum.of(CameraMouseAction.class, nGetCameraMouseAction(button, keyMask));
    }

    /**
     * Sets what dragging with a button does while keys are held down. Buttons that are not in the table are ignored.
     *
     * @param button 1 to {@value #MOUSE_BUTTONS}
     * @param keyMask the set of keys: 1 for Shift, 2 for Control, 4 for Alt; higher bits are ignored
     * @param action the action
     * @throws IllegalArgumentException if the action is {@link CameraMouseAction#ORBIT}
     * @throws NullPointerException if the action is null
     */
    public static void setCameraMouseAction(int button, int keyMask, CameraMouseAction action) {
        if (action.settable < 0) {
            throw new IllegalArgumentException("Only the default actions contain " + action + ".");
        }
        NativeLibrary.ensureLoaded();
        nSetCameraMouseAction(button, keyMask, action.settable);
    }

    /** Removes the actions of all buttons, which restores the initial table. */
    public static void resetCameraMouseActions() {
        NativeLibrary.ensureLoaded();
        nResetCameraMouseActions();
    }

    /** Gives the buttons their usual actions: the first turns, the second zooms, the third pans. */
    public static void setDefaultCameraMouseActions() {
        NativeLibrary.ensureLoaded();
        nSetDefaultCameraMouseActions();
    }

    /** {@return the quality of pictures on the screen} */
    public static RenderQuality getOnScreenRenderQuality() {
        NativeLibrary.ensureLoaded();
        return NativeEnum.of(RenderQuality.class, nGetOnScreenRenderQuality());
    }

    /**
     * Sets the quality of pictures on the screen.
     *
     * @param quality the quality
     * @throws NullPointerException if the quality is null
     */
    public static void setOnScreenRenderQuality(RenderQuality quality) {
        NativeLibrary.ensureLoaded();
        nSetOnScreenRenderQuality(quality.number());
    }

    /** {@return the quality of pictures for files and printers} */
    public static RenderQuality getOffScreenRenderQuality() {
        NativeLibrary.ensureLoaded();
        return NativeEnum.of(RenderQuality.class, nGetOffScreenRenderQuality());
    }

    /**
     * Sets the quality of pictures for files and printers.
     *
     * @param quality the quality
     * @throws NullPointerException if the quality is null
     */
    public static void setOffScreenRenderQuality(RenderQuality quality) {
        NativeLibrary.ensureLoaded();
        nSetOffScreenRenderQuality(quality.number());
    }

    /**
     * {@return the name of the font that new canvases and scenes use for a kind of text, initially &quot;default&quot;}
     *
     * @param item the kind of text
     * @throws NullPointerException if the item is null
     */
    public static String getFontName(TextItem item) {
        NativeLibrary.ensureLoaded();
        return nGetFontName(item.number());
    }

    /**
     * {@return the size in points of the font that new canvases and scenes use for a kind of text, initially 12}
     *
     * @param item the kind of text
     * @throws NullPointerException if the item is null
     */
    public static int getFontSize(TextItem item) {
        NativeLibrary.ensureLoaded();
        return nGetFontSize(item.number());
    }

    /**
     * Sets the font that new canvases and scenes use for a kind of text.
     *
     * @param item the kind of text
     * @param name the name of the font
     * @param size the size in points
     * @throws NullPointerException if item or name is null
     */
    public static void setFont(TextItem item, String name, int size) {
        NativeLibrary.ensureLoaded();
        nSetFont(item.number(), Objects.requireNonNull(name, "name"), size);
    }

    /** {@return the number of significant digits of the numbers next to legends} */
    public static int getLegendTickPrecision() {
        NativeLibrary.ensureLoaded();
        return nGetLegendTickPrecision();
    }

    /**
     * Sets the precision of the numbers next to legends.
     *
     * @param digits the number of significant digits
     */
    public static void setLegendTickPrecision(int digits) {
        NativeLibrary.ensureLoaded();
        nSetLegendTickPrecision(digits);
    }

    /** {@return the number of significant digits of the smallest and the largest value in legends} */
    public static int getLegendMinMaxPrecision() {
        NativeLibrary.ensureLoaded();
        return nGetLegendMinMaxPrecision();
    }

    /**
     * Sets the precision of the smallest and the largest value in legends.
     *
     * @param digits the number of significant digits
     */
    public static void setLegendMinMaxPrecision(int digits) {
        NativeLibrary.ensureLoaded();
        nSetLegendMinMaxPrecision(digits);
    }

    /** {@return the number of significant digits of the numbers along axes in 2D} */
    public static int getGridbox2dTickPrecision() {
        NativeLibrary.ensureLoaded();
        return nGetGridbox2dTickPrecision();
    }

    /**
     * Sets the precision of the numbers along axes in 2D.
     *
     * @param digits the number of significant digits
     */
    public static void setGridbox2dTickPrecision(int digits) {
        NativeLibrary.ensureLoaded();
        nSetGridbox2dTickPrecision(digits);
    }

    /** {@return the number of significant digits of the numbers along axes in 3D} */
    public static int getGridbox3dTickPrecision() {
        NativeLibrary.ensureLoaded();
        return nGetGridbox3dTickPrecision();
    }

    /**
     * Sets the precision of the numbers along axes in 3D.
     *
     * @param digits the number of significant digits
     */
    public static void setGridbox3dTickPrecision(int digits) {
        NativeLibrary.ensureLoaded();
        nSetGridbox3dTickPrecision(digits);
    }

    private static native int nGetOnScreenResolution();

    private static native void nSetOnScreenResolution(int value);

    private static native boolean nIsOpenGlDisplayListsUsed();

    private static native void nSetUseOpenGlDisplayLists(boolean use);

    private static native boolean nIsPBufferUsedForPicking();

    private static native void nSetUsePBufferForPicking(boolean use);

    private static native int nGetMultisampleSetting();

    private static native void nSetMultisampleSetting(int value);

    private static native void nSetUseShaders(boolean use);

    private static native boolean nIsAntiAliasing();

    private static native void nSetAntiAliasing(boolean on);

    private static native int nGetPickingTolerance();

    private static native void nSetPickingTolerance(int value);

    private static native int nGetResizeBehaviour();

    private static native void nSetResizeBehaviour(int value);

    private static native int nGetZoomToExtentBehaviour();

    private static native void nSetZoomToExtentBehaviour(int value);

    private static native float nGetZoomToExtentMargin();

    private static native void nSetZoomToExtentMargin(float value);

    private static native float nGetCameraMouseOrbitSpeed();

    private static native void nSetCameraMouseOrbitSpeed(float value);

    private static native float nGetCameraMouseDollySpeed();

    private static native void nSetCameraMouseDollySpeed(float value);

    private static native float nGetCameraMouseZoomSpeed();

    private static native void nSetCameraMouseZoomSpeed(float value);

    private static native int nGetCameraMouseAction(int button, int mask);

    private static native void nSetCameraMouseAction(int button, int mask, int action);

    private static native void nResetCameraMouseActions();

    private static native void nSetDefaultCameraMouseActions();

    private static native int nGetOnScreenRenderQuality();

    private static native void nSetOnScreenRenderQuality(int value);

    private static native int nGetOffScreenRenderQuality();

    private static native void nSetOffScreenRenderQuality(int value);

    private static native String nGetFontName(int item);

    private static native int nGetFontSize(int item);

    private static native void nSetFont(int item, String name, int size);

    private static native int nGetLegendTickPrecision();

    private static native void nSetLegendTickPrecision(int value);

    private static native int nGetLegendMinMaxPrecision();

    private static native void nSetLegendMinMaxPrecision(int value);

    private static native int nGetGridbox2dTickPrecision();

    private static native void nSetGridbox2dTickPrecision(int value);

    private static native int nGetGridbox3dTickPrecision();

    private static native void nSetGridbox3dTickPrecision(int value);
}
