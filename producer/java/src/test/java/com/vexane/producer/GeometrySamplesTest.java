package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.PostDataReader;
import com.vexane.graphics3d.SceneGraphDrawObjectFace;
import com.vexane.graphics3d.SceneGraphDrawObjectSolid;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.OptionalInt;
import java.util.stream.IntStream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** The samples of the pages on geometry and on solid files, and whole flows from a file to an object. */
class GeometrySamplesTest {
    private static final Path DATA = Path.of(System.getProperty("com.vexane.test.data"));

    @Test
    void aSquareFromArraysFillsAFace() {
        try (SceneGraphDrawObjectFace face = new SceneGraphDrawObjectFace(1)) {
            // The unit square, its corners counter-clockwise.
            double[] x = {0, 1, 1, 0};
            double[] y = {0, 0, 1, 1};
            GeometryBuilder2D builder = new GeometryBuilder2D().points(x, y);
            for (int i = 0; i < 4; ++i) {
                int next = (i + 1) % 4;
                builder.addCurve(new double[] {x[i], x[next]}, new double[] {y[i], y[next]});
            }
            builder.addSheet(new SheetGeometry().coordinates(x, y)
                    .triangles(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3}));
            builder.sheetToLine(new int[] {0, 1, 2, 3}); // the curves around sheet 0
            try (RenderDraw2D record = builder.buildDraw(1, "Square")) {
                face.fillObject2D(record);
                assertArrayEquals(new int[][] {{0, 1, 2, 3}}, record.getRelation(GeometryRelation.SHEET_TO_POINT));
                assertArrayEquals(new int[][] {{0, 3}, {0, 1}, {1, 2}, {2, 3}},
                        record.getRelation(GeometryRelation.POINT_TO_LINE));
            }
            face.markPart(ObjectPartType.LINE, 3, MarkingAction.PRIMARY);
            assertThrows(NativeException.class, () -> face.markPart(ObjectPartType.LINE, 4, MarkingAction.PRIMARY));
        }
    }

    @Test
    void aSolidFileFillsASolid() throws IOException {
        Path file = DATA.resolve("bracket_solid.txt");
        try (SceneGraphDrawObjectSolid solid = new SceneGraphDrawObjectSolid(1)) {
            try (RenderDraw3D record = RenderDraw3D.read(1, "Bracket", file)) {
                solid.fillObject(record);
            }
            solid.markPart(ObjectPartType.SHEET, 225, MarkingAction.PRIMARY);
        }
        try (RenderDraw3D moved = new GeometryBuilder3D().buildDraw(2, "Bracket");
                RenderDraw3D record = RenderDraw3D.read(3, "Bracket", file)) {
            assertTrue(PostDataReader.readDrawObjectSolid(moved, file, 1000, 0, 0));
            moved.complete();
            assertEquals(2, moved.getId());
            assertEquals(record.getBox()[0] + 1000, moved.getBox()[0]);
            assertEquals(record.getBox()[5], moved.getBox()[5]);
            for (GeometryRelation relation : GeometryRelation.values()) {
                assertArrayEquals(record.getRelation(relation), moved.getRelation(relation));
            }
            assertEquals(309, moved.getRelation(GeometryRelation.POINT_TO_SHEET).length);
        }
    }

    /** For each sheet of the bracket, the domain on a side, from 0; -1 outside. */
    private static int[] domains(int column) throws IOException {
        List<String> rows = Files.readAllLines(DATA.resolve("bracket_domains.csv"));
        return rows.stream().skip(1).mapToInt(row -> Integer.parseInt(row.split(",")[column]) - 1).toArray();
    }

    /** Volume and area vector that some sheets enclose: those whose sign is not 0, turned round if it is negative. */
    private static double[] enclosed(GeometryRecord record, int[] signs) {
        double[] sums = new double[4];
        for (int sheet = 0; sheet < signs.length; ++sheet) {
            float[][] v = record.getSheet(sheet);
            int[][] corners = record.getTriangles(sheet);
            for (int i = 0; i < corners[0].length; ++i) {
                int a = corners[0][i];
                int b = corners[1][i];
                int c = corners[2][i];
                for (int axis = 0; axis < 3; ++axis) {
                    int y = (axis + 1) % 3;
                    int z = (axis + 2) % 3;
                    double area = ((double) v[y][b] - v[y][a]) * ((double) v[z][c] - v[z][a])
                            - ((double) v[z][b] - v[z][a]) * ((double) v[y][c] - v[y][a]);
                    sums[axis] += signs[sheet] * area / 2;
                    sums[3] += signs[sheet] * area * v[axis][a] / 6;
                }
            }
        }
        return sums;
    }

    @Test
    void aSolidAndItsDomainsMakeAModel() throws IOException {
        int[] upDomains = domains(1);
        int[] downDomains = domains(2);
        try (RenderDraw3D solid = RenderDraw3D.read(1, "Bracket", DATA.resolve("bracket_solid.txt"));
                RenderGeom3D model = RenderGeom3D.of(solid, upDomains, downDomains)) {
            assertEquals(2, model.getNumSubdomains());
            double total = 0;
            for (int domain = 0; domain < 2; ++domain) {
                int[] signs = new int[upDomains.length];
                for (int sheet : model.getRelation(GeometryRelation.SUBDOMAIN_TO_SHEET)[domain]) {
                    signs[sheet] = downDomains[sheet] == domain ? 1 : -1;
                }
                // The sheets of each domain close it.
                double[] sums = enclosed(model, signs);
                for (int axis = 0; axis < 3; ++axis) {
                    assertEquals(0, sums[axis], 0.01);
                }
                assertTrue(sums[3] > 1000, () -> "volume " + sums[3]);
                total += sums[3];
            }
            int[] outer = IntStream.range(0, upDomains.length)
                    .map(sheet -> upDomains[sheet] < 0 || downDomains[sheet] < 0 ? 1 : 0).toArray();
            assertEquals(total, enclosed(model, outer)[3], 1e-6 * total);
            // Points of the bush alone are not at the bracket.
            int[][] pointDomains = model.getRelation(GeometryRelation.POINT_TO_SUBDOMAIN);
            for (int point = 0; point < pointDomains.length; ++point) {
                int here = point;
                for (int domain = 0; domain < 2; ++domain) {
                    int[] points = model.getRelation(GeometryRelation.SUBDOMAIN_TO_POINT)[domain];
                    int wanted = domain;
                    assertEquals(IntStream.of(points).anyMatch(p -> p == here),
                            IntStream.of(pointDomains[point]).anyMatch(d -> d == wanted));
                }
            }
        }
    }

    @Test
    void anInvalidSolidFileIsRefusedWithItsRow(@TempDir Path folder) throws IOException {
        Path file = Files.writeString(folder.resolve("solid.txt"), "% Coordinates [1]\n0 0 0\n% Vertices [1]\n2\n");
        PlotFileException refusal = assertThrows(PlotFileException.class, () -> RenderDraw3D.read(1, "", file));
        assertEquals("Index out of range at row 4: coordinate 2", refusal.getReason());
        assertEquals(OptionalInt.of(4), refusal.getRow());
        assertThrows(NullPointerException.class, () -> RenderDraw3D.read(1, null, file));
        try (RenderDraw3D record = new GeometryBuilder3D().points(new double[1], new double[1], new double[1])
                        .buildDraw(1, "");
                RenderDraw2D plane = new GeometryBuilder2D().buildDraw(1, "")) {
            assertFalse(PostDataReader.readDrawObjectSolid(record, file, 0, 0, 0));
            assertEquals(1, record.getNumPoints());
            NativeException wrong = assertThrows(NativeException.class,
                    () -> PostDataReader.readDrawObjectSolid(plane, file, 0, 0, 0));
            assertEquals("Argument \"record\": expected class RenderDraw3D, found class RenderDraw2D.",
                    wrong.getDetail());
            assertThrows(NullPointerException.class, () -> PostDataReader.readDrawObjectSolid(record, null, 0, 0, 0));
        }
    }
}
