package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.producer.GeometryBuilder1D;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.GeometryBuilder3D;
import com.vexane.producer.MeshKind;
import com.vexane.producer.RenderDraw3D;
import com.vexane.producer.RenderGeom1D;
import com.vexane.producer.RenderGeom2D;
import com.vexane.producer.RenderGeom3D;
import com.vexane.producer.RenderMeshCollection;
import com.vexane.producer.SheetGeometry;
import java.io.IOException;
import java.util.List;
import java.util.stream.Collectors;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

/** Models as a program fills, marks and labels them. */
class PhysicsObjectTest {
    private static final double[] X = {0, 2, 0};
    private static final double[] Y = {0, 0, 2};
    private static final double[] Z = new double[3];

    private SceneGraphPhysicsObject model;

    @BeforeEach
    void make() {
        model = new SceneGraphPhysicsObject(1);
    }

    @AfterEach
    void close() {
        model.close();
    }

    private static SheetGeometry triangle(double[]... axes) {
        return new SheetGeometry().coordinates(axes).triangles(new int[] {0}, new int[] {1}, new int[] {2});
    }

    /** A triangle in a subdomain, with its long side as the only line. */
    private static GeometryBuilder3D triangleInSpace() {
        return new GeometryBuilder3D().points(X, Y, Z).addCurve(new double[] {2, 0}, new double[] {0, 2}, new double[2])
                .addSheet(triangle(X, Y, Z).domains(-1, 0)).sheetToLine(new int[] {0});
    }

    private void fillInSpace() {
        try (RenderGeom3D record = triangleInSpace().buildGeom()) {
            model.fillObject(record);
        }
    }

    /** The lines of the model's description that start with a word. */
    private String linesOf(String word) {
        return TestRenderer.describeModel(model).lines().filter(line -> line.startsWith(word))
                .collect(Collectors.joining("\n"));
    }

    @Test
    void isFilledFromRecordsOfEachDimension() {
        fillInSpace();
        assertEquals("points 0 0 0\nlines 0\nsheets 0\nsubdomains 0\nmaterial P 1\n", TestRenderer.describeModel(model));
        try (RenderGeom1D axis = new GeometryBuilder1D().points(new double[] {0, 2}).addCurve(new double[] {0, 2})
                        .buildGeom();
                RenderGeom2D plane = new GeometryBuilder2D().points(X, Y).addSheet(triangle(X, Y)).buildGeom();
                RenderDraw3D other = triangleInSpace().buildDraw(1, "draw object")) {
            model.fillObject2D(plane);
            assertEquals("points 0 0 0\nlines\nsheets 0\nsubdomains\nmaterial P 1\n", TestRenderer.describeModel(model));
            model.fillObject1D(axis);
            NativeException refused = assertThrows(NativeException.class, () -> model.fillObject(other));
            assertTrue(refused.getDetail().contains("expected class RenderGeom3D, found class RenderDraw3D"),
                    refused::getDetail);
            assertThrows(NullPointerException.class, () -> model.fillObject2D(null));
            assertEquals("lines 0", linesOf("lines"));
            model.resetObject();
            assertEquals("lines", linesOf("lines"));
        }
    }

    @Test
    void marksPartsOfEachKind() {
        fillInSpace();
        model.markSubdomain(0, MarkingAction.PRIMARY);
        model.markBoundary(0, MarkingAction.SECONDARY);
        model.markEdge(0, MarkingAction.UNPICKABLE);
        model.markPoint(0, MarkingAction.HIDDEN);
        // The line bounds the sheet and the subdomain, points 1 and 2 are its ends.
        assertEquals("points 4 20030 20030\nlines 10030\nsheets 12\nsubdomains 1\nmaterial P 1\n",
                TestRenderer.describeModel(model));
        model.unmarkPoint(0, MarkingAction.HIDDEN);
        model.unmarkEdge(0, MarkingAction.UNPICKABLE);
        model.unmarkBoundary(0, MarkingAction.SECONDARY);
        assertEquals("lines 10", linesOf("lines"));
        model.unmarkSubdomain(0, MarkingAction.PRIMARY);
        model.markEdge(0, MarkingAction.HIDDEN);
        model.markPoint(0, MarkingAction.HIDDEN);
        model.unmarkAll(ObjectPartType.POINT, MarkingAction.HIDDEN);
        assertEquals("points 0 40 40", linesOf("points"));
        model.unmarkAll(ObjectPartType.ALL, MarkingAction.HIDDEN);
        assertEquals("points 0 0 0", linesOf("points"));
        NativeException refused = assertThrows(NativeException.class,
                () -> model.markBoundary(1, MarkingAction.PRIMARY));
        assertEquals("There is no sheet 1 among 1.", refused.getDetail());
    }

