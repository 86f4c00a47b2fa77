package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * How one view shows one scene: which decorations it shows, the opacity, two fonts and, through
 * {@link SceneSettingsLight}, the light that it uses. The settings stay usable when the view shows another scene, but
 * have no effect then.
 */
public final class SceneSettings extends NativePeer {
    /** The kinds of text that belong to a scene, each with a font of its own. */
    public enum Text implements NativeEnum {
        /** Labels of points and parts. */
        LABEL(0),
        /** The title of the scene. */
        TITLE(1);

        private final int number;

        Text(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    private SceneSettings() {}

    /**
     * Makes a peer of the settings of the scene that a view shows.
     *
     * @param renderer the peer of the renderer's view
     * @return the peer
     * @throws NullPointerException if the view's peer is null
     * @throws IllegalStateException if the view's peer is closed
     * @throws NativeException if the peer is not a view of a renderer, or the view shows no scene
     */
    public static SceneSettings connect(NativePeer renderer) {
        SceneSettings settings = new SceneSettings();
        connectNative(settings, requireOpen(renderer, "renderer"));
        return settings;
    }

    /** {@return whether legends are shown, initially true} */
    public boolean isLegendsShown() {
        return isLegendsShown(this);
    }

    /**
     * Sets whether legends are shown.
     *
     * @param show true to show them
     */
    public void setShowLegends(boolean show) {
        setShowLegends(this, show);
    }

    /** {@return whether the smallest and the largest value of legends are shown, initially true} */
    public boolean isMinMaxShown() {
        return isMinMaxShown(this);
    }

    /**
     * Sets whether the smallest and the largest value of legends are shown.
     *
     * @param show true to show them
     */
    public void setShowMinMax(boolean show) {
        setShowMinMax(this, show);
    }

    /** {@return whether the title is shown, initially true} */
    public boolean isTitleShown() {
        return isTitleShown(this);
    }

    /**
     * Sets whether the title is shown.
     *
     * @param show true to show it
     */
    public void setShowTitle(boolean show) {
        setShowTitle(this, show);
    }

    /** {@return whether labels of points and parts are shown, initially false} */
    public boolean isLabelsShown() {
        return isLabelsShown(this);
    }

    /**
     * Sets whether labels of points and parts are shown.
     *
     * @param show true to show them
     */
    public void setShowLabels(boolean show) {
        setShowLabels(this, show);
    }

    /** {@return whether the markers of physics are shown, initially false} */
    public boolean isPhysicsMarkersShown() {
        return isPhysicsMarkersShown(this);
    }

    /**
     * Sets whether the markers of physics are shown.
     *
     * @param show true to show them
     */
    public void setShowPhysicsMarkers(boolean show) {
        setShowPhysicsMarkers(this, show);
    }

    /** {@return whether the directions of lines are shown, initially false} */
    public boolean isLineDirectionsShown() {
        return isLineDirectionsShown(this);
    }

    /**
     * Sets whether the directions of lines are shown.
     *
     * @param show true to show them
     */
    public void setShowLineDirections(boolean show) {
        setShowLineDirections(this, show);
    }

    /** {@return the opacity of the whole scene, initially 1} */
    public float getGlobalOpacity() {
        return getGlobalOpacity(this);
    }

    /**
     * Sets the opacity of the whole scene.
     *
     * @param opacity 0 (invisible) to 1 (opaque); not checked
     */
    public void setGlobalOpacity(float opacity) {
        setGlobalOpacity(this, opacity);
    }

    /** {@return whether the scene is opaque, that is, whether its opacity is 1 or more} */
    public boolean isGlobalOpaque() {
        return isGlobalOpaque(this);
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

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(SceneSettings peer, Object renderer);

    private static native void cleanupNative(SceneSettings peer);

    private static native boolean isLegendsShown(SceneSettings peer);

    private static native void setShowLegends(SceneSettings peer, boolean show);

    private static native boolean isMinMaxShown(SceneSettings peer);

    private static native void setShowMinMax(SceneSettings peer, boolean show);

    private static native boolean isTitleShown(SceneSettings peer);

    private static native void setShowTitle(SceneSettings peer, boolean show);

    private static native boolean isLabelsShown(SceneSettings peer);

    private static native void setShowLabels(SceneSettings peer, boolean show);

    private static native boolean isPhysicsMarkersShown(SceneSettings peer);

    private static native void setShowPhysicsMarkers(SceneSettings peer, boolean show);

    private static native boolean isLineDirectionsShown(SceneSettings peer);

    private static native void setShowLineDirections(SceneSettings peer, boolean show);

    private static native float getGlobalOpacity(SceneSettings peer);

    private static native void setGlobalOpacity(SceneSettings peer, float opacity);

    private static native boolean isGlobalOpaque(SceneSettings peer);

    private static native String getFontName(SceneSettings peer, int item);

    private static native int getFontSize(SceneSettings peer, int item);

    private static native void setFont(SceneSettings peer, int item, String name, int size);
}
