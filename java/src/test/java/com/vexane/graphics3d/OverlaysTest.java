package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeException;
import org.junit.jupiter.api.Test;

class OverlaysTest {
    @Test
    void anObjectHasThePickIdOfItsLastOverlayAndLivesWithoutItsPeer() {
        try (Overlay overlay = new Overlay(); Overlay other = new Overlay();
                OverlayEllipse ellipse = new OverlayEllipse()) {
            assertEquals(0, ellipse.getObjectPickID());
            overlay.addOverlayObject(ellipse, 7);
            other.addOverlayObject(ellipse, 8);
            assertEquals(8, ellipse.getObjectPickID());
            other.removeOverlayObject(ellipse);
            OverlaySymbol symbol = new OverlaySymbol();
            symbol.setLocation(1, 2);
            overlay.addOverlayObject(symbol, 1);
            symbol.close();
            assertThrows(IllegalStateException.class, () -> overlay.addOverlayObject(symbol, 2));
            assertThrows(NullPointerException.class, () -> overlay.removeOverlayObject(null));
            assertThrows(IllegalArgumentException.class, () -> ellipse.setFillColor(0, 0, 256, 0));
            assertThrows(IllegalArgumentException.class, () -> ellipse.setOutlineColor(-1, 0, 0, 0));
        }
    }

    @Test
    void handlesStartAtTheTransformedOrigin() {
        try (OverlayTransformation frame = new OverlayTransformation()) {
            frame.setScale(2, 3, 1, true);
            frame.setTranslation(1, 1, 5, false);
            assertArrayEquals(new double[] {2, 3, 5}, frame.getHandlePosition(7));
            frame.setRotation(0, 0, 1, 1, true);
            assertArrayEquals(new double[3], frame.getHandlePosition(0));
            assertThrows(IndexOutOfBoundsException.class, () -> frame.getHandlePosition(8));
            assertThrows(IndexOutOfBoundsException.class, () -> frame.markHandle(-1, true));
        }
    }

    @Test
    void aCurveIsDrawnPointByPointAndItsPointsAreMoved() {
        try (OverlayDrawCurve curve = new OverlayDrawCurve()) {
            int edge = curve.addEdge(curve.addVertex(0, 0), curve.addVertex(1, 0.1));
            for (int id = 0; id < 5; ++id) {
                assertEquals(id, curve.addControlPoint(edge, id, 2));
            }
            assertEquals(-1, curve.addControlPoint(edge, 0, 0));
            curve.setControlPoint(3, 4, 5.5);
            assertArrayEquals(new double[] {4, 5.5, 0}, curve.getControlPoint(3));
            curve.setControlPoint(9, 1, 1);
            assertArrayEquals(new double[3], curve.getControlPoint(9));
            curve.setVertex(0, 0.25, -1);
            assertArrayEquals(new double[] {0.25, -1}, curve.getVertex(0));
            assertArrayEquals(new double[] {1, 0.1}, curve.getVertex(1));
            curve.setEdge(1, 0);
            assertEquals(2, curve.getNumberOfEdges());
            assertEquals(2, curve.getNumberOfVertices());
            assertThrows(NativeException.class, () -> curve.setEdge(0, 2));
            assertThrows(NativeException.class, () -> curve.getVertex(2));
            assertEquals(2, curve.getNumberOfEdges());
        }
    }
}
