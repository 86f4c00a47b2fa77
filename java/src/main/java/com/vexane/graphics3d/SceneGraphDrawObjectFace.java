package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;

/**
 * A draw object that shows a face: sheets with their lines and points.
 */
public final class SceneGraphDrawObjectFace extends SceneGraphDrawObject {
    /**
     * Makes an empty face object.
     *
     * @param id the id by which picks report the object; records for it have the same id
     */
    public SceneGraphDrawObjectFace(int id) {
        createNative(this, id);
    }

    private SceneGraphDrawObjectFace() {}

    /**
     * Makes another peer of a face object that has a parent.
     *
     * @param parent the parent
     * @param childId the id of the object under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one of another class
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphDrawObjectFace connect(SceneGraphParent parent, int childId) {
        SceneGraphDrawObjectFace object = new SceneGraphDrawObjectFace();
        connectNative(object, requireOpen(parent, "parent"), childId);
        return object;
    }

    /**
     * Replaces everything by geometry in the plane. All marks are gone afterwards. A record for another id is used all the
     * same, and logged.
     *
     * @param record the peer of a record of a draw object in the plane
     * @throws NativeException if the peer is not such a record, or if it is not consistent; the message names what is
     *     wrong, and the object is unchanged; or if memory runs out, which leaves it without parts
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject2D(NativePeer record) {
        fillObject2D(this, requireOpen(record, "record"));
    }

    /**
     * Replaces everything by geometry in space. All marks are gone afterwards. A record for another id is used all the
     * same, and logged.
     *
     * @param record the peer of a record of a draw object in space
     * @throws NativeException if the peer is not such a record, or if it is not consistent; the message names what is
     *     wrong, and the object is unchanged; or if memory runs out, which leaves it without parts
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject(NativePeer record) {
        fillObject(this, requireOpen(record, "record"));
    }

    private static native void fillObject2D(SceneGraphDrawObjectFace peer, Object record);

    private static native void fillObject(SceneGraphDrawObjectFace peer, Object record);

    private static native void createNative(SceneGraphDrawObjectFace peer, int id);

    private static native void connectNative(SceneGraphDrawObjectFace peer, SceneGraphNode owner, int childId);
}
