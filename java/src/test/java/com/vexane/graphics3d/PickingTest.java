package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.CanvasPickSettings.Mask;
import com.vexane.graphics3d.CanvasPickSettings.Target;
import java.util.EnumSet;
import org.junit.jupiter.api.Test;

class PickingTest {
    @Test
    void settingsStartEmptyAndReadBackWhatIsSet() {
        try (CanvasPickSettings settings = new CanvasPickSettings()) {
            assertEquals(Target.NONE, settings.getPickTarget());
            assertEquals(EnumSet.noneOf(Mask.class), settings.getPickMask());
            for (Target target : Target.values()) {
                settings.setPickTarget(target);
                assertEquals(target, settings.getPickTarget());
            }
            settings.setPickMask(EnumSet.of(Mask.SHEETS, Mask.POINTS));
            assertEquals(EnumSet.of(Mask.SHEETS, Mask.POINTS), settings.getPickMask());
        }
    }

    @Test
    void onlyTheCanvasOfARendererHasSettingsToConnectTo() {
        try (PickedObjectCollection other = new PickedObjectCollection()) {
            NativeException refused = assertThrows(NativeException.class, () -> new CanvasPickSettings(other));
            assertEquals("Internal_error_graphics3d", refused.getKey());
            assertEquals("Argument \"renderer\": expected class IRendererCanvas, found class PickedObjectCollection.",
                    refused.getDetail());
            assertEquals("jni_canvaspicksettings.cpp", refused.getNativeFile());
            assertThrows(NullPointerException.class, () -> new CanvasPickSettings(null));
        }
    }

    @Test
    void peersOfTheSameCanvasShareItsSettings() {
        try (TestRenderer view = new TestRenderer();
                CanvasPickSettings settings = new CanvasPickSettings(view);
                CanvasPickSettings again = new CanvasPickSettings(view)) {
            settings.setPickTarget(Target.LINE);
            assertEquals(Target.LINE, again.getPickTarget());
        }
    }

    @Test
    void anEmptyCollectionHasNoResults() {
        PickedObjectCollection picked = new PickedObjectCollection();
        assertEquals(0, picked.size());
        assertEquals(0, picked.stream().count());
        assertThrows(IndexOutOfBoundsException.class, () -> picked.get(0));
        assertThrows(IndexOutOfBoundsException.class, () -> picked.get(-1));
        picked.close();
        picked.close();
        assertTrue(picked.isClosed());
        NativeException closed = assertThrows(NativeException.class, picked::size);
        assertEquals("The peer is closed.", closed.getDetail());
    }
}
