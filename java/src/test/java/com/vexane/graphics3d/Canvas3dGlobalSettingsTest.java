package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.Canvas3dGlobalSettings.CameraMouseAction;
import com.vexane.graphics3d.Canvas3dGlobalSettings.RenderQuality;
import com.vexane.graphics3d.Canvas3dGlobalSettings.ZoomToExtentBehaviour;
import java.util.function.BiConsumer;
import java.util.function.Consumer;
import java.util.function.Supplier;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.Test;

class Canvas3dGlobalSettingsTest {
    @AfterEach
    void restoreMouse() {
        Canvas3dGlobalSettings.resetCameraMouseActions();
    }

    /** Sets a value, reads it back, and restores the previous value. */
    private static <T> void roundTrip(Supplier<T> get, Consumer<T> set, T value) {
        T before = get.get();
        set.accept(value);
        assertEquals(value, get.get());
        set.accept(before);
        assertEquals(before, get.get());
    }

    private static Object call(String name, Object... arguments) {
        return Natives.call(Canvas3dGlobalSettings.class, name, arguments);
    }

    @Test
    void everyValueIsReadBack() {
        roundTrip(Canvas3dGlobalSettings::getOnScreenResolution, Canvas3dGlobalSettings::setOnScreenResolution, 96);
        roundTrip(Canvas3dGlobalSettings::isOpenGlDisplayListsUsed,
                Canvas3dGlobalSettings::setUseOpenGlDisplayLists, false);
        roundTrip(Canvas3dGlobalSettings::isPBufferUsedForPicking,
                Canvas3dGlobalSettings::setUsePBufferForPicking, false);
        roundTrip(Canvas3dGlobalSettings::getMultisampleSetting, Canvas3dGlobalSettings::setMultisampleSetting, 4);
        roundTrip(Canvas3dGlobalSettings::getPickingTolerance, Canvas3dGlobalSettings::setPickingTolerance, -7);
        roundTrip(Canvas3dGlobalSettings::getZoomToExtentMargin, Canvas3dGlobalSettings::setZoomToExtentMargin, 0.5f);
        roundTrip(Canvas3dGlobalSettings::getCameraMouseOrbitSpeed,
                Canvas3dGlobalSettings::setCameraMouseOrbitSpeed, 1.5f);
        roundTrip(Canvas3dGlobalSettings::getCameraMouseDollySpeed,
                Canvas3dGlobalSettings::setCameraMouseDollySpeed, 2.5f);
        roundTrip(Canvas3dGlobalSettings::getCameraMouseZoomSpeed,
                Canvas3dGlobalSettings::setCameraMouseZoomSpeed, 3.5f);
        roundTrip(Canvas3dGlobalSettings::getLegendTickPrecision, Canvas3dGlobalSettings::setLegendTickPrecision, 11);
        roundTrip(Canvas3dGlobalSettings::getLegendMinMaxPrecision,
                Canvas3dGlobalSettings::setLegendMinMaxPrecision, 12);
        roundTrip(Canvas3dGlobalSettings::getGridbox2dTickPrecision,
                Canvas3dGlobalSettings::setGridbox2dTickPrecision, 13);
        roundTrip(Canvas3dGlobalSettings::getGridbox3dTickPrecision,
                Canvas3dGlobalSettings::setGridbox3dTickPrecision, 14);
        for (ResizeBehaviour behaviour : ResizeBehaviour.values()) {
            roundTrip(Canvas3dGlobalSettings::getResizeBehaviour,
                    Canvas3dGlobalSettings::setResizeBehaviour, behaviour);
        }
        for (ZoomToExtentBehaviour behaviour : ZoomToExtentBehaviour.values()) {
            roundTrip(Canvas3dGlobalSettings::getZoomToExtentBehaviour,
                    Canvas3dGlobalSettings::setZoomToExtentBehaviour, behaviour);
        }
        for (RenderQuality quality : RenderQuality.values()) {
            roundTrip(Canvas3dGlobalSettings::getOnScreenRenderQuality,
                    Canvas3dGlobalSettings::setOnScreenRenderQuality, quality);
            roundTrip(Canvas3dGlobalSettings::getOffScreenRenderQuality,
                    Canvas3dGlobalSettings::setOffScreenRenderQuality, quality);
        }
    }

    @Test
    void initialValuesAreTheNamedConstants() {
        assertEquals(ResizeBehaviour.FIT, Canvas3dGlobalSettings.getResizeBehaviour());
        assertEquals(ZoomToExtentBehaviour.TIGHT, Canvas3dGlobalSettings.getZoomToExtentBehaviour());
        assertEquals(RenderQuality.NORMAL, Canvas3dGlobalSettings.getOnScreenRenderQuality());
        assertEquals(RenderQuality.BEST, Canvas3dGlobalSettings.getOffScreenRenderQuality());
        for (TextItem item : TextItem.values()) {
            assertEquals("default", Canvas3dGlobalSettings.getFontName(item));
            assertEquals(12, Canvas3dGlobalSettings.getFontSize(item));
        }
    }

    @Test
    void numbersOutsideAnEnumerationBecomeItsFirst() {
        BiConsumer<String, Integer> fallsToZero = (name, before) -> {
            for (int number : new int[] {-1, 6, 100, Integer.MIN_VALUE}) {
                call("nSet" + name, number);
                assertEquals(0, call("nGet" + name), name + " " + number);
            }
            call("nSet" + name, before);
            assertEquals(before, call("nGet" + name));
        };
        fallsToZero.accept("ResizeBehaviour", 2);
        fallsToZero.accept("ZoomToExtentBehaviour", 0);
        fallsToZero.accept("OnScreenRenderQuality", 1);
        fallsToZero.accept("OffScreenRenderQuality", 2);
    }

