package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.DoubleBuffer;
import java.nio.FloatBuffer;
import java.nio.IntBuffer;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.Map;
import java.util.OptionalInt;
import java.util.stream.IntStream;
import org.junit.jupiter.api.Test;

/** A builder's input is read back from the record, and computed values are right. */
class PostDataRecordTest {
    private static final double INFINITY = Double.POSITIVE_INFINITY;

    private static ByteBuffer bytes(int count) {
        return ByteBuffer.allocateDirect(count).order(ByteOrder.nativeOrder());
    }

    private static DoubleBuffer doubles(double... values) {
        return bytes(values.length * 8).asDoubleBuffer().put(values).flip();
    }

    private static IntBuffer ints(int... values) {
        return bytes(values.length * 4).asIntBuffer().put(values).flip();
    }

    private static FloatBuffer floats(float... values) {
        return bytes(values.length * 4).asFloatBuffer().put(values).flip();
    }

    private static PostDataObject recordOf(PostDataGroup group) {
        return new PostDataBuilder(PlotKind.GENERAL).addGroup(group).build();
    }

    /** Four points, two triangles, one line, two quantities, normals. */
    private static void assertIsSquare(PostDataObject record, int group) {
        assertArrayEquals(new double[][] {{0, 1, 1, 0}, {0, 0, 2, 2}, {5, 5, 5, 6}}, record.getCoordinates(group));
        assertArrayEquals(new int[][] {{0, 0}, {1, 2}, {2, 3}}, record.getElements(group));
        assertArrayEquals(new int[][] {{0}, {3}}, record.getLineElements(group));
        assertArrayEquals(new double[][] {{1, 2, 3, 4}, {-1, -2, -3, -4}}, record.getData(group));
        assertArrayEquals(new float[][] {{0, 0, 0, 0.6f}, {0, 0, 0, 0}, {1, 1, 1, 0.8f}}, record.getNormals(group));
    }

