package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.ContextData.AntialiasingType;
import org.junit.jupiter.api.Test;

class ContextDataTest {
    @Test
    void readsEveryFieldAndOutlivesItsView() {
        ContextData data;
        try (TestRenderer renderer = new TestRenderer()) {
            renderer.openContext(2);
            data = ContextData.connect(renderer);
        }
        try (data) {
            int[] read = {
                data.getColorBits(), data.getRedBits(), data.getGreenBits(), data.getBlueBits(), data.getAlphaBits(),
                data.getDepthBits(), data.getStencilBits(), data.getAccumBufferRedBits(),
                data.getAccumBufferGreenBits(), data.getAccumBufferBlueBits(), data.getAccumBufferAlphaBits(),
                data.getMultipleSamples()
            };
            for (int i = 0; i < read.length; ++i) {
                assertEquals(i + 1, read[i]);
            }
            assertTrue(data.isDoubleBuffered());
            assertFalse(data.isHardwareAccelerated());
            assertEquals(AntialiasingType.ACCUMULATION_BUFFER, data.getAntialiasingType());
        }
    }

    @Test
    void antialiasingTypesWithoutANameReadAsNone() {
        int[] numbers = {0, 1, 2, 3, 7, -1};
        int[] wanted = {0, 1, 2, 0, 0, 0};
        for (int i = 0; i < numbers.length; ++i) {
            try (TestRenderer renderer = new TestRenderer()) {
                renderer.openContext(numbers[i]);
                try (ContextData data = ContextData.connect(renderer)) {
                    assertEquals(wanted[i], data.getAntialiasingType().number());
                }
            }
        }
    }

    @Test
    void onlyAnOpenViewWithAContextConnects() {
        assertThrows(NullPointerException.class, () -> ContextData.connect(null));
        try (TestRenderer renderer = new TestRenderer()) {
            assertThrows(NativeException.class, () -> ContextData.connect(renderer));
        }
        TestRenderer closed = new TestRenderer();
        closed.close();
        assertThrows(IllegalStateException.class, () -> ContextData.connect(closed));
        try (Image image = new Image()) {
            NativeException wrong = assertThrows(NativeException.class, () -> ContextData.connect(image));
            assertEquals("Internal_error_graphics3d", wrong.getKey());
        }
    }
}