    @Test
    void everySettableActionIsReadBack() {
        for (CameraMouseAction action : CameraMouseAction.values()) {
            if (action != CameraMouseAction.ORBIT) {
                Canvas3dGlobalSettings.setCameraMouseAction(2, 5, action);
                assertEquals(action, Canvas3dGlobalSettings.getCameraMouseAction(2, 5));
            }
        }
        assertThrows(IllegalArgumentException.class,
                () -> Canvas3dGlobalSettings.setCameraMouseAction(1, 0, CameraMouseAction.ORBIT));
    }

    @Test
    void theNativeReadsBackTheNumberThatItStores() {
        int[] stored = {10, 1, 4, 5, 2, 6, 3, 7, 8, 9, 10, 10};
        for (int action = 0; action < stored.length; ++action) {
            call("nSetCameraMouseAction", 1, 0, action);
            assertEquals(stored[action], call("nGetCameraMouseAction", 1, 0), "action " + action);
        }
    }

    @Test
    void otherButtonsAreIgnoredAndMasksFolded() {
        Canvas3dGlobalSettings.setCameraMouseAction(0, 0, CameraMouseAction.ZOOM);
        Canvas3dGlobalSettings.setCameraMouseAction(4, 0, CameraMouseAction.ZOOM);
        Canvas3dGlobalSettings.setCameraMouseAction(Integer.MIN_VALUE, 0, CameraMouseAction.ZOOM);
        for (int button = 0; button <= 4; ++button) {
            assertEquals(CameraMouseAction.NONE, Canvas3dGlobalSettings.getCameraMouseAction(button, 0));
        }
        Canvas3dGlobalSettings.setCameraMouseAction(1, 8, CameraMouseAction.PAN);
        assertEquals(CameraMouseAction.PAN, Canvas3dGlobalSettings.getCameraMouseAction(1, 0));
        Canvas3dGlobalSettings.setCameraMouseAction(3, -1, CameraMouseAction.ROLL);
        assertEquals(CameraMouseAction.ROLL, Canvas3dGlobalSettings.getCameraMouseAction(3, 7));
    }

    @Test
    void defaultActionsTurnWithTheFirstButton() {
        Canvas3dGlobalSettings.setDefaultCameraMouseActions();
        assertEquals(CameraMouseAction.ORBIT, Canvas3dGlobalSettings.getCameraMouseAction(1, 0));
        assertEquals(CameraMouseAction.ZOOM, Canvas3dGlobalSettings.getCameraMouseAction(2, 0));
        assertEquals(CameraMouseAction.PAN, Canvas3dGlobalSettings.getCameraMouseAction(3, 0));
    }

    @Test
    void antialiasingNeedsARendererThatOffersIt() {
        // A renderer used by an earlier test has registered itself.
        TestRenderer.Info.withdraw();
        Canvas3dGlobalSettings.setAntiAliasing(true);
        assertFalse(Canvas3dGlobalSettings.isAntiAliasing());
        try (TestRenderer.Info info = new TestRenderer.Info()) {
            info.announce();
            Canvas3dGlobalSettings.setAntiAliasing(true);
            assertTrue(Canvas3dGlobalSettings.isAntiAliasing());
            assertEquals(8, Canvas3dGlobalSettings.getMultisampleSetting());
        } finally {
            TestRenderer.Info.withdraw();
        }
        Canvas3dGlobalSettings.setAntiAliasing(false);
        assertEquals(0, Canvas3dGlobalSettings.getMultisampleSetting());
    }

    @Test
    void fontsAreSetByKindOfText() {
        Canvas3dGlobalSettings.setFont(TextItem.TITLE, "S\u00e9rif \ud83d\udd8b", 14);
        try {
            assertEquals("S\u00e9rif \ud83d\udd8b", Canvas3dGlobalSettings.getFontName(TextItem.TITLE));
            assertEquals(14, Canvas3dGlobalSettings.getFontSize(TextItem.TITLE));
            assertEquals("default", Canvas3dGlobalSettings.getFontName(TextItem.LEGEND_TICK));
        } finally {
            Canvas3dGlobalSettings.setFont(TextItem.TITLE, "default", 12);
        }
        assertThrows(NullPointerException.class, () -> Canvas3dGlobalSettings.setFont(TextItem.TITLE, null, 12));
        assertThrows(NullPointerException.class, () -> Canvas3dGlobalSettings.setFont(null, "default", 12));
    }

    @Test
    void missingTextItemsAreInternalErrors() {
        for (int item : new int[] {-1, 7, Integer.MAX_VALUE}) {
            NativeException e = assertThrows(NativeException.class, () -> call("nGetFontName", item));
            assertEquals("There is no text item " + item + ".", e.getDetail());
            assertThrows(NativeException.class, () -> call("nGetFontSize", item));
            assertThrows(NativeException.class, () -> call("nSetFont", item, "Serif", 9));
        }
        assertThrows(NativeException.class, () -> call("nSetFont", 0, null, 9));
        assertEquals(12, Canvas3dGlobalSettings.getFontSize(TextItem.LABEL));
    }
}