    @Test
    void takesMeshesAndMaterials() {
        fillInSpace();
        try (RenderMeshCollection meshes = new RenderMeshCollection();
                RenderMeshCollection wrong = new RenderMeshCollection()) {
            meshes.addSheet(MeshKind.BOUNDARY_3D, 0, new double[][] {X, Y, Z}, new int[][] {{0}, {1}, {2}},
                    new int[][] {});
            meshes.addLine(MeshKind.EDGE_3D, 0, X, Y, Z);
            model.addMeshCollection(meshes);
            assertEquals("lines 100\nsheets 100", linesOf("lines") + "\n" + linesOf("sheets"));
            model.deleteAllMeshes();
            assertEquals("lines 0", linesOf("lines"));
            wrong.addLine(MeshKind.EDGE_3D, 0, X, Y, Z);
            wrong.addLine(MeshKind.EDGE_3D, 1, X, Y, Z);
            NativeException refused = assertThrows(NativeException.class, () -> model.addMeshCollection(wrong));
            assertEquals("There is a mesh for line 1 of 1.", refused.getDetail());
            assertEquals("lines 0", linesOf("lines"));
        }
        model.setMaterial(ObjectPartType.SHEET, 0, "steel");
        model.setMaterial(ObjectPartType.LINE, 0, "wood");
        model.setMaterial(ObjectPartType.ALL, 0, "wood");
        assertEquals("material steel 1", linesOf("material"));
        model.setMaterial(ObjectPartType.SUBDOMAIN, 0, "brass");
        assertEquals("material brass 1", linesOf("material"));
        assertThrows(NativeException.class, () -> model.setMaterial(ObjectPartType.SUBDOMAIN, 1, "wood"));
    }

    @Test
    void storesImagesByName() {
        model.setImage("icon", new int[] {0x12345678, 0x80ffffff}, 1, 2, 1.5f);
        model.setImage("empty", new int[0], 0, 5, 1);
        assertEquals("image empty 0\nimage icon 34567812 ffffff80", linesOf("image"));
        assertTrue(model.hasImage("icon"));
        assertFalse(model.hasImage("other"));
        assertThrows(IllegalArgumentException.class, () -> model.setImage("icon", new int[3], 1, 2, 1));
        assertThrows(IllegalArgumentException.class, () -> model.setImage("icon", new int[1], -1, -1, 1));
        assertThrows(NullPointerException.class, () -> model.setImage("icon", null, 0, 0, 1));
    }

