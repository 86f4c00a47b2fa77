package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.Camera2d.UseMode;
import java.util.List;
import org.junit.jupiter.api.Test;

/** The canvas of a standalone camera is square, 100 by 100 pixels. */
class Camera2dTest {
    private static float[] limits(float... limits) {
        return limits;
    }

    @Test
    void limitsAreReportedAdaptedToTheCanvas() {
        try (Camera2d camera = new Camera2d()) {
            assertArrayEquals(limits(0, 1, 0, 1), camera.getViewLimits());
            assertTrue(camera.setViewLimits(0, 4, 1, 3));
            assertArrayEquals(limits(0, 4, 0, 4), camera.getViewLimits());
            assertTrue(camera.setViewLimitsWithPreserve(0, 4, 1, 3, false));
            assertArrayEquals(limits(0, 4, 1, 3), camera.getViewLimits());
            assertEquals(1, camera.getAxisViewScaleX());
            assertEquals(2, camera.getAxisViewScaleY());
            assertTrue(camera.setViewLimitsWithPreserve(0, 0, 0, 0, true));
            assertFalse(camera.setViewLimitsWithPreserve(0, 0, 0, 0, false));
        }
    }

    @Test
    void theOtherAxisFollowsOrStays() {
        try (Camera2d camera = new Camera2d()) {
            assertTrue(camera.isPreserveAspectRatio());
            assertTrue(camera.setViewLimitsX(2, 4));
            assertArrayEquals(limits(2, 4, -0.5f, 1.5f), camera.getViewLimits());
            camera.setPreserveAspectRatio(false);
            assertFalse(camera.isPreserveAspectRatio());
            assertTrue(camera.setViewLimitsY(0, 8));
            assertArrayEquals(limits(2, 4, 0, 8), camera.getViewLimits());
            assertFalse(camera.setViewLimitsY(8, 8));
            assertFalse(camera.setViewLimits(0, 1, 1, 0));
            assertArrayEquals(limits(2, 4, 0, 8), camera.getViewLimits());
        }
    }

    @Test
    void polarModeReportsRadii() {
        try (Camera2d camera = new Camera2d()) {
            camera.setUseMode(UseMode.POLAR);
            camera.setPolarLimits(7, 3);
            assertArrayEquals(limits(3, 7, 0, 0), camera.getViewLimits());
            camera.setPolarLimits(1, 5);
            assertArrayEquals(limits(5, 6, 0, 0), camera.getViewLimits());
            camera.setUseMode(UseMode.PLANE);
            camera.setViewLimits(0, 1, 0, 1);
            assertArrayEquals(limits(0, 1, 0, 1), camera.getViewLimits());
            camera.setUseMode(UseMode.ONE_DIMENSIONAL);
            camera.setViewLimits(0, 1, 0, 1);
            assertArrayEquals(limits(0, 1, -1, 1), camera.getViewLimits());
            Natives.call(Camera2d.class, "setUseMode", camera, -1);
            camera.setViewLimits(0, 1, 0, 1);
            assertArrayEquals(limits(0, 1, 0, 1), camera.getViewLimits());
        }
    }

    @Test
    void zoomHalvesTheRange() {
        try (Camera2d camera = new Camera2d()) {
            camera.zoomCenter(2);
            assertArrayEquals(limits(0.25f, 0.75f, 0.25f, 0.75f), camera.getViewLimits());
        }
    }

    @Test
    void fitAndFillReachTheCameraExchanged() {
        // With the y axis stretched, a merge adapts the limits again: for this camera FIT fills and FILL fits.
        for (ResizeBehaviour behaviour : List.of(ResizeBehaviour.FIT, ResizeBehaviour.FILL)) {
            try (Camera2d camera = new Camera2d()) {
                camera.setOverrideResizeBehaviour(true, behaviour);
                camera.setAxisViewScales(1, 2);
                camera.zoomCenter(1);
                assertArrayEquals(behaviour == ResizeBehaviour.FIT ? limits(0, 1, 0.25f, 0.75f) : limits(-0.5f, 1.5f, 0, 1),
                        camera.getViewLimits());
            }
        }
    }

    @Test
    void scalesFollowTheSceneUntilTheyAreReset() {
        try (Camera2d camera = new Camera2d()) {
            assertTrue(camera.getAxisViewScalesAuto());
            camera.setAxisViewScales(3, 4);
            assertEquals(3, camera.getAxisViewScaleX());
            assertEquals(4, camera.getAxisViewScaleY());
            assertTrue(camera.getAxisViewScalesAuto());
            camera.resetAxisViewScales();
            assertFalse(camera.getAxisViewScalesAuto());
            assertEquals(1, camera.getAxisViewScaleY());
            camera.setAxisViewScalesAuto();
            assertTrue(camera.getAxisViewScalesAuto());
        }
    }

    @Test
    void badArgumentsAreRefusedAndMeaninglessNumbersAreHarmless() {
        Camera2d closed = new Camera2d();
        closed.close();
        assertThrows(NativeException.class, closed::getViewLimits);
        assertThrows(NativeException.class, () -> closed.setViewLimits(0, 1, 0, 1));
        assertThrows(NativeException.class, () -> Natives.call(Camera2d.class, "getViewLimits", (Object) null));
        try (Camera2d camera = new Camera2d()) {
            assertThrows(NullPointerException.class, () -> camera.setUseMode(null));
            assertThrows(NullPointerException.class, () -> camera.setOverrideResizeBehaviour(true, null));
            for (float number : new float[] {0, -1, Float.NaN, Float.POSITIVE_INFINITY, -Float.MAX_VALUE}) {
                for (UseMode mode : UseMode.values()) {
                    camera.setUseMode(mode);
                    camera.setAxisViewScales(number, number);
                    camera.setViewLimits(number, 1, 0, number);
                    camera.setPolarLimits(number, number);
                    camera.zoomCenter(number);
                    camera.setAxisViewScalesAuto();
                }
            }
            camera.setViewLimits(0, 1, 0, 1);
            assertArrayEquals(limits(0, 1, 0, 1), camera.getViewLimits());
        }
    }
}
