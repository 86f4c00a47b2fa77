package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;

/**
 * Curves and points projected to the plane z = 0, in two classes that look different.
 *
 * <p>The points of the record are snap vertices of the scene. A projection cannot be picked.
 */
public final class SceneGraphDrawProj extends SceneGraphObject {
    /**
     * Makes an empty object that belongs to no scene.
     *
     * @param id an id for the caller
     */
    public SceneGraphDrawProj(int id) {
        createNative(this, id);
    }

    /** {@return the id, which was given when the object was made} */
    public int getId() {
        return getId(this);
    }

    /**
     * Replaces all curves and points by those of a record. Curves and points of kind 1 are in the first class, those of
     * all other kinds in the second. The object keeps no reference to the record.
     *
     * @param record the peer of a record of projected geometry
     * @throws NativeException if the peer is not such a record, or if an array of the record is missing or too short, in
     *     which case the message names it; nothing has changed then
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject(NativePeer record) {
        fillObject(this, requireOpen(record, "record"));
    }

    private static native void createNative(SceneGraphDrawProj peer, int id);

    private static native void fillObject(SceneGraphDrawProj peer, Object record);

    private static native int getId(SceneGraphDrawProj peer);
}
