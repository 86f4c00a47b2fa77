package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * What a renderer uses for the export of one picture: resolution, decorations, background, font sizes, and the title
 * and creator stored in the file. Values are not checked before a renderer reads them.
 */
public final class HardcopySettings extends NativePeer {
    /** Makes settings without decorations on a white background, at the current resolution of the screen. */
    public HardcopySettings() {
        createNative(this);
    }

    /** {@return the title stored in the file, initially empty} */
    public String getFileTitle() {
        return getFileTitle(this);
    }

    /**
     * Sets the title stored in the file.
     *
     * @param title the title
     * @throws NullPointerException if the title is null
     */
    public void setFileTitle(String title) {
        setFileTitle(this, Objects.requireNonNull(title, "title"));
    }

    /** {@return the creator stored in the file, initially empty} */
    public String getFileCreator() {
        return getFileCreator(this);
    }

    /**
     * Sets the creator stored in the file.
     *
     * @param creator the creator
     * @throws NullPointerException if the creator is null
     */
    public void setFileCreator(String creator) {
        setFileCreator(this, Objects.requireNonNull(creator, "creator"));
    }

    /**
     * Sets the background, a gradient from one colour at the top to another at the bottom.
     *
     * @param topColor 0xRRGGBB; higher bits are ignored
     * @param bottomColor 0xRRGGBB; higher bits are ignored
     */
    public void setBackground(int topColor, int bottomColor) {
        setBackground(this, topColor, bottomColor);
    }

    /**
     * {@return the size of a kind of text in points; 0 or less, the initial value, means the size on the screen}
     *
     * @param item the kind of text
     * @throws NullPointerException if the item is null
     */
    public int getFontSize(TextItem item) {
        return getFontSize(this, item.number());
    }

    /**
     * Sets the size of a kind of text.
     *
     * @param item the kind of text
     * @param size the size in points; 0 or less for the size on the screen
     * @throws NullPointerException if the item is null
     */
    public void setFontSize(TextItem item, int size) {
        setFontSize(this, item.number(), size);
    }

    /**
     * {@return the resolution of the picture in dots per inch, initially that of the screen when these settings were
     * made}
     */
    public int getDpi() {
        return getDpi(this);
    }

    /**
     * Sets the resolution of the picture.
     *
     * @param dpi dots per inch
     */
    public void setDpi(int dpi) {
        setDpi(this, dpi);
    }

    /** {@return the number of samples per pixel, initially 1} */
    public int getMultisampleSetting() {
        return getMultisampleSetting(this);
    }

    /**
     * Sets the number of samples per pixel.
     *
     * @param setting the number of samples
     */
    public void setMultisampleSetting(int setting) {
        setMultisampleSetting(this, setting);
    }

    /**
     * Sets whether the markers of physics are shown.
     *
     * @param shown true, as initially, to show them
     */
    public void setShowPhysicsMarkers(boolean shown) {
        setShowPhysicsMarkers(this, shown);
    }

    /** {@return whether the background is that of the canvas; initially false, for the background that is set here} */
    public boolean isUseCurrentBackground() {
        return isUseCurrentBackground(this);
    }

    /**
     * Sets whether the background is that of the canvas.
     *
     * @param use false for the background that is set here
     */
    public void setUseCurrentBackground(boolean use) {
        setUseCurrentBackground(this, use);
    }

    /** {@return whether the axis orientation indicator is shown, initially false} */
    public boolean isAxisOrientationShown() {
        return isAxisOrientationShown(this);
    }

    /**
     * Sets whether the axis orientation indicator is shown.
     *
     * @param shown true to show it
     */
    public void setAxisOrientationShown(boolean shown) {
        setAxisOrientationShown(this, shown);
    }

    /** {@return whether legends are shown, initially false} */
    public boolean isLegendsShown() {
        return isLegendsShown(this);
    }

    /**
     * Sets whether legends are shown.
     *
     * @param shown true to show them
     */
    public void setLegendsShown(boolean shown) {
        setLegendsShown(this, shown);
    }

    /** {@return whether axes and grid boxes are shown, initially false} */
    public boolean isAxisShown() {
        return isAxisShown(this);
    }

    /**
     * Sets whether axes and grid boxes are shown.
     *
     * @param shown true to show them
     */
    public void setAxisShown(boolean shown) {
        setAxisShown(this, shown);
    }

    /** {@return whether the title is shown, initially false} */
    public boolean isTitleShown() {
        return isTitleShown(this);
    }

    /**
     * Sets whether the title is shown.
     *
     * @param shown true to show it
     */
    public void setTitleShown(boolean shown) {
        setTitleShown(this, shown);
    }

    /**
     * Sets whether the logo is shown.
     *
     * @param shown true to show it, initially false
     */
    public void setLogoShown(boolean shown) {
        setLogoShown(this, shown);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(HardcopySettings peer);

    private static native void cleanupNative(HardcopySettings peer);

    private static native void setFileTitle(HardcopySettings peer, String title);

    private static native void setFileCreator(HardcopySettings peer, String creator);

    private static native String getFileTitle(HardcopySettings peer);

    private static native String getFileCreator(HardcopySettings peer);

    private static native void setBackground(HardcopySettings peer, int topColor, int bottomColor);

    private static native void setFontSize(HardcopySettings peer, int item, int size);

    private static native int getFontSize(HardcopySettings peer, int item);

    private static native void setDpi(HardcopySettings peer, int dpi);

    private static native void setMultisampleSetting(HardcopySettings peer, int setting);

    private static native int getDpi(HardcopySettings peer);

    private static native int getMultisampleSetting(HardcopySettings peer);

    private static native void setShowPhysicsMarkers(HardcopySettings peer, boolean value);

    private static native void setUseCurrentBackground(HardcopySettings peer, boolean value);

    private static native void setLogoShown(HardcopySettings peer, boolean value);

    private static native void setTitleShown(HardcopySettings peer, boolean value);

    private static native void setAxisShown(HardcopySettings peer, boolean value);

    private static native void setLegendsShown(HardcopySettings peer, boolean value);

    private static native void setAxisOrientationShown(HardcopySettings peer, boolean value);

    private static native boolean isUseCurrentBackground(HardcopySettings peer);

    private static native boolean isTitleShown(HardcopySettings peer);

    private static native boolean isAxisShown(HardcopySettings peer);

    private static native boolean isLegendsShown(HardcopySettings peer);

    private static native boolean isAxisOrientationShown(HardcopySettings peer);
}
