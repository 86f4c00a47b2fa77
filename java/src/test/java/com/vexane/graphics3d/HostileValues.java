package com.vexane.graphics3d;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.DoubleBuffer;
import java.util.Arrays;
import java.util.Map;
import java.util.Random;

/** Values that no program should pass to a native: for each parameter type that is not a peer, values at its limits. */
final class HostileValues {
    private static final String[] TEXTS = {null, "", "a", "%s%n{}\\", "\0\ud800\u20ac", "x".repeat(100_000)};
    private static final double[] NO_NUMBERS = {Double.NaN, 1.0, -1e300};
    private static final ByteBuffer BYTES = ByteBuffer.allocateDirect(64).order(ByteOrder.nativeOrder());

    private static final Map<Class<?>, Object[]> VALUES = Map.ofEntries(
            Map.entry(boolean.class, new Object[] {false, true}),
            Map.entry(int.class, new Object[] {
                Integer.MIN_VALUE, -65536, -1, 0, 1, 2, 3, 6, 7, 8, 10, 31, 1 << 20, Integer.MAX_VALUE}),
            Map.entry(float.class, new Object[] {
                Float.NaN, Float.NEGATIVE_INFINITY, -Float.MAX_VALUE, -1.0f, -0.0f, 0.0f, Float.MIN_VALUE, 0.5f, 1e30f,
                Float.POSITIVE_INFINITY}),
            Map.entry(double.class, new Object[] {
                Double.NaN, Double.NEGATIVE_INFINITY, -1.0, 0.0, 1e-300, 1.0, 1e300, Double.POSITIVE_INFINITY}),
            Map.entry(String.class, TEXTS),
            Map.entry(String[].class, new String[][] {
                null, {}, new String[3], Arrays.copyOf(TEXTS, TEXTS.length, String[].class), {"a", "b"}}),
            Map.entry(int[].class, new int[][] {
                null, {}, {0}, {-1, 0x7fffffff, 3, 4, 5, 6}, new int[100]}),
            Map.entry(float[].class, new float[][] {
                null, {}, {0, 0}, {0, 0, 0}, new float[100], {Float.NaN, 1e30f, -1.0f}}),
            Map.entry(double[].class, new double[][] {null, {}, NO_NUMBERS, new double[100]}),
            Map.entry(double[][].class, new double[][][] {
                null, {}, {{1, 1}}, {null}, {NO_NUMBERS}, {{0, 0, 0, Double.NaN}}, {{0, 0, 0, -1}},
                {{0, 0, 0, 1e-300}, {1, 1, 1, 1e300}}, {{0, 1}, {0, 1}, null},
                {{0, 1}, {0, 1}, {0}}, {{0, 1}, {0, 1}, {Double.NaN, 1e300}}}),
            Map.entry(int[][].class, new int[][][] {
                null, {}, {null}, {{0}, {1}, {2}}, {{-1}, {0}, {0x7fffffff}}, {{0}, {0}}, {{0}, {0}, {0}, {0}}}),
            Map.entry(double[][][].class, new double[][][][] {
                null, {}, {null}, {{}}, {{null}}, {{{0, 1, 1}, {0, 0, 1}}}, {{{0, 1, 1}, {0, 0, 1}, {0, 0, 2}}},
                {{{0, 1, 1}}}, {{{0}, {0, 1}}}, {{NO_NUMBERS, NO_NUMBERS}}}),
            Map.entry(float[][][].class, new float[][][][] {
                null, {}, {null}, {{}}, {{null}}, {new float[3][3]}, {new float[3][1]}}),
            Map.entry(int[][][].class, new int[][][][] {
                null, {}, {null}, {{}}, {{null}}, {{{0}, {1}, {2}}}, {{{0}, {1}, {3}}}, {{{0}, {-1}}}, new int[6][][],
                {{{0}}, null, null, null, null, null}, {null, {{0}}, {{0}}, {{0}}, {{0}}, {{0}}},
                {{{2}}, {{0x7fffffff}}, null, {{-1}}, {}, {null}}}),
            Map.entry(Object[].class, new Object[][] {
                null, {}, {null, null}, {"text"}, {new int[] {0, 1, 2}}, {new double[3], null},
                {new double[3], new double[3], new double[3]}, {new double[3], new double[1]}, {new float[3]},
                {new int[] {0}, new int[] {1}, new int[] {2}}, {new int[] {-1}, new int[] {1}, new int[] {2}},
                {new float[3], new float[3], new float[3]}, {BYTES, BYTES}, {DoubleBuffer.allocate(3)},
                {BYTES.asDoubleBuffer(), BYTES.asDoubleBuffer()}, {BYTES.asIntBuffer()}, {BYTES.asFloatBuffer()},
                {new Object[1]}}),
            Map.entry(ByteBuffer.class, new Object[] {
                null, BYTES, ByteBuffer.allocate(64), ByteBuffer.allocateDirect(0),
                ByteBuffer.allocateDirect(1 << 16)}));

    private final Random random = new Random(17);

    /** A random one of several values. */
    Object oneOf(Object[] values) {
        return values[random.nextInt(values.length)];
    }

    /** A value of a type. */
    Object of(Class<?> type) {
        Object[] values = VALUES.get(type);
        if (values == null) {
            throw new AssertionError("There are no hostile values of type " + type.getName() + " yet.");
        }
        return oneOf(values);
    }

    /** A harmless value of a type; 1 for numbers. */
    static Object harmless(Class<?> type) {
        if (type == boolean.class) {
            return true;
        } else if (type == int.class) {
            return 1;
        } else if (type == float.class) {
            return 1.0f;
        } else if (type == double.class) {
            return 1.0;
        } else if (type == String.class) {
            return "a";
        } else if (type == ByteBuffer.class) {
            return BYTES;
        }
        return java.lang.reflect.Array.newInstance(type.getComponentType(), 16);
    }
}
