package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayRenderEdit2d;
import com.vexane.graphics3d.TestRenderer;
import com.vexane.interaction.CurveEditing;
import org.junit.jupiter.api.Test;

class EditGeometryTest {
    private static final double[] KNOTS = {0, 0, 0, 1, 1, 1};

    /** A line from vertex 0 to 1, a hidden one back, half a circle from 1 to 2, and a spline from there on. */
    private static EditGeometryBuilder sketch() {
        EditGeometryBuilder builder = new EditGeometryBuilder();
        assertEquals(0, builder.addVertex(0, 0));
        assertEquals(1, builder.addVertex(2, 0));
        assertEquals(2, builder.addVertex(2, 2));
        assertEquals(0, builder.addLine(0, 1));
        assertEquals(1, builder.addLine(1, 0));
        builder.hideEdge(1);
        assertEquals(2, builder.addArc(1, 2, 2, 1));
        double[] weights = {2, 3, 4};
        builder.addSpline(2, EditGeometryBuilder.NO_VERTEX, 2, KNOTS, new double[] {2, 1, 0}, new double[] {2, 3, 2},
                weights);
        return builder;
    }

    @Test
    void editsReachTheRecordAndItsOwnerClearsTheFlags() {
        RenderDrawEdit2D record = sketch().build();
        try (OverlayRenderEdit2d curve = new OverlayRenderEdit2d(); Overlay overlay = new Overlay()) {
            // Half a circle of radius 1 is two knot spans of two parts each, and a double knot between them.
            assertEquals(7, record.tessellate(2, 1)[0].length);
            assertArrayEquals(new double[][] {{0, 2}, {0, 0}}, record.tessellate(0, 0));
            curve.connectRenderDrawEdit(record);
            overlay.addOverlayObject(curve, 3);
            assertEquals(4, curve.getNumberOfEdges());
            assertEquals(3, curve.getNumberOfVertices());
            assertEquals(2, curve.getEdgeDegree(3));
            // Ids: two of edge 0, none of the hidden edge, five of the half circle, three of the spline.
            assertArrayEquals(new double[] {1, 3, 3}, curve.getControlPoint(8));
            assertArrayEquals(new double[3], curve.getControlPoint(10));

            curve.setControlPoint(7, 5, 4); // the first of the spline, at vertex 2
            assertArrayEquals(new double[] {5, 4}, record.getVertex(2));
            assertArrayEquals(new double[] {5, 4, 2}, curve.getEdgeData(3)[0]);
            assertArrayEquals(new double[][] {{5, 1, 0}, {4, 3, 2}, {2, 3, 4}}, record.getControlPoints(3));
            assertEquals(5, record.getControlPoints(2)[0][4]);
            assertArrayEquals(KNOTS, record.getKnots(3));
            assertTrue(record.isVertexModified(2) && curve.isVertexModified(2) && record.isEdgeModified(2)
                    && curve.isEdgeModified(3));
            assertFalse(record.isVertexModified(1) || curve.isEdgeModified(0));
            curve.setVertex(0, -1, 0);
            assertTrue(record.isEdgeModified(1));
            assertFalse(curve.isEdgeModified(1), "a hidden edge reports nothing");
            record.clearModified();
            assertFalse(curve.isVertexModified(2) || curve.isEdgeModified(3));
            curve.setControlPoint(99, 7, 7);
            assertFalse(curve.isEdgeModified(3));
            record.close();
            curve.setVertex(1, 3, 0);
            assertTrue(curve.isEdgeModified(0), "the overlay shares the record");
        }
    }

    /** The camera draws to 100 by 100 pixels, the size of a camera that no renderer has resized. */
    @Test
    void thePointerDragsAVertexOfTheGeometry() {
        EditGeometryBuilder builder = new EditGeometryBuilder();
        builder.addArc(builder.addVertex(80, 50), builder.addVertex(50, 80), 50, 50);
        try (TestRenderer view = new TestRenderer(); Canvas3dSettings settings = Canvas3dSettings.connect(view);
                Camera2d camera = Camera2d.connect(settings); OverlayRenderEdit2d curve = new OverlayRenderEdit2d();
                RenderDrawEdit2D record = builder.build()) {
            settings.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
            camera.setViewLimits(0, 100, 0, 100);
            curve.connectRenderDrawEdit(record);
            try (CurveEditing editing = CurveEditing.connect(view, curve, 100)) {
                // Row 50 from below is the 49th from above.
                assertTrue(editing.press(80, 49));
                assertEquals(0, editing.getVertex());
                assertTrue(editing.drag(90, 59));
                assertArrayEquals(new double[] {90, 40}, record.getVertex(0), 1e-4);
                assertEquals(90, record.getControlPoints(0)[0][0], 1e-4);
                assertTrue(editing.cancel());
                assertArrayEquals(new double[] {80, 50}, record.getVertex(0));
                editing.press(80, 19);
                assertEquals(1, editing.getControlPoint());
                editing.drag(60, 19);
                editing.release();
                assertArrayEquals(new double[] {60, 80, Math.sqrt(0.5)}, curve.getControlPoint(1), 1e-4);
            }
        }
    }

    @Test
    void refusesWhatDoesNotExistAndStaysUsable() {
        try (OverlayRenderEdit2d curve = new OverlayRenderEdit2d(); RenderDrawEdit2D record = sketch().build();
                PostDataObject other = new PostDataBuilder(PlotKind.SURFACE_2D)
                        .addGroup(new PostDataGroup().coordinates(new double[1], new double[1])).build()) {
            assertEquals(0, curve.getNumberOfEdges());
            assertThrows(NativeException.class, () -> curve.setVertex(0, 1, 1));
            assertThrows(NativeException.class, () -> curve.getEdgeData(0));
            curve.setEdgeMarking(0, true);
            assertThrows(NativeException.class, () -> curve.connectRenderDrawEdit(other));
            assertThrows(NullPointerException.class, () -> curve.connectRenderDrawEdit(null));
            curve.connectRenderDrawEdit(record);
            for (int number : new int[] {-1, 4, Integer.MAX_VALUE}) {
                assertThrows(NativeException.class, () -> curve.isEdgeModified(number));
                assertThrows(NativeException.class, () -> curve.isVertexModified(number));
                assertThrows(NativeException.class, () -> curve.getEdgeDegree(number));
                assertThrows(NativeException.class, () -> curve.setVertex(number, 0, 0));
                assertThrows(IndexOutOfBoundsException.class, () -> record.getKnots(number));
                assertThrows(IndexOutOfBoundsException.class, () -> record.getVertex(number));
                curve.setControlPoint(number == 4 ? 10 : number, 0, 0);
                curve.setEdgeMarking(number, true);
            }
            curve.setVertex(1, 1, 1);
            assertTrue(record.isVertexModified(1));
        }
    }

    @Test
    void namesTheEdgeAndTheArrayThatDoNotFit() {
        EditGeometryBuilder builder = sketch();
        builder.addSpline(-1, -1, 2, KNOTS, new double[3], new double[4]);
        NativeException refusal = assertThrows(NativeException.class, builder::build);
        assertTrue(refusal.getMessage().contains("edge 4: y has 4 entries for 3 control points"), refusal.getMessage());
        assertThrows(NullPointerException.class, () -> builder.addSpline(-1, -1, 2, null, KNOTS, KNOTS));
        assertThrows(IndexOutOfBoundsException.class, () -> builder.hideEdge(5));
        assertThrows(IndexOutOfBoundsException.class, () -> builder.hideVertex(-1));
    }
}
