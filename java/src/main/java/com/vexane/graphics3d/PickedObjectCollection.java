package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import java.util.Objects;
import java.util.stream.IntStream;
import java.util.stream.Stream;

/** The results of picks in the order in which they were found. A renderer fills it; a pick appends to what is there. */
public final class PickedObjectCollection extends NativePeer {
    /** Makes an empty collection. */
    public PickedObjectCollection() {
        createNative(this);
    }

    /**
     * How many results there are.
     *
     * @return the count
     */
    public int size() {
        return getNumberOfPickedObjects(this);
    }

    /**
     * One result.
     *
     * @param index its index, from 0
     * @return the result
     * @throws IndexOutOfBoundsException if there is no such result
     */
    public PickedObject get(int index) {
        Objects.checkIndex(index, size());
        return new PickedObject(PickedObject.ObjectType.values()[getObjectType(this, index)], getObjectId(this, index),
                PickedObject.PartType.values()[getPartType(this, index)], getPartId(this, index));
    }

    /**
     * All results in their order.
     *
     * @return a stream that reads the collection as it goes
     */
    public Stream<PickedObject> stream() {
        return IntStream.range(0, size()).mapToObj(this::get);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(PickedObjectCollection peer);

    private static native void cleanupNative(PickedObjectCollection peer);

    private static native int getNumberOfPickedObjects(PickedObjectCollection peer);

    private static native int getObjectId(PickedObjectCollection peer, int i);

    private static native int getPartId(PickedObjectCollection peer, int i);

    private static native int getObjectType(PickedObjectCollection peer, int i);

    private static native int getPartType(PickedObjectCollection peer, int i);
}
