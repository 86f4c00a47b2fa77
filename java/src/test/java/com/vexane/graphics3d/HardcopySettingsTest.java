package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import org.junit.jupiter.api.Test;

class HardcopySettingsTest {
    @Test
    void everyReadableValueIsReadBack() {
        try (HardcopySettings settings = new HardcopySettings()) {
            assertEquals("", settings.getFileTitle());
            settings.setFileTitle("Spannung \u03c3");
            settings.setFileCreator("me");
            settings.setDpi(300);
            settings.setMultisampleSetting(4);
            settings.setFontSize(TextItem.AXIS_TICK, 9);
            assertEquals("Spannung \u03c3", settings.getFileTitle());
            assertEquals("me", settings.getFileCreator());
            assertEquals(300, settings.getDpi());
            assertEquals(4, settings.getMultisampleSetting());
            for (TextItem item : TextItem.values()) {
                assertEquals(item == TextItem.AXIS_TICK ? 9 : -1, settings.getFontSize(item));
            }
            settings.setBackground(-1, 0);
            settings.setLogoShown(true);
            settings.setShowPhysicsMarkers(false);
            assertFalse(settings.isUseCurrentBackground());
            settings.setUseCurrentBackground(true);
            assertTrue(settings.isUseCurrentBackground());
            assertFalse(settings.isTitleShown());
            settings.setTitleShown(true);
            assertTrue(settings.isTitleShown());
            assertFalse(settings.isAxisShown());
            settings.setAxisShown(true);
            assertTrue(settings.isAxisShown());
            assertFalse(settings.isLegendsShown());
            settings.setLegendsShown(true);
            assertTrue(settings.isLegendsShown());
            assertFalse(settings.isAxisOrientationShown());
            settings.setAxisOrientationShown(true);
            assertTrue(settings.isAxisOrientationShown());
        }
    }

    @Test
    void resolutionIsThatOfTheScreenAtConstruction() {
        int before = Canvas3dGlobalSettings.getOnScreenResolution();
        Canvas3dGlobalSettings.setOnScreenResolution(96);
        try (HardcopySettings settings = new HardcopySettings()) {
            Canvas3dGlobalSettings.setOnScreenResolution(before);
            assertEquals(96, settings.getDpi());
        }
    }

    @Test
    void badArgumentsAreRefusedAndNothingChanges() {
        try (HardcopySettings settings = new HardcopySettings()) {
            for (int item : new int[] {-1, 7, Integer.MAX_VALUE}) {
                assertThrows(NativeException.class,
                        () -> Natives.call(HardcopySettings.class, "setFontSize", settings, item, 1));
                assertThrows(NativeException.class,
                        () -> Natives.call(HardcopySettings.class, "getFontSize", settings, item));
            }
            assertThrows(NullPointerException.class, () -> settings.setFileTitle(null));
            assertThrows(NullPointerException.class, () -> settings.setFontSize(null, 1));
            assertThrows(NativeException.class,
                    () -> Natives.call(HardcopySettings.class, "setFileTitle", settings, null));
            assertEquals("", settings.getFileTitle());
        }
        HardcopySettings closed = new HardcopySettings();
        closed.close();
        closed.close();
        assertThrows(NativeException.class, closed::getDpi);
        assertThrows(NativeException.class, () -> closed.setDpi(1));
    }
}
