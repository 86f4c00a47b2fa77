package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;

/**
 * A draw object that shows a curve: lines with their points.
 */
public final class SceneGraphDrawObjectCurve extends SceneGraphDrawObject {
    /**
     * Makes an empty curve object.
     *
     * @param id the id by which picks report the object; records for it have the same id
     */
    public SceneGraphDrawObjectCurve(int id) {
        createNative(this, id);
    }

    private SceneGraphDrawObjectCurve() {}

    /**
     * Makes another peer of a curve object that has a parent.
     *
     * @param parent the parent
     * @param childId the id of the object under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one of another class
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphDrawObjectCurve connect(SceneGraphParent parent, int childId) {
        SceneGraphDrawObjectCurve object = new SceneGraphDrawObjectCurve();
        connectNative(object, requireOpen(parent, "parent"), childId);
        return object;
    }

    /**
     * Replaces everything by geometry on the x axis. All marks are gone afterwards. A record for another id is used all the
     * same, and logged.
     *
     * @param record the peer of a record of a draw object on the x axis
     * @throws NativeException if the peer is not such a record, or if it is not consistent; the message names what is
     *     wrong, and the object is unchanged; or if memory runs out, which leaves it without parts
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject1D(NativePeer record) {
        fillObject1D(this, requireOpen(record, "record"));
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

    private static native void fillObject1D(SceneGraphDrawObjectCurve peer, Object record);

    private static native void fillObject2D(SceneGraphDrawObjectCurve peer, Object record);

    private static native void fillObject(SceneGraphDrawObjectCurve peer, Object record);

    private static native void createNative(SceneGraphDrawObjectCurve peer, int id);

    private static native void connectNative(SceneGraphDrawObjectCurve peer, SceneGraphNode owner, int childId);
}
