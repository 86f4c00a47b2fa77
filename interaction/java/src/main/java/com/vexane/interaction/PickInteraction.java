package com.vexane.interaction;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Canvas3dGlobalSettings;
import com.vexane.graphics3d.CanvasPickSettings;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.PickedObjectCollection;
import com.vexane.graphics3d.Scene;

/**
 * Picks in a view from mouse events: a click finds what it touches, the nearest first, and a rectangle what is inside.
 *
 * <p>The {@link CanvasPickSettings} of the view specify what is looked for. A click also finds what it misses by the
 * {@linkplain Canvas3dGlobalSettings#getPickingTolerance picking tolerance}. Picks go through: parts behind others are
 * found too. Parts that are hidden or unpickable are not, nor is anything outside of the area in which the view draws.
 *
 * <pre>{@code
 * public void mouseReleased(MouseEvent e) {
 *     if (picking.drag(scene, hits, pressX, pressY, e.getX(), e.getY()) > 0) {
 *         PickInteraction.mark(scene, hits, MarkingAction.PRIMARY);
 *         redraw();
 *     }
 * }
 * }</pre>
 *
 * <p>Pointer positions are pixels of the picture as in mouse events: from the top left corner, also outside the
 * picture. A pick changes nothing except its list. Its cost is that of one look at the parts of each group in the
 * picked area. As for all peers, calls must come from one thread at a time, never while the scene is changed.
 */
public final class PickInteraction extends NativePeer {
    private PickInteraction() {}

    /**
     * Makes an interaction with a view.
     *
     * @param renderer the peer of the renderer's view
     * @param canvasHeight the number of rows of the picture, at least 1
     * @return the interaction
     * @throws NullPointerException if the view's peer is null
     * @throws IllegalStateException if the view's peer is closed
     * @throws IllegalArgumentException if the height is below 1
     * @throws com.vexane.base.NativeException if the peer is not a view of a renderer, or the view has no settings
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static PickInteraction connect(NativePeer renderer, int canvasHeight) {
        requireOpen(renderer, "renderer");
        requireHeight(canvasHeight);
        load();
        PickInteraction interaction = new PickInteraction();
        connectNative(interaction, renderer, canvasHeight);
        return interaction;
    }

    /**
     * Sets the number of rows of the picture.
     *
     * @param canvasHeight the number of rows, at least 1
     * @throws IllegalArgumentException if the height is below 1
     */
    public void setCanvasHeight(int canvasHeight) {
        requireHeight(canvasHeight);
        setCanvasHeight(this, canvasHeight);
    }

    /**
     * Picks what a click touches: the parts, or the objects, that are in the pixel under the pointer or not further from
     * it than the picking tolerance. Sheets that the pixel itself shows come first. Otherwise the order is that of
     * the depth of the point of the part that is nearest to the pointer, and of the distance from there to the line of
     * sight.
     *
     * @param scene the scene that the view shows
     * @param result the list, whose contents are replaced
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return the number of entries in the list
     * @throws NullPointerException if the scene or the list is null
     * @throws IllegalStateException if the scene or the list is closed
     */
    public int click(Scene scene, PickedObjectCollection result, int x, int y) {
        return click(this, requireOpen(scene, "scene"), requireOpen(result, "result"), x, y);
    }

    /**
     * Picks what is inside a rectangle: parts all of whose vertices are inside, or objects all of whose points, lines or
     * sheets are. The order is that of the scene's tree.
     *
     * @param scene the scene that the view shows
     * @param result the list, whose contents are replaced
     * @param x0 column of a corner
     * @param y0 row of that corner, from the top
     * @param x1 column of the opposite corner
     * @param y1 row of the opposite corner
     * @return the number of entries in the list
     * @throws NullPointerException if the scene or the list is null
     * @throws IllegalStateException if the scene or the list is closed
     */
    public int rectangle(Scene scene, PickedObjectCollection result, int x0, int y0, int x1, int y1) {
        return rectangle(this, requireOpen(scene, "scene"), requireOpen(result, "result"), x0, y0, x1, y1);
    }

    /**
     * Picks as a press and a release of a button ask for: with a {@link #click} where the button went up, if the pointer
     * has not moved further than the picking tolerance, and otherwise with the {@link #rectangle} between them.
     *
     * @param scene the scene that the view shows
     * @param result the list, whose contents are replaced
     * @param pressX column of the pointer at the press
     * @param pressY row of the pointer at the press, from the top
     * @param releaseX column of the pointer at the release
     * @param releaseY row of the pointer at the release, from the top
     * @return the number of entries in the list
     * @throws NullPointerException if the scene or the list is null
     * @throws IllegalStateException if the scene or the list is closed
     */
    public int drag(Scene scene, PickedObjectCollection result, int pressX, int pressY, int releaseX, int releaseY) {
        return drag(
                this,
                requireOpen(scene, "scene"),
                requireOpen(result, "result"),
                pressX,
                pressY,
                releaseX,
                releaseY);
    }

    /**
     * Marks the parts and objects in the list of a pick, each as {@code markPart} and {@code mark} of its object do.
     * Objects are looked up by their ids among the active ones of the scene; entries without object or part are ignored.
     *
     * @param scene the scene of the pick
     * @param picked the list
     * @param action what is done to the parts
     * @return the number of entries that were found
     * @throws NullPointerException if an argument is null
     * @throws IllegalStateException if the scene or the list is closed
     */
    public static int mark(Scene scene, PickedObjectCollection picked, MarkingAction action) {
        return mark(scene, picked, action, true);
    }

    /**
     * Removes the marks that {@link #mark(Scene, PickedObjectCollection, MarkingAction)} sets.
     *
     * @param scene the scene of the pick
     * @param picked the list
     * @param action what is undone
     * @return the number of entries that were found
     * @throws NullPointerException if an argument is null
     * @throws IllegalStateException if the scene or the list is closed
     */
    public static int unmark(Scene scene, PickedObjectCollection picked, MarkingAction action) {
        return mark(scene, picked, action, false);
    }

    private static int mark(Scene scene, PickedObjectCollection picked, MarkingAction action, boolean on) {
        load();
        return mark(requireOpen(scene, "scene"), requireOpen(picked, "picked"), action.ordinal(), on);
    }

    private static void load() {
        NativeLibrary.require(PickInteraction.class, "vxinteraction");
    }

    private static void requireHeight(int canvasHeight) {
        if (canvasHeight < 1) {
            throw new IllegalArgumentException("canvasHeight is below 1: " + canvasHeight);
        }
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(PickInteraction peer, NativePeer renderer, int canvasHeight);

    private static native void cleanupNative(PickInteraction peer);

    private static native void setCanvasHeight(PickInteraction peer, int canvasHeight);

    private static native int click(PickInteraction peer, Scene scene, PickedObjectCollection result, int x, int y);

    private static native int rectangle(
            PickInteraction peer, Scene scene, PickedObjectCollection result, int x0, int y0, int x1, int y1);

    private static native int drag(
            PickInteraction peer,
            Scene scene,
            PickedObjectCollection result,
            int pressX,
            int pressY,
            int releaseX,
            int releaseY);

    private static native int mark(Scene scene, PickedObjectCollection picked, int action, boolean on);
}
