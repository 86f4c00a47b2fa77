package com.vexane.interaction;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.Camera3d;
import com.vexane.graphics3d.Canvas3dGlobalSettings.CameraMouseAction;
import com.vexane.graphics3d.Canvas3dGlobalSettings;
import com.vexane.graphics3d.Canvas3dSettings.RenderMode;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.TestRenderer;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

/** The cameras here draw to 100 by 100 pixels, the size of a camera that no renderer has resized. */
class CameraInteractionTest {
    private static final int HEIGHT = 100;

    @BeforeEach
    void setActions() {
        Canvas3dGlobalSettings.setDefaultCameraMouseActions();
    }

    @AfterEach
    void resetActions() {
        Canvas3dGlobalSettings.resetCameraMouseActions();
    }

    @Test
    void dragsMoveTheCameraOfTheViewUntilTheyAreKeptOrCancelled() {
        try (TestRenderer view = new TestRenderer();
                Canvas3dSettings settings = Canvas3dSettings.connect(view);
                Camera3d camera = Camera3d.connect(settings);
                CameraInteraction interaction = CameraInteraction.connect(view, HEIGHT)) {
            camera.setPosition(0, 0, 10, 0, 0, -1, 0, 1, 0);
            assertTrue(interaction.press(3, 0, 50, 50));
            assertTrue(interaction.isDragging());
            assertEquals(CameraMouseAction.PAN, interaction.getAction());
            assertTrue(interaction.drag(60, 30));
            assertEquals(0.1f, camera.getRelativeViewOffsetX());
            assertEquals(0.2f, camera.getRelativeViewOffsetY());
            assertTrue(interaction.cancel());
            assertEquals(0.0f, camera.getRelativeViewOffsetX());
            assertEquals(CameraMouseAction.NONE, interaction.getAction());

            assertTrue(interaction.press(1, CameraInteraction.keyMask(true, false, false), 90, 50));
            assertEquals(CameraMouseAction.ORBIT_ROLL, interaction.getAction());
            assertTrue(interaction.drag(50, 10));
            interaction.release();
            // Orbiting to the left rotates the up direction, so the camera tips to the right.
            assertEquals(1.0f, camera.getUpDirectionX(), 0.05f);
            assertFalse(interaction.isDragging());
            assertFalse(interaction.drag(60, 60));
        }
    }

    @Test
    void wheelAndRectanglesZoomAtOnce() {
        try (TestRenderer view = new TestRenderer();
                Canvas3dSettings settings = Canvas3dSettings.connect(view);
                Camera2d camera = Camera2d.connect(settings);
                CameraInteraction interaction = CameraInteraction.connect(view, HEIGHT)) {
            settings.setRenderMode(RenderMode.VIEW_2D);
            camera.setViewLimits(0, 100, 0, 100);
            // The middle of the pixel is at 20.5 from the left and at 80.5 from below.
            assertTrue(interaction.wheel(-4.0, 20, 19));
            assertLimits(camera, 10.25f, 60.25f, 40.25f, 90.25f);
            assertTrue(interaction.wheel(4.0, 20, 19));
            assertLimits(camera, 0, 100, 0, 100);
            assertTrue(interaction.zoomToRectangle(70, 20, 20, 70));
            assertLimits(camera, 20.5f, 70.5f, 29.5f, 79.5f);
            assertFalse(interaction.zoomToRectangle(20, 20, 21, 90));
            // The camera of a 2D view does not rotate.
            assertFalse(interaction.press(1, 0, 50, 50));
        }
    }

    private static void assertLimits(Camera2d camera, float... expected) {
        float[] limits = camera.getViewLimits();
        for (int i = 0; i < expected.length; ++i) {
            assertEquals(expected[i], limits[i], 1e-4f);
        }
    }

    @Test
    void countsRowsFromTheTopOfTheCanvas() {
        try (TestRenderer view = new TestRenderer();
                CameraInteraction interaction = CameraInteraction.connect(view, 300)) {
            assertFalse(interaction.press(1, 0, 50, 199));
            assertTrue(interaction.press(1, 0, 50, 200));
            interaction.release();
            interaction.setCanvasHeight(HEIGHT);
            assertFalse(interaction.press(1, 0, 50, 200));
            assertTrue(interaction.press(1, 0, 50, 0));
        }
    }

    @Test
    void keysAreBits() {
        assertEquals(0, CameraInteraction.keyMask(false, false, false));
        assertEquals(CameraInteraction.SHIFT, CameraInteraction.keyMask(true, false, false));
        assertEquals(CameraInteraction.CONTROL, CameraInteraction.keyMask(false, true, false));
        assertEquals(CameraInteraction.ALT, CameraInteraction.keyMask(false, false, true));
        assertEquals(7, CameraInteraction.keyMask(true, true, true));
    }

    @Test
    void refusesInvalidArguments() {
        try (TestRenderer view = new TestRenderer();
                Scene scene = new Scene();
                CameraInteraction interaction = CameraInteraction.connect(view, HEIGHT)) {
            for (int button : new int[] {0, 4, -1}) {
                assertThrows(IllegalArgumentException.class, () -> interaction.press(button, 0, 1, 1));
            }
            for (int mask : new int[] {8, -1}) {
                assertThrows(IllegalArgumentException.class, () -> interaction.press(1, mask, 1, 1));
            }
            assertThrows(IllegalArgumentException.class, () -> interaction.setCanvasHeight(0));
            assertThrows(IllegalArgumentException.class, () -> CameraInteraction.connect(view, 0));
            assertThrows(NullPointerException.class, () -> CameraInteraction.connect(null, HEIGHT));
            assertThrows(NativeException.class, () -> CameraInteraction.connect(scene, HEIGHT));
            assertFalse(interaction.isDragging());
        }
    }

    @Test
    void outlivesTheViewAndEndsWithItsDragCancelled() {
        TestRenderer view = new TestRenderer();
        try (Canvas3dSettings settings = Canvas3dSettings.connect(view);
                Camera3d camera = Camera3d.connect(settings)) {
            CameraInteraction interaction = CameraInteraction.connect(view, HEIGHT);
            view.close();
            NativePeer closed = view;
            assertThrows(IllegalStateException.class, () -> CameraInteraction.connect(closed, HEIGHT));
            assertTrue(interaction.press(3, 0, 50, 50));
            assertTrue(interaction.drag(99, 50));
            assertEquals(0.49f, camera.getRelativeViewOffsetX());
            interaction.close();
            assertEquals(0.0f, camera.getRelativeViewOffsetX());
            interaction.close();
            assertThrows(NativeException.class, () -> interaction.drag(1, 1));
            assertThrows(NativeException.class, interaction::getAction);
        }
    }
}
