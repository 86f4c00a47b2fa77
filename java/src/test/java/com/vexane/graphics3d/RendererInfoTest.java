package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.RendererInfo.MonitorInfo;
import java.util.List;
import org.junit.jupiter.api.Test;

class RendererInfoTest {
    @Test
    void readsWhatTheRendererWrote() {
        try (RendererInfo info = new TestRenderer.Info()) {
            assertEquals(2, info.getNumberOfMissingRequirements());
            assertEquals("no context", info.getMissingRequirement(0));
            assertEquals("no window", info.getMissingRequirement(1));
            assertEquals("test", info.getRendererType());
            assertEquals(5, info.getNumberOfMonitors());
            assertTrue(info.hasDoubleBuffering());
            assertEquals(2, info.getNumberOfMultisampleSettings());
            assertEquals(8, info.getMultisampleSetting(0));
            assertEquals(4, info.getMultisampleSetting(1));
            assertEquals(6, info.getNumberOfLights());
            assertEquals(2048, info.getMaxTextureSize());
            assertEquals(50000, info.getMaxVertexArraySize());
            assertEquals(60000, info.getMaxIndexArraySize());
        }
    }

    @Test
    void aMonitorOutlivesTheRecordItCameFrom() {
        MonitorInfo monitor;
        try (RendererInfo info = new TestRenderer.Info()) {
            monitor = MonitorInfo.connect(info, 0);
        }
        try (monitor) {
            assertEquals("left", monitor.getDeviceID());
            assertEquals("vendor", monitor.getRendererVendor());
            assertEquals("card", monitor.getRendererName());
            assertEquals("1.2", monitor.getRendererVersion());
            assertEquals(8, monitor.getMaxNumberOfLights());
            assertEquals(4096, monitor.getMaxTextureSize());
            assertEquals(100000, monitor.getMaxVertexArraySize());
            assertEquals(200000, monitor.getMaxIndexArraySize());
        }
    }

    @Test
    void extensionsAreSorted() {
        List<List<String>> wanted = List.of(List.of("a", "b", "c"), List.of("only"), List.of());
        try (RendererInfo info = new TestRenderer.Info()) {
            for (int i = 0; i < wanted.size(); ++i) {
                try (MonitorInfo monitor = MonitorInfo.connect(info, i)) {
                    assertEquals(wanted.get(i), monitor.getOpenGlExtensions());
                }
            }
        }
    }

    @Test
    void indicesOutOfRangeAreRefused() {
        try (RendererInfo info = new TestRenderer.Info()) {
            for (int index : new int[] {-1, 5, Integer.MAX_VALUE, Integer.MIN_VALUE}) {
                assertThrows(IndexOutOfBoundsException.class, () -> info.getMissingRequirement(index));
                assertThrows(IndexOutOfBoundsException.class, () -> info.getMultisampleSetting(index));
                assertThrows(IndexOutOfBoundsException.class, () -> MonitorInfo.connect(info, index));
            }
        }
    }

    @Test
    void aMonitorThatCannotBeSharedIsAnInternalError() {
        try (RendererInfo info = new TestRenderer.Info()) {
            NativeException missing = assertThrows(NativeException.class, () -> MonitorInfo.connect(info, 3));
            assertEquals("Nothing is known of monitor 3.", missing.getDetail());
            NativeException unowned = assertThrows(NativeException.class, () -> MonitorInfo.connect(info, 4));
            assertEquals("Internal_error_graphics3d", unowned.getKey());
        }
    }

    @Test
    void nullAndClosedOwnersAreRefused() {
        RendererInfo closed = new TestRenderer.Info();
        closed.close();
        closed.close();
        assertThrows(IllegalStateException.class, () -> MonitorInfo.connect(closed, 0));
        assertThrows(NullPointerException.class, () -> MonitorInfo.connect(null, 0));
        assertThrows(NativeException.class, closed::getRendererType);
    }
}
