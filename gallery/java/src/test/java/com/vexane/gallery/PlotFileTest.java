package com.vexane.gallery;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class PlotFileTest {
    @TempDir Path folder;

    private PlotFile read(String text) throws IOException {
        return PlotFile.read(Files.writeString(folder.resolve("plot.txt"), text));
    }

    @Test
    void everySectionIsReadWithItsUnitsAndIndicesFromZero() throws IOException {
        PlotFile file = read("""
                % Coordinates
                0 0 5
                2\t0 5
                0 2 5

                0 0 -1
                % Elements (triangular)
                1 2 3
                % Elements (lines)
                4 1
                % Data
                -10
                20.5
                3e1
                0
                """);
        assertArrayEquals(new double[][] {{0, 2, 0, 0}, {0, 0, 2, 0}, {5, 5, 5, -1}}, file.coordinates());
        assertArrayEquals(new int[][] {{0}, {1}, {2}}, file.triangles());
        assertArrayEquals(new int[][] {{3}, {0}}, file.lines());
        assertArrayEquals(new double[] {-10, 20.5, 30, 0}, file.data());
        // The fourth point is in no triangle.
        assertArrayEquals(new float[][] {{0, 0, 0, 0}, {0, 0, 0, 0}, {1, 1, 1, 0}}, file.normals());
        assertEquals(-10, file.percentile(0));
        assertEquals(20.5, file.percentile(0.66));
        assertEquals(30, file.percentile(1));
    }

    @Test
    void aPointsNormalCountsLargerTrianglesMore() throws IOException {
        PlotFile file = read("""
                % Coordinates
                0 0 0
                3 0 0
                0 1 0
                0 0 4
                % Elements (triangular)
                1 2 3
                1 3 4
                % Data
                0
                0
                0
                0
                """);
        // Twice the areas are 3, facing along z, and 4, facing along x.
        float[][] normals = file.normals();
        assertArrayEquals(new float[] {0.8f, 0, 0.6f}, new float[] {normals[0][0], normals[1][0], normals[2][0]});
        assertArrayEquals(new float[] {0, 0, 1}, new float[] {normals[0][1], normals[1][1], normals[2][1]});
    }

    @Test
    void aFileOfAnotherKindIsRefusedWithItsRow() {
        assertEquals(folder.resolve("plot.txt") + ": no tag for surfaces, volumes and arrows: % Elements (quads)",
                assertThrows(IOException.class, () -> read("% Coordinates\n% Elements (quads)\n")).getMessage());
        assertEquals(folder.resolve("plot.txt") + ": 3 numbers are needed: 1 2",
                assertThrows(IOException.class, () -> read("% Coordinates\n1 2\n")).getMessage());
    }

    @Test
    void vectorsAreKeptByComponent() throws IOException {
        PlotFile file = read("% Coordinates\n0 0 0\n1 1 1\n% Vector data\n1 2 3\n4 5 6\n");
        assertArrayEquals(new double[][] {{1, 4}, {2, 5}, {3, 6}}, file.vectors());
        assertEquals(0, file.data().length);
    }

    @Test
    void aFileIsSplitWhereAValueChanges() throws IOException {
        PlotFile file = read("""
                % Coordinates
                0 0 0
                0 1 0
                0 0 1
                2 0 0
                2 1 0
                2 0 1
                2 1 1
                % Elements (triangular)
                1 2 3
                4 5 6
                7 6 5
                % Elements (tetrahedral)
                1 2 3 4
                2 3 4 5
                % Data
                1
                2
                3
                4
                5
                6
                7
                % Tetrahedral Data
                0.5
                0.25
                """);
        assertArrayEquals(new double[] {0.5, 0.25, 0.25, 0.25, 0.25, Double.POSITIVE_INFINITY, Double.POSITIVE_INFINITY},
                file.smallestOfTetrahedra());
        assertArrayEquals(new int[][] {{0, 0, 1, 3, 3, 4, 4, 5}, {1, 2, 2, 4, 5, 5, 6, 6}}, file.edges());
        List<PlotFile> parts = file.split(file.coordinates()[0]);
        assertEquals(2, parts.size());
        assertArrayEquals(new int[][] {{0}, {1}, {2}}, parts.get(0).triangles());
        assertArrayEquals(new double[][] {{2, 2, 2, 2}, {0, 1, 0, 1}, {0, 0, 1, 1}}, parts.get(1).coordinates());
        assertArrayEquals(new int[][] {{0, 3}, {1, 2}, {2, 1}}, parts.get(1).triangles());
        assertArrayEquals(new double[] {4, 5, 6, 7}, parts.get(1).data());
    }

    @Test
    void contoursCutTrianglesAtTheirLevels() {
        // A triangle with values of 0, 4 and 4, and one of 4, 4 and 8 on the other side of their common edge.
        Contours contours = new Contours(new double[][] {{0, 4, 0, 4}, {0, 0, 4, 4}}, new int[][] {{0, 1}, {1, 3}, {2, 2}},
                new double[] {0, 4, 4, 8});
        assertArrayEquals(new double[][] {{1, 0}, {0, 1}}, points(contours.lines(1)));
        assertArrayEquals(new double[][] {{}, {}}, points(contours.lines(9)));
        // All of the second triangle below 6, and of the first above 2: two quadrilaterals with two points in common.
        assertArrayEquals(new double[][] {{2, 4, 0, 0, 4, 2}, {0, 0, 4, 2, 2, 4}}, points(contours.band(2, 6)));
    }

    private static double[][] points(PostDataGroup group) {
        try (PostDataObject record = new PostDataBuilder(PlotKind.CONTOUR_2D).role(DataRole.ISO_LEVEL, 0).addGroup(group)
                .build()) {
            return record.getCoordinates(0);
        }
    }
}