    @Test
    void arraysAreReadBackFromEveryField() {
        PostDataGroup square = new PostDataGroup()
                .coordinates(new double[] {0, 1, 1, 0}, new double[] {0, 0, 2, 2}, new double[] {5, 5, 5, 6})
                .elements(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3})
                .lineElements(new int[] {0}, new int[] {3})
                .normals(new float[] {0, 0, 0, 0.6f}, new float[4], new float[] {1, 1, 1, 0.8f})
                .data(new double[] {1, 2, 3, 4})
                .data(new double[] {-1, -2, -3, -4}, -100, 100);
        PostDataGroup empty = new PostDataGroup()
                .coordinates(new double[0], new double[0], new double[0])
                .data(new double[0])
                .data(new double[0]);
        PostDataBuilder builder = new PostDataBuilder(PlotKind.SURFACE_3D)
                .role(DataRole.COLOR, 1)
                .role(DataRole.VECTOR_Z, 0)
                .role(DataRole.ISO_LEVEL, 1)
                .addGroup(empty)
                .addGroup(square);
        try (PostDataObject record = builder.build()) {
            assertEquals(PlotKind.SURFACE_3D, record.getPlotKind());
            assertEquals(2, record.getNumGroups());
            assertIsSquare(record, 1);
            assertArrayEquals(new double[] {1, -100}, record.getDataMin(1));
            assertArrayEquals(new double[] {4, 100}, record.getDataMax(1));
            assertArrayEquals(new double[3][0], record.getCoordinates(0));
            assertArrayEquals(new int[0][], record.getElements(0));
            assertArrayEquals(new int[0][], record.getLineElements(0));
            assertArrayEquals(new float[0][], record.getNormals(0));
            assertArrayEquals(new double[][] {{0, 1}, {0, 2}, {5, 6}}, record.getBounds());
            for (DataRole role : DataRole.values()) {
                OptionalInt expected = switch (role) {
                    case COLOR, ISO_LEVEL -> OptionalInt.of(1);
                    case VECTOR_Z -> OptionalInt.of(0);
                    default -> OptionalInt.empty();
                };
                assertEquals(expected, record.getArrayOf(role), role.name());
            }
        }
    }

    @Test
    void buffersAreReadBackFromPositionToLimitInEveryField() {
        // Values to be ignored are before the position and after the limit.
        DoubleBuffer xy = doubles(99, 0, 1, 1, 0, 0, 0, 2, 2, 99);
        DoubleBuffer z = doubles(5, 5, 5, 6);
        IntBuffer corners = ints(9, 0, 0, 1, 2, 2, 3, 9);
        // No double may start at the fifth byte.
        ByteBuffer odd = bytes(5 + 4 * 8).position(5).slice().order(ByteOrder.nativeOrder());
        DoubleBuffer unaligned = odd.asDoubleBuffer().put(new double[] {1, 2, 3, 4}).flip();
        PostDataGroup square = new PostDataGroup()
                .coordinates(xy.slice(1, 4), xy.slice(5, 4), z.asReadOnlyBuffer())
                .elements(corners.slice(1, 2), corners.slice(3, 2), corners.slice(5, 2))
                .lineElements(ints(0), ints(3))
                .normals(floats(0, 0, 0, 0.6f), floats(0, 0, 0, 0), floats(7, 1, 1, 1, 0.8f).position(1))
                .data(unaligned)
                .data(doubles(8, -1, -2, -3, -4, 8).position(1).limit(5), -4, -1);
        z.position(2);
        unaligned.limit(0);
        try (PostDataObject record = recordOf(square)) {
            assertIsSquare(record, 0);
            assertArrayEquals(new double[] {1, -4}, record.getDataMin(0));
        }
    }

    @Test
    void everyNumberOfAxesAndCornersIsKept() {
        double[] three = {1, 2, 3};
        int[] indices = {2, 0};
        for (int count = 1; count <= 4; ++count) {
            double[][] axes = new double[Math.min(count, 3)][];
            int[][] corners = new int[count][];
            Arrays.fill(axes, three);
            Arrays.fill(corners, indices);
            try (PostDataObject record = recordOf(new PostDataGroup().coordinates(axes).elements(corners))) {
                assertArrayEquals(axes, record.getCoordinates(0));
                assertArrayEquals(corners, record.getElements(0));
                assertEquals(axes.length, record.getBounds().length);
            }
        }
    }

    @Test
    void limitsSpanTheFiniteValues() {
        double nan = Double.NaN;
        double[][] cases = {
            // minimum, maximum, then the values
            {1, 3, 2, 3, 1},
            {1, 1, 1},
            {-2, 5, nan, 5, nan, -2, nan},
            {4, 9, INFINITY, 9, -INFINITY, 4},
            {INFINITY, -INFINITY},
            {INFINITY, -INFINITY, nan, nan},
            {INFINITY, -INFINITY, INFINITY, -INFINITY},
            {-Double.MAX_VALUE, Double.MAX_VALUE, Double.MAX_VALUE, nan, -Double.MAX_VALUE},
            // The extremes are in the first and the last of eight values that are compared at once, and after them.
            {-7, 70, -7, 1, 2, 3, 4, 5, 6, 70, 8},
            {-7, 70, 1, 1, 2, 3, 4, 5, 6, 7, 70, nan, -7},
        };
        for (double[] row : cases) {
            double[] values = Arrays.copyOfRange(row, 2, row.length);
            PostDataGroup group = new PostDataGroup().coordinates(new double[values.length]).data(values);
            try (PostDataObject record = recordOf(group)) {
                assertArrayEquals(new double[] {row[0]}, record.getDataMin(0), Arrays.toString(values));
                assertArrayEquals(new double[] {row[1]}, record.getDataMax(0), Arrays.toString(values));
                assertArrayEquals(values, record.getData(0)[0]);
            }
        }
    }

    @Test
    void boundsSpanTheFinitePointsOfAllGroups() {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.CONTOUR_2D)
                .addGroup(new PostDataGroup().coordinates(new double[] {4, Double.NaN}, new double[] {Double.NaN, INFINITY}))
                .addGroup(new PostDataGroup().coordinates(new double[] {-3}, new double[] {-INFINITY}));
        try (PostDataObject record = builder.build()) {
            assertArrayEquals(new double[][] {{-3, 4}, {0, 0}}, record.getBounds());
        }
        try (PostDataObject record = builder.bounds(new double[] {-9, 9}).build()) {
            assertArrayEquals(new double[][] {{-9, 9}}, record.getBounds());
        }
    }

    @Test
    void aLevelMayBeOneValueForItsGroup() {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.ISO_SURFACE)
                .role(DataRole.ISO_LEVEL, 0)
                .role(DataRole.COLOR, 1);
        for (double level : new double[] {0.5, 1.5}) {
            builder.addGroup(new PostDataGroup()
                    .coordinates(new double[3], new double[3], new double[3])
                    .data(new double[] {level})
                    .data(new double[] {1, 2, 3}));
        }
        try (PostDataObject record = builder.build()) {
            assertArrayEquals(new double[][] {{1.5}, {1, 2, 3}}, record.getData(1));
            assertArrayEquals(new double[] {0.5, 1}, record.getDataMin(0));
        }
    }

    @Test
    void aBuilderReadsItsArraysAgainEachTime() {
        double[] values = {1, 2};
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL)
                .addGroup(new PostDataGroup().coordinates(new double[2]).data(values));
        try (PostDataObject first = builder.build()) {
            values[0] = 7;
            try (PostDataObject second = builder.build()) {
                assertArrayEquals(new double[] {1, 2}, first.getData(0)[0]);
                assertArrayEquals(new double[] {7, 2}, second.getData(0)[0]);
            }
        }
    }

    @Test
    void largeArraysAreReadBackCompletely() {
        int count = 3_000_000;
        double[] x = IntStream.range(0, count).mapToDouble(i -> i * 0.5).toArray();
        int[] from = IntStream.range(0, count - 1).toArray();
        int[] to = IntStream.range(1, count).toArray();
        PostDataGroup group = new PostDataGroup().coordinates(doubles(x)).elements(from, to).data(x);
        try (PostDataObject record = recordOf(group)) {
            assertArrayEquals(x, record.getCoordinates(0)[0]);
            assertArrayEquals(new int[][] {from, to}, record.getElements(0));
            assertArrayEquals(new double[] {(count - 1) * 0.5}, record.getDataMax(0));
        }
    }

    @Test
    void computedNormalsAreThoseOfTheFileReader() throws IOException {
        Path bracket = Path.of(System.getProperty("com.vexane.test.data"), "bracket_stress_3d.txt");
        try (PostDataObject read = PostDataObject.read(PlotKind.SURFACE_3D, Map.of(DataRole.COLOR, 0), bracket)) {
            PostDataGroup group = new PostDataGroup()
                    .coordinates(read.getCoordinates(0))
                    .normals(new float[9396], new float[9396], new float[9396])
                    .computeNormals()
                    .elements(read.getElements(0));
            try (PostDataObject record = recordOf(group)) {
                assertArrayEquals(read.getNormals(0), record.getNormals(0));
            }
            try (PostDataObject record = recordOf(group.normals(new float[9396], new float[9396], new float[9396]))) {
                assertArrayEquals(new float[3][9396], record.getNormals(0));
            }
        }
    }

    @Test
    void aRecordForAFileIsEmptyWithItsRolesSet() {
        try (PostDataObject record =
                PostDataObject.forFile(PlotKind.SURFACE_2D, Map.of(DataRole.COLOR, 0, DataRole.HEIGHT, 1))) {
            assertEquals(PlotKind.SURFACE_2D, record.getPlotKind());
            assertEquals(0, record.getNumGroups());
            assertEquals(OptionalInt.of(0), record.getArrayOf(DataRole.COLOR));
            assertEquals(OptionalInt.of(1), record.getArrayOf(DataRole.HEIGHT));
            assertEquals(OptionalInt.empty(), record.getArrayOf(DataRole.RADIUS));
            assertArrayEquals(new double[0][], record.getBounds());
        }
    }

    @Test
    void principalRolesAreOrderedByComponent() {
        assertEquals(8, DataRole.principalLength(1).number());
        assertEquals(10, DataRole.principalDirection(0, 0).number());
        assertEquals(12, DataRole.principalDirection(2, 0).number());
        assertEquals(16, DataRole.principalDirection(0, 2).number());
        assertThrows(IndexOutOfBoundsException.class, () -> DataRole.principalDirection(3, 0));
    }

    @Test
    void groupsOutsideTheRecordAreRefused() {
        try (PostDataObject record = recordOf(new PostDataGroup().coordinates(new double[1]))) {
            assertThrows(IndexOutOfBoundsException.class, () -> record.getData(1));
            assertThrows(IndexOutOfBoundsException.class, () -> record.getNormals(-1));
        }
    }

    @Test
    void aClosedRecordThrowsFromEveryMethod() {
        PostDataObject record = recordOf(new PostDataGroup().coordinates(new double[1]));
        record.close();
        record.close();
        assertTrue(record.isClosed());
        assertEquals("The peer is closed.",
                assertThrows(NativeException.class, record::getPlotKind).getDetail());
        assertThrows(NativeException.class, () -> record.getCoordinates(0));
        assertThrows(NativeException.class, record::getBounds);
    }

    @Test
    void aGridHasTwoTrianglesInEachCell() {
        double[] x = {0, 1, 2, 0, 1, 2};
        double[] y = {0, 0, 0, 1, 1, 1};
        try (PostDataObject record = recordOf(new PostDataGroup().coordinates(x, y).gridElements(3, 2))) {
            int[][] corners = {{0, 1, 1, 2}, {1, 4, 2, 5}, {3, 3, 4, 4}};
            assertArrayEquals(corners, record.getElements(0));
        }
        for (int[] size : new int[][] {{1, 2}, {2, 0}, {1 << 16, 1 << 15}, {1 << 16, 1 << 16}}) {
            assertThrows(IllegalArgumentException.class, () -> new PostDataGroup().gridElements(size[0], size[1]));
        }
    }

    @Test
    void polylinesConnectConsecutivePoints() {
        try (PostDataObject record =
                recordOf(new PostDataGroup().coordinates(new double[6]).polylineElements(3, 2))) {
            assertArrayEquals(new int[][] {{0, 1, 3}, {1, 2, 4}}, record.getElements(0));
        }
        assertThrows(IllegalArgumentException.class, () -> new PostDataGroup().polylineElements(2, 1));
        assertThrows(IllegalArgumentException.class,
                () -> new PostDataGroup().polylineElements(Integer.MAX_VALUE, 2));
    }
}
