package com.vexane.producer;

import java.nio.Buffer;
import java.nio.ByteOrder;
import java.nio.DoubleBuffer;
import java.nio.FloatBuffer;
import java.nio.IntBuffer;
import java.util.Objects;

/**
 * Arrays and direct buffers as native code takes them: an array as it is, a buffer as a slice of its own, so that
 * moving the given buffer's position later changes nothing.
 */
final class Values {
    private Values() {}

    /** The arrays of one field. All have to be of one length. */
    static Object[] rows(String field, int least, int most, Object[] given) {
        Objects.requireNonNull(given, field);
        if (given.length < least || given.length > most) {
            throw new IllegalArgumentException(
                    field + ": " + given.length + " arrays, not " + least + (least == most ? "" : " to " + most));
        }
        Object[] rows = new Object[given.length];
        for (int i = 0; i < rows.length; ++i) {
            rows[i] = row(field + "[" + i + "]", given[i]);
            if (count(rows[i]) != count(rows[0])) {
                throw new IllegalArgumentException(field + "[" + i + "] has " + count(rows[i]) + " entries, " + field
                        + "[0] has " + count(rows[0]));
            }
        }
        return rows;
    }

    static Object row(String name, Object given) {
        Objects.requireNonNull(given, name);
        if (given instanceof DoubleBuffer buffer) {
            requireUsable(name, buffer, buffer.order());
            return buffer.slice();
        }
        if (given instanceof IntBuffer buffer) {
            requireUsable(name, buffer, buffer.order());
            return buffer.slice();
        }
        if (given instanceof FloatBuffer buffer) {
            requireUsable(name, buffer, buffer.order());
            return buffer.slice();
        }
        return given;
    }

    private static void requireUsable(String name, Buffer buffer, ByteOrder order) {
        if (!buffer.isDirect()) {
            throw new IllegalArgumentException(name + ": the buffer is not direct; give its array instead");
        }
        if (order != ByteOrder.nativeOrder()) {
            throw new IllegalArgumentException(
                    name + ": the buffer has byte order " + order + ", not " + ByteOrder.nativeOrder());
        }
    }

    /** How many values an array or a slice holds. */
    static int count(Object row) {
        return row instanceof Buffer buffer ? buffer.capacity() : java.lang.reflect.Array.getLength(row);
    }
}
