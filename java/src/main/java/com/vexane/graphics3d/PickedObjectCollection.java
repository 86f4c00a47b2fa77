package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;
import java.util.Objects;
import java.util.stream.IntStream;
import java.util.stream.Stream;

/** The results of picks in the order in which they were found. A renderer fills it; each pick appends its results. */
public final class PickedObjectCollection extends NativePeer {
    /** Makes an empty collection. */
    public PickedObjectCollection() {
        createNative(this);
    }

    /** {@return the number of results} */
    public int size() {
        return getNumberOfPickedObjects(this);
    }

    /**
     * {@return the result at an index}
     *
     * @param index its index, from 0
     * @throws IndexOutOfBoundsException if there is no such result
     */
    public PickedObject get(int index) {
        Objects.checkIndex(index, size());
        return new PickedObject(
                NativeEnum.of(PickedObject.ObjectType.class, getObjectType(this, index)),
                getObjectId(this, index),
                NativeEnum.of(PickedObject.PartType.class, getPartType(this, index)),
                getPartId(this, index));
    }

    /** {@return all results in their order, as a stream that reads the collection lazily} */
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