    @Test
    void placesMarkersAndConnectors() throws IOException {
        fillInSpace();
        model.setPhysicsMarker("a", ObjectPartType.POINT, 1);
        model.setPhysicsMarkerNormal("a", ObjectPartType.SHEET, 0, true);
        model.setPhysicsMarkerNormal("a", ObjectPartType.SHEET, 0, false);
        // Entries after the second are z, the last of them counts; all are of length 1 afterwards.
        model.setPhysicsMarkerSys("a", ObjectPartType.LINE, 0, new double[][] {{0, 3}, {5}, {0, 0, 7, -2}, {}});
        model.setPhysicsMarkerBoundSys("a", ObjectPartType.SHEET, 0, false, true, 2, 1);
        model.setPhysicsMarker("a", ObjectPartType.ALL, 0);
        // The label is at the centre of the sheet, and in the middle of the line.
        assertEquals("marker 0 1 [2 0 0]\n"
                + "marker 1 0 [1 1 0] [0 1 0] [1 0 0] [0 0 -1] [0 0 0]\n"
                + "marker 2 0 [0.666667 0.666667 0] [0 0 -1]\n"
                + "marker 2 0 [0.666667 0.666667 0] [0 0 1]\n"
                + "marker 2 0 [0.666667 0.666667 0] [-1 0 0] [0 -1 0] [0 0 1]", linesOf("marker"));
        model.setPhysicsConnector("b", ObjectPartType.LINE, new int[] {0, 0});
        model.setPhysicsConnector("b", ObjectPartType.SHEET, new int[0]);
        model.setPhysicsConnector("b", ObjectPartType.SHEET, new int[0], new double[] {1, 2, 3, 4});
        assertEquals("connector [1 1 0] 2\nconnector [1 2 4] 0", linesOf("connector"));
        assertTrue(model.hasImage("b"));
        model.setShowPhysicsMarkers(false);
        assertEquals("markers off", linesOf("markers"));
        model.clearPhysicsMarkers();
        assertEquals("", linesOf("marker "));

        assertEquals(List.of("There is no position for a marker at part 0 of level 3."),
                CapturedLog.messagesOf(ErrorLog.Level.WARNING,
                        () -> model.setPhysicsMarker("c", ObjectPartType.SUBDOMAIN, 0)));
        assertFalse(model.hasImage("c"));
        assertThrows(NativeException.class, () -> model.setPhysicsMarker("c", ObjectPartType.POINT, 3));
        assertThrows(NullPointerException.class,
                () -> model.setPhysicsMarkerSys("c", ObjectPartType.LINE, 0, new double[][] {null}));
        assertThrows(NullPointerException.class, () -> model.setPhysicsConnector(null, ObjectPartType.LINE, new int[0]));
    }

    /** The samples of the page on physics objects. */
    @Test
    void hasAMarkerOfEachKind() {
        RenderGeom3D record = triangleInSpace().buildGeom();
        int[] pixels = new int[32 * 32];
        int face = 0;
        int edge = 0;
        try (record) {
            model.fillObject(record);
        }
        model.setMaterial(ObjectPartType.SUBDOMAIN, 0, "steel");
        model.setImage("force", pixels, 32, 32, 1); // before the markers that show it
        model.setPhysicsMarker("force", ObjectPartType.SHEET, face);
        model.setPhysicsMarkerNormal("force", ObjectPartType.SHEET, face, true); // against the normal
        model.setPhysicsMarkerSys("force", ObjectPartType.LINE, edge, new double[][] {{1, 0, 0}, {0, 1, 1}});
        model.setPhysicsMarkerBoundSys("force", ObjectPartType.SHEET, face, false, true, 3, 2);
        model.setPhysicsConnector("spring", ObjectPartType.SHEET, new int[] {face, face});
        assertEquals(4, linesOf("marker ").lines().count());
        assertEquals("connector [0.666667 0.666667 0] 2", linesOf("connector"));

        model.clearPhysicsMarkers(); // before a fill, which deletes the parts
        try (RenderGeom3D next = triangleInSpace().buildGeom()) {
            model.fillObject(next);
        }
        assertEquals("", linesOf("marker "));
    }

    @Test
    void isFoundAgainUnderItsParent() {
        try (SceneGraphGroup group = new SceneGraphGroup()) {
            group.addChild(model);
            assertEquals(SceneGraphObject.ObjectType.PHYSICS, group.getChildObjectType(model.getChildId()));
            model.setImage("icon", new int[1], 1, 1, 1);
            try (SceneGraphPhysicsObject again = SceneGraphPhysicsObject.connect(group, model.getChildId())) {
                assertTrue(again.hasImage("icon"));
            }
            assertThrows(NativeException.class, () -> SceneGraphDrawObjectSolid.connect(group, model.getChildId()));
        }
    }
}
