package com.vexane.interaction;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.Canvas3dSettings.RenderMode;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayRenderEdit2d;
import com.vexane.graphics3d.TestRenderer;
import com.vexane.producer.EditGeometryBuilder;
import com.vexane.producer.RenderDrawEdit2D;
import org.junit.jupiter.api.Test;

/** The cameras here draw to 100 by 100 pixels, the size of a camera that no renderer has resized. */
class CurveInteractionTest {
    @Test
    void dragsReachTheGeometryAndItsOwner() {
        EditGeometryBuilder sketch = new EditGeometryBuilder();
        sketch.addArc(sketch.addVertex(80, 50), sketch.addVertex(50, 80), 50, 50);
        try (TestRenderer view = new TestRenderer(); Canvas3dSettings settings = Canvas3dSettings.connect(view);
                Camera2d camera = Camera2d.connect(settings); Overlay overlay = new Overlay();
                OverlayRenderEdit2d curve = new OverlayRenderEdit2d(); RenderDrawEdit2D record = sketch.build();
                CurveInteraction interaction = CurveInteraction.connect(view, overlay, 100)) {
            settings.setRenderMode(RenderMode.VIEW_2D);
            camera.setViewLimits(0, 100, 0, 100);
            curve.connectRenderDrawEdit(record);
            assertFalse(interaction.press(80, 49), "the overlay is empty");
            assertEquals(-1, interaction.getPickId());
            overlay.addOverlayObject(curve, 4);
            // Row 50 from below is the 49th from above.
            assertTrue(interaction.press(80, 49));
            assertTrue(interaction.isDragging());
            assertEquals(4, interaction.getPickId());
            assertEquals(0, interaction.getVertex());
            assertTrue(interaction.drag(90, 59));
            assertArrayEquals(new double[] {90, 40}, record.getVertex(0), 1e-5);
            assertTrue(record.isEdgeModified(0));
            assertTrue(interaction.cancel());
            assertArrayEquals(new double[] {80, 50}, record.getVertex(0));
            assertTrue(interaction.press(81, 20));
            assertEquals(1, interaction.getControlPoint());
            assertTrue(interaction.drag(61, 20));
            interaction.release();
            assertEquals(-1, interaction.getControlPoint());
            assertEquals(60, curve.getControlPoint(1)[0], 1e-5);
            interaction.setCanvasHeight(200);
            assertThrows(IllegalArgumentException.class, () -> interaction.setCanvasHeight(0));
            assertThrows(NullPointerException.class, () -> CurveInteraction.connect(view, null, 1));
        }
    }
}
