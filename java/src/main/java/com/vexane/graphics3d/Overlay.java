package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * A list of flat shapes that a view draws over its scene, in the order in which they were added. A view of the renderer
 * gets it with its method {@code setOverlay}.
 *
 * <pre>{@code
 * Overlay overlay = new Overlay();
 * OverlayRectangle rectangle = new OverlayRectangle();
 * rectangle.setStart(0, 0);
 * rectangle.setEnd(4, 3);
 * overlay.addOverlayObject(rectangle, 1);
 * renderer.setOverlay(overlay);
 * renderer.draw();
 * }</pre>
 *
 * <p>An object that was added stays in the overlay when its peer is closed. All calls except
 * {@link #removeOverlayObject} take constant time.
 */
public final class Overlay extends NativePeer {
    /** Makes an empty overlay. */
    public Overlay() {
        createNative(this);
    }

    /**
     * Appends an object to the list. The same object may be added several times, and to several overlays.
     *
     * @param object the object
     * @param pickId the id that reports a hit on the object; it replaces an earlier one
     * @throws NullPointerException if the object is null
     * @throws IllegalStateException if the object's peer is closed
     */
    public void addOverlayObject(OverlayObject object, int pickId) {
        addOverlayObject(this, requireOpen(object, "object"), pickId);
    }

    /**
     * Removes all entries with an object. An object that is not in the list is ignored. Takes time in proportion to the
     * length of the list.
     *
     * @param object the object
     * @throws NullPointerException if the object is null
     * @throws IllegalStateException if the object's peer is closed
     */
    public void removeOverlayObject(OverlayObject object) {
        removeOverlayObject(this, requireOpen(object, "object"));
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(Overlay peer);

    private static native void cleanupNative(Overlay peer);

    private static native void addOverlayObject(Overlay peer, OverlayObject object, int pickId);

    private static native void removeOverlayObject(Overlay peer, OverlayObject object);
}
