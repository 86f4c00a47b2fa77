package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeException;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;

/** Geometry from Java arrays: what a record holds afterwards, and what is refused. */
class GeometryRecordTest {
    private static final double[] X = {0, 1, 0};
    private static final double[] Y = {0, 0, 1};
    private static final double[] Z = {2, 2, 2};

    private static SheetGeometry triangle(double[]... axes) {
        return new SheetGeometry().coordinates(axes).triangles(new int[] {0}, new int[] {1}, new int[] {2});
    }

    private static GeometryBuilder3D triangleInSpace() {
        return new GeometryBuilder3D().points(X, Y, Z)
                .addCurve(new double[] {0, 1}, new double[] {0, 0}, new double[] {2, 2})
                .addEmptyCurve()
                .addSheet(triangle(X, Y, Z).domains(-1, 0))
                .sheetToLine(new int[] {0, 1});
    }

    private static void assertRefused(String message, Executable call) {
        NativeException refusal = assertThrows(NativeException.class, call);
        assertEquals(message, refusal.getDetail());
    }

    @Test
    void buildsGeometryInSpaceWithDerivedRelations() {
        try (RenderDraw3D record = triangleInSpace().buildDraw(4, "Gr\u00f6\u00dfe")) {
            assertEquals(4, record.getId());
            assertEquals("Gr\u00f6\u00dfe", record.getName());
            assertArrayEquals(new float[] {0, 1, 0, 1, 2, 2}, record.getBox());
            assertEquals(3, record.getNumPoints());
            assertArrayEquals(new float[][] {{0, 1, 0}, {0, 0, 1}, {2, 2, 2}}, record.getPoints());
            assertEquals(2, record.getNumCurves());
            assertArrayEquals(new float[][] {{0, 1}, {0, 0}, {2, 2}}, record.getCurve(0));
            assertArrayEquals(new float[3][0], record.getCurve(1));
            assertArrayEquals(new float[][] {{0, 1, 0}, {0, 0, 1}, {2, 2, 2}, {0, 0, 0}, {0, 0, 0}, {1, 1, 1}},
                    record.getSheet(0));
            assertArrayEquals(new int[][] {{0}, {1}, {2}}, record.getTriangles(0));
            assertArrayEquals(new int[][] {{0, 1}, {}}, record.getRelation(GeometryRelation.LINE_TO_POINT));
            assertArrayEquals(new int[][] {{0}, {0}, {}}, record.getRelation(GeometryRelation.POINT_TO_SHEET));
            assertArrayEquals(new int[][] {{0, 1}}, record.getRelation(GeometryRelation.SUBDOMAIN_TO_LINE));
            assertEquals(1, record.getNumSubdomains());
            assertArrayEquals(new double[0][], record.getSnapPoints());
            assertThrows(IndexOutOfBoundsException.class, () -> record.getSheet(1));
            try (RenderGeom3D model = RenderGeom3D.of(record, new int[] {1}, new int[] {-1})) {
                assertEquals(2, model.getNumSubdomains());
                assertArrayEquals(new int[][] {{}, {0, 1}}, model.getRelation(GeometryRelation.SUBDOMAIN_TO_LINE));
                assertArrayEquals(record.getSheet(0), model.getSheet(0));
            }
            assertRefused("downDomains has 2 entries for 1 sheets",
                    () -> RenderGeom3D.of(record, new int[] {0}, new int[] {0, 0}));
        }
    }

    @Test
    void keepsExactCoordinatesOfPointsInThePlaneAndOnAnAxis() {
        double third = 1.0 / 3;
        try (RenderDraw2D face = new GeometryBuilder2D().points(new double[] {third}, new double[] {7})
                        .addSheet(triangle(X, Y)).addCurve(X, Y).sheetToLine(new int[] {0}).sheetToPoint(new int[] {0})
                        .buildDraw(1, "");
                RenderGeom1D rod = new GeometryBuilder1D().points(new double[] {third, 2})
                        .addCurve(new double[] {third, 2}).buildGeom()) {
            assertArrayEquals(new double[][] {{third}, {7}}, face.getSnapPoints());
            assertArrayEquals(new int[][] {{0}}, face.getRelation(GeometryRelation.POINT_TO_SHEET));
            assertArrayEquals(new int[0][], face.getRelation(GeometryRelation.SUBDOMAIN_TO_SHEET));
            assertArrayEquals(new double[][] {{third, 2}}, rod.getSnapPoints());
            assertArrayEquals(new float[] {(float) third, 2}, rod.getBox());
            assertArrayEquals(new int[][] {{0}, {0}}, rod.getRelation(GeometryRelation.POINT_TO_LINE));
            assertEquals(0, rod.getNumSheets());
        }
    }

    @Test
    void namesThePartAndTheRowThatDoNotFit() {
        assertRefused("sheetToLine[0][1] is curve 2, but there are 2",
                () -> triangleInSpace().sheetToLine(new int[] {0, 2}).buildGeom());
        assertRefused("sheet 0: triangles[1][0] is vertex 3, but there are 3", () -> new GeometryBuilder2D()
                .addSheet(new SheetGeometry().coordinates(X, Y).triangles(new int[1], new int[] {3}, new int[1]))
                .buildGeom());
        assertRefused("sheet 0: coordinates: 3 arrays, not 2",
                () -> new GeometryBuilder2D().addSheet(triangle(X, Y, Z)).buildDraw(0, ""));
        assertRefused("curve 1: coordinates[0][1] is not finite in single precision", () -> new GeometryBuilder1D()
                .addCurve(new double[] {0}).addCurve(new double[] {1, 1e39}).buildDraw(0, ""));
        assertRefused("pointKinds has 1 entries for 2 points", () -> new ProjectionBuilder2D()
                .points(new double[2], new double[2], new int[1]).build(0, ""));
        assertThrows(NullPointerException.class, () -> new GeometryBuilder1D().points(null));
        assertThrows(NullPointerException.class, () -> new GeometryBuilder2D().sheetToLine(null, new int[0]));
        assertThrows(NullPointerException.class, () -> new GeometryBuilder2D().buildDraw(0, null));
    }

    @Test
    void collectsTheMeshesThatFitTogether() {
        try (RenderMeshCollection meshes = new RenderMeshCollection();
                RenderDrawProj2D projection = new ProjectionBuilder2D()
                        .points(new double[] {1}, new double[] {2}, new int[] {ProjectionBuilder2D.PRIMARY})
                        .addCurve(2, X, Y).build(9, "Section")) {
            meshes.addLine(MeshKind.EDGE_3D, 0, X, Y, Z);
            meshes.addSheet(MeshKind.SUBDOMAIN_2D, 1, new double[][] {X, Y}, new int[][] {{0}, {1}, {2}}, new int[0][]);
            assertRefused("coordinates: 3 arrays, not 2", () -> meshes.addLine(MeshKind.BOUNDARY_2D, 0, X, Y, Z));
            assertRefused("quads[3][0] is vertex 3, but there are 3", () -> meshes.addSheet(MeshKind.BOUNDARY_3D, 0,
                    new double[][] {X, Y, Z}, new int[0][], new int[][] {{0}, {1}, {2}, {3}}));
            assertRefused("partIndex is -1", () -> meshes.addLine(MeshKind.EDGE_3D, -1, X, Y, Z));
            assertEquals(2, meshes.getNumMeshes());
            assertArrayEquals(new float[] {0, 1, 0, 2}, projection.getBox());
            assertEquals(1, projection.getNumCurves());
        }
    }
}
