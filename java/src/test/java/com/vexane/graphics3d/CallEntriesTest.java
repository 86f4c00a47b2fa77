package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;

import java.io.IOException;
import java.util.List;
import org.junit.jupiter.api.Test;

/** The log entries of calls: their name, and for some their arguments. */
class CallEntriesTest {
    private static List<String> entriesOf(Runnable calls) throws IOException {
        return CapturedLog.messagesOf(ErrorLog.Level.CALLS, calls);
    }

    @Test
    void camerasLogTheirArguments() throws IOException {
        try (Camera2d flat = new Camera2d();
                Camera3d solid = new Camera3d()) {
            assertEquals(
                    List.of("setPolarLimits(2.000000, 0.500000)", "setUseMode", "setAxisViewScales(2.000000, -1.250000)",
                            "getViewLimits()", "setViewLimitsX(0.000000, 4.000000)", "setViewLimitsY(1.000000, 3.000000)",
                            "setViewLimits(0.000000, 1.000000, 2.000000, 3.000000)",
                            "setViewLimitsWithPreserve(0.000000, 1.000000, 2.000000, 3.000000, true)",
                            "setViewLimitsWithPreserve(0.000000, 1.000000, 2.000000, 3.000000, false)",
                            "isPreserveAspectRatio()", "setPreserveAspectRatio(false)", "zoomCenter(2.500000)",
                            "setOverrideResizeBehaviour()"),
                    entriesOf(() -> {
                        flat.setPolarLimits(2.0f, 0.5f);
                        flat.setUseMode(Camera2d.UseMode.PLANE);
                        flat.setAxisViewScales(2.0f, -1.25f);
                        flat.getViewLimits();
                        flat.setViewLimitsX(0.0f, 4.0f);
                        flat.setViewLimitsY(1.0f, 3.0f);
                        flat.setViewLimits(0.0f, 1.0f, 2.0f, 3.0f);
                        flat.setViewLimitsWithPreserve(0.0f, 1.0f, 2.0f, 3.0f, true);
                        flat.setViewLimitsWithPreserve(0.0f, 1.0f, 2.0f, 3.0f, false);
                        flat.isPreserveAspectRatio();
                        flat.setPreserveAspectRatio(false);
                        flat.zoomCenter(2.5f);
                        flat.setOverrideResizeBehaviour(true, ResizeBehaviour.KEEP);
                    }));
            assertEquals(
                    List.of("zoomCenter(0.500000)", "setAxisViewScales(1.000000, 2.000000, 0.250000)",
                            "setOverrideResizeBehaviour()", "setRotationPoint", "getPositionX"),
                    entriesOf(() -> {
                        solid.zoomCenter(0.5f);
                        solid.setAxisViewScales(1.0f, 2.0f, 0.25f);
                        solid.setOverrideResizeBehaviour(false, ResizeBehaviour.KEEP);
                        solid.setRotationPoint(1.0f, 2.0f, 3.0f);
                        solid.getPositionX();
                    }));
        }
    }

    @Test
    void otherCallsLogTheirName() throws IOException {
        try (TestRenderer.Info info = new TestRenderer.Info();
                CanvasPickSettings picks = new CanvasPickSettings()) {
            assertEquals(
                    List.of("setPickTarget", "setPickMask", "getNumberOfMonitors", "00024MonitorInfo_connectNative",
                            "00024MonitorInfo_getDeviceID", "00024MonitorInfo_cleanupNative",
                            "nSetPickingTolerance"),
                    entriesOf(() -> {
                        Natives.call(CanvasPickSettings.class, "setPickTarget", picks, 3);
                        Natives.call(CanvasPickSettings.class, "setPickMask", picks, 7);
                        try (RendererInfo.MonitorInfo monitor = RendererInfo.MonitorInfo.connect(info, 0)) {
                            monitor.getDeviceID();
                        }
                        Canvas3dGlobalSettings.setPickingTolerance(5);
                    }));
        }
    }

    @Test
    void illegalPickTargetsAreReportedAndIgnored() throws IOException {
        try (CanvasPickSettings picks = new CanvasPickSettings()) {
            Natives.call(CanvasPickSettings.class, "setPickTarget", picks, 6);
            List<String> lines = CapturedLog.linesOf(ErrorLog.Level.WARNING, () -> {
                for (int target : new int[] {7, -1, Integer.MIN_VALUE}) {
                    Natives.call(CanvasPickSettings.class, "setPickTarget", picks, target);
                    assertEquals(6, Natives.call(CanvasPickSettings.class, "getPickTarget", picks));
                }
            });
            assertEquals(3, lines.size());
            for (String line : lines) {
                assertEquals("warning\tgraphics:8\tIllegal pick target.", line.substring(0, line.lastIndexOf('\t')));
            }
        }
    }
}
