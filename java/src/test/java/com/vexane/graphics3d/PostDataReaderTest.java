package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.api.Assumptions.assumeTrue;

import com.vexane.base.NativeException;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Map;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class PostDataReaderTest {
    private static final String TRIANGLE = "% Coordinates\n1 2 3\n2 2 4\n1 3 5\n% Elements (triangular)\n1 2 3\n";

    @TempDir
    private Path folder;

    private Path fileOf(String name, String text) throws IOException {
        return Files.writeString(folder.resolve(name), text);
    }

    private static PostDataObject emptyRecord(PlotKind kind) {
        return PostDataObject.forFile(kind, Map.of(DataRole.COLOR, 0));
    }

    @Test
    void theKindOfTheRecordDecidesHowAFileIsRead() throws IOException {
        Path file = fileOf("plot.txt", TRIANGLE + "% Data\n2\n4\n6\n");
        try (PostDataObject record = emptyRecord(PlotKind.SURFACE_2D)) {
            assertTrue(PostDataReader.readPostData(record, file));
            assertArrayEquals(new double[][] {{1, 2, 1}, {2, 2, 3}}, record.getCoordinates(0));
            assertArrayEquals(new double[][] {{0, 0.5, 1}, {3, 4, 5}}, record.getData(0));
            assertArrayEquals(new double[][] {{1, 2}, {2, 3}}, record.getBounds());
            assertEquals(0, record.getArrayOf(DataRole.COLOR).getAsInt());
        }
        try (PostDataObject record = emptyRecord(PlotKind.SURFACE_3D)) {
            assertTrue(PostDataReader.readPostData(record, file));
            assertArrayEquals(new double[][] {{1, 2, 1}, {2, 2, 3}, {3, 4, 5}}, record.getCoordinates(0));
            assertArrayEquals(new double[][] {{0, 0.5, 1}}, record.getData(0));
            assertArrayEquals(new int[][] {{0}, {1}, {2}}, record.getElements(0));
        }
        Path levels = fileOf("levels.txt", TRIANGLE + "% Data\n7\n7\n7\n");
        try (PostDataObject record = emptyRecord(PlotKind.ISO_SURFACE)) {
            assertTrue(PostDataReader.readPostData(record, levels));
            assertArrayEquals(new double[][] {{0}, {0, 0, 0}}, record.getData(0));
        }
        try (PostDataObject record = new PostDataBuilder(PlotKind.GENERAL)
                .addGroup(new PostDataGroup().coordinates(new double[1], new double[1]))
                .build()) {
            assertFalse(PostDataReader.readPostData(record, file));
            assertEquals(1, record.getNumGroups());
        }
    }

    @Test
    void anInvalidFileLeavesTheRecordEmpty() throws IOException {
        try (PostDataObject record = emptyRecord(PlotKind.SURFACE_3D)) {
            assertFalse(PostDataReader.readPostData(record, folder.resolve("missing.txt")));
            assertFalse(PostDataReader.readPostData(record, folder));
            assertFalse(PostDataReader.readPostData(record, fileOf("empty.txt", "")));
            assertFalse(PostDataReader.readPostData(record, fileOf("short.txt", TRIANGLE + "% Data\n2\n4\n")));
            assertEquals(0, record.getNumGroups());
        }
    }

    @Test
    void isothermsHaveFiveGroups() {
        Path data = Path.of(System.getProperty("com.vexane.test.data"));
        try (PostDataObject record = emptyRecord(PlotKind.ISO_SURFACE)) {
            assertTrue(PostDataReader.readPostData(record, data.resolve("ocean_isotherms.txt")));
            assertEquals(5, record.getNumGroups());
            for (int group = 0; group < 5; ++group) {
                assertEquals(group * 0.25, record.getData(group)[0][0]);
            }
        }
    }

    @Test
    void fileNamesMayContainAnyCharacter() throws IOException {
        assumeTrue("UTF-8".equals(System.getProperty("sun.jnu.encoding")));
        Path file = fileOf("H\u00f6he \u6d77 \ud83c\udf0d.txt", TRIANGLE + "% Data\n2\n4\n6\n");
        try (PostDataObject record = emptyRecord(PlotKind.SURFACE_3D)) {
            assertTrue(PostDataReader.readPostData(record, file));
        }
    }

    @Test
    void wrongArgumentsAreRefused() throws IOException {
        Path file = fileOf("plot.txt", TRIANGLE + "% Data\n2\n4\n6\n");
        PostDataObject record = emptyRecord(PlotKind.SURFACE_3D);
        assertThrows(NullPointerException.class, () -> PostDataReader.readPostData(null, file));
        assertThrows(NullPointerException.class, () -> PostDataReader.readPostData(record, null));
        try (Scene scene = new Scene()) {
            assertThrows(NativeException.class, () -> PostDataReader.readPostData(scene, file));
        }
        record.close();
        assertThrows(IllegalStateException.class, () -> PostDataReader.readPostData(record, file));
    }
}
