package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.vexane.base.NativeException;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.DoubleBuffer;
import java.nio.FloatBuffer;
import java.nio.IntBuffer;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Map;
import java.util.OptionalInt;
import java.util.function.UnaryOperator;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.api.io.TempDir;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every inconsistent input is refused with a message that names it, and no record remains open: the leak check around
 * each test would find it.
 */
class PostDataRefusalTest {
    private static final double[] TWO = {1, 2};

    private static void assertRefused(Class<? extends RuntimeException> type, String message, Executable call) {
        assertEquals(message, assertThrows(type, call).getMessage());
    }

    private static Arguments refused(Class<?> type, String message, Executable call) {
        return arguments(type, message, call);
    }

    static Stream<Arguments> groupCalls() {
        Class<?> isNull = NullPointerException.class;
        Class<?> illegal = IllegalArgumentException.class;
        DoubleBuffer heap = DoubleBuffer.wrap(TWO);
        ByteBuffer other = ByteBuffer.allocateDirect(16).order(
                ByteOrder.nativeOrder() == ByteOrder.BIG_ENDIAN ? ByteOrder.LITTLE_ENDIAN : ByteOrder.BIG_ENDIAN);
        String otherOrder = "the buffer has byte order " + other.order() + ", not " + ByteOrder.nativeOrder();
        PostDataGroup group = new PostDataGroup();
        return Stream.of(
                refused(isNull, "coordinates", () -> group.coordinates((double[][]) null)),
                refused(isNull, "coordinates[1]", () -> group.coordinates(TWO, null)),
                refused(isNull, "elements[0]", () -> group.elements((int[]) null)),
                refused(isNull, "lineElements[1]", () -> group.lineElements(new int[1], null)),
                refused(isNull, "normals[2]", () -> group.normals(new float[2], new float[2], null)),
                refused(isNull, "data[0]", () -> group.data((DoubleBuffer) null)),
                refused(illegal, "coordinates: 0 arrays, not 1 to 3", () -> group.coordinates(new double[0][])),
                refused(illegal, "coordinates: 4 arrays, not 1 to 3", () -> group.coordinates(TWO, TWO, TWO, TWO)),
                refused(illegal, "elements: 5 arrays, not 1 to 4", () -> group.elements(new int[5][1])),
                refused(illegal, "coordinates[1] has 3 entries, coordinates[0] has 2",
                        () -> group.coordinates(TWO, new double[3])),
                refused(illegal, "elements[2] has 0 entries, elements[0] has 1",
                        () -> group.elements(new int[1], new int[1], new int[0])),
                refused(illegal, "lineElements[1] has 2 entries, lineElements[0] has 1",
                        () -> group.lineElements(new int[1], new int[2])),
                refused(illegal, "normals[1] has 1 entries, normals[0] has 2",
                        () -> group.normals(new float[2], new float[1], new float[2])),
                refused(illegal, "coordinates[0]: the buffer is not direct; give its array instead",
                        () -> group.coordinates(heap)),
                refused(illegal, "data[0]: the buffer is not direct; give its array instead", () -> group.data(heap)),
                refused(illegal, "elements[0]: the buffer is not direct; give its array instead",
                        () -> group.elements(IntBuffer.allocate(1))),
                refused(illegal, "normals[0]: the buffer is not direct; give its array instead", () -> {
                    FloatBuffer one = FloatBuffer.allocate(1);
                    group.normals(one, one, one);
                }),
                refused(illegal, "data[0]: " + otherOrder, () -> group.data(other.asDoubleBuffer())),
                refused(illegal, "elements[0]: " + otherOrder, () -> group.elements(other.asIntBuffer())),
                refused(illegal, "data[0]: no limits 2.0 to 1.0", () -> group.data(TWO, 2, 1)),
                refused(illegal, "data[0]: no limits NaN to 1.0", () -> group.data(TWO, Double.NaN, 1)));
    }

    @ParameterizedTest
    @MethodSource("groupCalls")
    void aGroupRefusesInvalidArguments(Class<? extends RuntimeException> type, String message, Executable call) {
        assertRefused(type, message, call);
    }

    static Stream<Arguments> groups() {
        Class<?> illegal = IllegalArgumentException.class;
        Class<?> state = IllegalStateException.class;
        return Stream.of(
                unfit(state, "group 1 has no coordinates", group -> new PostDataGroup().data(TWO)),
                unfit(illegal, "group 1: coordinates have 1 axes, those of group 0 have 2",
                        group -> group.coordinates(TWO)),
                unfit(illegal, "group 1: 2 data arrays, group 0 has 1", group -> group.data(TWO)),
                unfit(illegal, "group 1: data[0] has 2 values for 3 points",
                        group -> group.coordinates(new double[3], new double[3])),
                unfit(illegal, "group 1: computeNormals needs triangles in space; there are 2 axes and 0 corners",
                        PostDataGroup::computeNormals),
                unfit(illegal, "group 1: normals have 1 entries for 2 points",
                        group -> group.normals(new float[1], new float[1], new float[1])));
    }

    private static Arguments unfit(Class<?> type, String message, UnaryOperator<PostDataGroup> change) {
        return arguments(type, message, change);
    }

    private static PostDataGroup twoPoints() {
        return new PostDataGroup().coordinates(TWO, TWO).data(TWO);
    }

    @ParameterizedTest
    @MethodSource("groups")
    void aBuilderRefusesAGroupThatDoesNotFit(
            Class<? extends RuntimeException> type, String message, UnaryOperator<PostDataGroup> change) {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL)
                .addGroup(twoPoints())
                .addGroup(change.apply(twoPoints()));
        assertRefused(type, message, builder::build);
    }

    @Test
    void elementsThatReferToPointsOutsideTheGroupAreRefused() {
        Map<String, UnaryOperator<PostDataGroup>> cases = Map.of(
                "group 1: elements[1][2] is point 2, but the group has points 0 to 1",
                group -> group.elements(new int[] {0, 1, 1}, new int[] {0, 1, 2}),
                "group 1: elements[0][1] is point -1, but the group has points 0 to 1",
                group -> group.elements(new int[] {0, -1, 7}),
                "group 1: lineElements[0][0] is point 2147483647, but the group has points 0 to 1",
                group -> group.lineElements(new int[] {Integer.MAX_VALUE}, new int[] {0}));
        cases.forEach((message, change) -> {
            PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL)
                    .addGroup(twoPoints())
                    .addGroup(change.apply(twoPoints()));
            assertEquals(message, assertThrows(NativeException.class, builder::build).getDetail());
        });
    }

    @Test
    void rolesWithoutAnArrayAreRefused() {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).addGroup(twoPoints());
        assertRefused(IndexOutOfBoundsException.class, "There is no data[-1] for DataRole.HEIGHT",
                () -> builder.role(DataRole.HEIGHT, -1));
        builder.role(DataRole.HEIGHT, 1);
        assertRefused(IndexOutOfBoundsException.class, "group 0: there is no data[1] for DataRole.HEIGHT; number of data arrays: 1", builder::build);
    }

    @Test
    void oneValueForAGroupIsRefusedIfMoreThanTheLevelUsesIt() {
        PostDataGroup group = new PostDataGroup().coordinates(TWO).data(new double[] {5});
        PostDataBuilder builder = new PostDataBuilder(PlotKind.ISO_SURFACE).addGroup(group);
        String message = "group 0: data[0] has 1 values for 2 points";
        assertRefused(IllegalArgumentException.class, message, builder::build);
        builder.role(DataRole.ISO_LEVEL, 0);
        builder.build().close();
        builder.role(DataRole.COLOR, 0);
        assertRefused(IllegalArgumentException.class, message, builder::build);
    }

    @Test
    void boundsThatAreNotRangesAreRefused() {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).addGroup(twoPoints());
        assertRefused(IllegalArgumentException.class, "bounds: 0 axes, not 1 to 3", builder::bounds);
        assertRefused(IllegalArgumentException.class, "bounds[1] is not a range: [2.0, 1.0]",
                () -> builder.bounds(new double[] {0, 0}, new double[] {2, 1}));
        assertRefused(IllegalArgumentException.class, "bounds[0] is not a range: [0.0]",
                () -> builder.bounds(new double[] {0}));
        assertRefused(IllegalArgumentException.class, "bounds[0] is not a range: [0.0, Infinity]",
                () -> builder.bounds(new double[] {0, Double.POSITIVE_INFINITY}));
        assertRefused(IllegalArgumentException.class, "bounds[0] is not a range: [Infinity, Infinity]",
                () -> builder.bounds(new double[] {Double.POSITIVE_INFINITY, Double.POSITIVE_INFINITY}));
        assertRefused(IllegalArgumentException.class, "bounds[0] is not a range: [-1.0E308, 1.0E308]",
                () -> builder.bounds(new double[] {-1.0e308, 1.0e308}));
    }

    @Test
    void aRecordWithoutGroupsIsRefused() {
        assertRefused(IllegalStateException.class, "The record has no group.",
                () -> new PostDataBuilder(PlotKind.GENERAL).build());
    }

    @Test
    void anInvalidFileIsRefusedWithReasonFileAndRow(@TempDir Path folder) throws IOException {
        Path file = folder.resolve("plot.txt");
        Map<DataRole, Integer> roles = Map.of(DataRole.COLOR, 0);
        assertInvalid("Could not open file " + file, OptionalInt.empty(), " (" + file + ")", file);
        Files.writeString(file, "% Coordinates\n0 0 0\n1 0,5 0\n");
        assertInvalid("Coordinates do not match Data.", OptionalInt.empty(), " (" + file + ")", file);
        Files.writeString(file, "% Coordinates\n0 0 0\n% Data\n\u00fc\n");
        assertInvalid("Illegal data: \"\u00fc\"", OptionalInt.of(4), " (" + file + ", row 4)", file);
        assertThrows(NullPointerException.class, () -> PostDataObject.read(PlotKind.SURFACE_3D, roles, null));
    }

    private static void assertInvalid(String reason, OptionalInt row, String place, Path file) {
        PlotFileException e = assertThrows(PlotFileException.class,
                () -> PostDataObject.read(PlotKind.SURFACE_3D, Map.of(DataRole.COLOR, 0), file));
        assertEquals(reason, e.getReason());
        assertEquals(row, e.getRow());
        assertEquals(file, e.getFile());
        assertEquals(reason + place, e.getMessage());
    }

    @Test
    void filesOfAnotherKindOrWithoutTheArrayAreRefused() {
        assertRefused(IllegalArgumentException.class, "No file holds data of PlotKind.MESH_3D",
                () -> PostDataObject.forFile(PlotKind.MESH_3D, Map.of()));
        assertRefused(IndexOutOfBoundsException.class, "There is no data[1] for DataRole.COLOR; number of data arrays: 1",
                () -> PostDataObject.forFile(PlotKind.SURFACE_3D, Map.of(DataRole.COLOR, 1)));
    }
}
