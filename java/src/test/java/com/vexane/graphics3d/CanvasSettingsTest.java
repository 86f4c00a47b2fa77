package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.AxisSetup.AxisType;
import com.vexane.graphics3d.AxisSetup.LegendLayoutStrategy;
import com.vexane.graphics3d.AxisSetup.LegendPosition;
import com.vexane.graphics3d.Canvas3dSettings.HorizontalPosition;
import com.vexane.graphics3d.Canvas3dSettings.MouseMode;
import com.vexane.graphics3d.Canvas3dSettings.RenderMode;
import com.vexane.graphics3d.Canvas3dSettings.Text;
import com.vexane.graphics3d.Canvas3dSettings.VerticalPosition;
import java.io.IOException;
import java.util.List;
import org.junit.jupiter.api.Test;

class CanvasSettingsTest {
    @Test
    void everyValueIsReadBack() {
        try (Canvas3dSettings settings = new Canvas3dSettings()) {
            assertEquals(RenderMode.VIEW_3D, settings.getRenderMode());
            assertEquals(MouseMode.DEFAULT, settings.getMouseMode());
            assertTrue(settings.getSnap());
            assertFalse(settings.isAxisOrientationIndicatorShown());
            settings.setRenderMode(RenderMode.VIEW_2D);
            settings.setMouseMode(MouseMode.RENDERER_6);
            settings.setSnap(false);
            settings.setShowAxisOrientationIndicator(true);
            settings.setAxisOrientationIndicator(20, "r", 0x010203, "phi", 0x040506, "z", 0x070809);
            assertEquals(RenderMode.VIEW_2D, settings.getRenderMode());
            assertEquals(MouseMode.RENDERER_6, settings.getMouseMode());
            assertFalse(settings.getSnap());
            assertTrue(settings.isAxisOrientationIndicatorShown());
            for (Text text : Text.values()) {
                settings.setFont(text, "font " + text, 30 + text.number());
            }
            for (Text text : Text.values()) {
                assertEquals("font " + text, settings.getFontName(text));
                assertEquals(30 + text.number(), settings.getFontSize(text));
            }
        }
    }

    @Test
    void theRenderMaskHasTheBitsThatJavaKnows() {
        int all = 0x021fffff;
        try (Canvas3dSettings settings = new Canvas3dSettings()) {
            assertEquals(all, settings.getRenderMask(), "at the start");
            settings.setRenderMask(-1);
            assertEquals(all, settings.getRenderMask());
            settings.removeRenderMask(-1);
            assertEquals(0, settings.getRenderMask());
            settings.addRenderMask(0x7fffffff & ~1);
            assertEquals(all & ~1, settings.getRenderMask());
        }
    }

    @Test
    void eachModeHasItsOwnBackground() {
        try (Canvas3dSettings settings = new Canvas3dSettings()) {
            for (RenderMode mode : RenderMode.values()) {
                assertFalse(settings.isBackgroundShaded(mode));
                assertEquals(0, settings.getTopBackgroundColor(mode));
                assertEquals(0, settings.getBottomBackgroundColor(mode));
            }
            settings.setShadedBackground(RenderMode.VIEW_2D, 0xff112233, 0x445566);
            assertTrue(settings.isBackgroundShaded(RenderMode.VIEW_2D));
            assertEquals(0x112233, settings.getTopBackgroundColor(RenderMode.VIEW_2D));
            assertEquals(0x445566, settings.getBottomBackgroundColor(RenderMode.VIEW_2D));
            assertFalse(settings.isBackgroundShaded(RenderMode.VIEW_3D));
            settings.setBackgroundColor(RenderMode.VIEW_3D, 0x778899);
            assertEquals(0x778899, settings.getBottomBackgroundColor(RenderMode.VIEW_3D));
            settings.setShadedBackground(RenderMode.VIEW_2D, 0x112233, 0xff112233);
            assertFalse(settings.isBackgroundShaded(RenderMode.VIEW_2D), "equal colours");
            Natives.call(Canvas3dSettings.class, "setBackgroundColor", settings, 7, 0x123456);
            assertEquals(0x123456, settings.getTopBackgroundColor(RenderMode.VIEW_3D), "any other mode is the 3D one");
        }
    }

    @Test
    void aBackgroundKeepsItsImageWhenThePeerIsClosed() {
        try (Canvas3dSettings settings = new Canvas3dSettings()) {
            CanvasBackgroundImage image = new CanvasBackgroundImage();
            image.setImage(new int[] {1, 2, 3, 4, 5, 6}, 3, 2, 1.0f);
            settings.setBackgroundImage(
                    RenderMode.VIEW_3D, image, HorizontalPosition.RIGHT, VerticalPosition.TOP);
            image.close();
            settings.setBackgroundImage(RenderMode.VIEW_3D, null, HorizontalPosition.LEFT, VerticalPosition.TOP);
            assertThrows(IllegalStateException.class, () -> settings.setBackgroundImage(
                    RenderMode.VIEW_3D, image, HorizontalPosition.LEFT, VerticalPosition.TOP));
            assertThrows(NativeException.class,
                    () -> Natives.call(Canvas3dSettings.class, "setBackgroundImage", settings, 0, image, 1, 1));
        }
    }

    @Test
    void aPictureOfAnotherSizeThanItsPixelsIsRefused() {
        try (CanvasBackgroundImage image = new CanvasBackgroundImage()) {
            image.resetImage();
            image.setImage(new int[6], 3, 2, 1.0f);
            assertThrows(IllegalArgumentException.class, () -> image.setImage(new int[5], 3, 2, 1.0f));
            assertThrows(NullPointerException.class, () -> image.setImage(null, 3, 2, 1.0f));
            int[][] sizes = {{3, 1}, {-3, -2}, {-1, 6}, {65536, 65536}, {Integer.MAX_VALUE, Integer.MAX_VALUE}};
            for (int[] size : sizes) {
                assertEquals(-1, Natives.call(CanvasBackgroundImage.class, "setImage", image, new int[6], size[0],
                        size[1], 1.0f));
            }
            assertEquals(-1, Natives.call(CanvasBackgroundImage.class, "setImage", image, new int[0], 65536, 65536,
                    1.0f), "the product does not wrap");
            assertThrows(NativeException.class,
                    () -> Natives.call(CanvasBackgroundImage.class, "setImage", image, null, 1, 1, 1.0f));
            image.setImage(new int[0], 0, 0, 1.0f);
            // No pixels, and sides that would take gigabytes.
            image.setImage(new int[0], 0, Integer.MAX_VALUE, 1.0f);
            image.setImage(new int[0], Integer.MAX_VALUE, 0, 1.0f);
            image.resetImage();
            image.resetImage();
        }
    }

    @Test
    void numbersOutOfRangeAreReportedAndCountAsZero() throws IOException {
        try (Canvas3dSettings settings = new Canvas3dSettings();
                AxisSetup axes = AxisSetup.connect(settings)) {
            assertEquals(
                    List.of("Unknown mousemode.", "Unknown mousemode.", "Unknown mousemode.",
                            "Unknown horizontal position.", "Unknown vertical position.",
                            "Unknown legend layout strategy."),
                    CapturedLog.messagesOf(ErrorLog.Level.ERROR, () -> {
                        for (int mode : new int[] {-1, 7, Integer.MIN_VALUE}) {
                            settings.setMouseMode(MouseMode.RENDERER_3);
                            Natives.call(Canvas3dSettings.class, "setMouseMode", settings, mode);
                            assertEquals(MouseMode.RENDERER_0, settings.getMouseMode());
                        }
                        Natives.call(Canvas3dSettings.class, "setBackgroundImage", settings, 0, null, 3, 2);
                        Natives.call(Canvas3dSettings.class, "setBackgroundImage", settings, 0, null, 0, -1);
                        Natives.call(AxisSetup.class, "setLegendLayoutStrategy", axes, 6);
                        assertEquals(LegendLayoutStrategy.RENDERER_0, axes.getLegendLayoutStrategy());
                    }));
        }
    }

    @Test
    void aCopyIsIndependent() {
        try (Canvas3dSettings source = new Canvas3dSettings();
                Camera2d camera = Camera2d.connect(source);
                AxisSetup axes = AxisSetup.connect(source);
                GridBoxSettings grid = GridBoxSettings.connect(source)) {
            camera.setPreserveAspectRatio(false);
            axes.setXSpacing(0.5);
            grid.setGridColor(0x123456);
            source.setMouseMode(MouseMode.RENDERER_4);
            try (Canvas3dSettings copy = Canvas3dSettings.copyOf(source);
                    Camera2d copiedCamera = Camera2d.connect(copy);
                    AxisSetup copiedAxes = AxisSetup.connect(copy);
                    GridBoxSettings copiedGrid = GridBoxSettings.connect(copy)) {
                assertEquals(MouseMode.RENDERER_4, copy.getMouseMode());
                assertFalse(copiedCamera.isPreserveAspectRatio());
                assertEquals(0.5, copiedAxes.getXAxisSpacing());
                assertEquals(0x123456, copiedGrid.getGridColor());
                copiedCamera.setPreserveAspectRatio(true);
                copiedAxes.setXSpacing(2);
                copiedGrid.setGridColor(0);
                assertFalse(camera.isPreserveAspectRatio());
                assertEquals(0.5, axes.getXAxisSpacing());
                assertEquals(0x123456, grid.getGridColor());
            }
        }
        Canvas3dSettings closed = new Canvas3dSettings();
        closed.close();
        assertThrows(IllegalStateException.class, () -> Canvas3dSettings.copyOf(closed));
        assertThrows(IllegalStateException.class, () -> Camera3d.connect(closed));
        assertThrows(NullPointerException.class, () -> Canvas3dSettings.copyOf(null));
        assertThrows(NativeException.class, closed::getMouseMode);
    }

    @Test
    void peersOfTheSameCanvasShareItsPartsAndOutliveIt() {
        Camera3d camera;
        AxisSetup axes;
        GridBoxSettings grid;
        try (TestRenderer view = new TestRenderer();
                Canvas3dSettings settings = Canvas3dSettings.connect(view);
                Canvas3dSettings again = Canvas3dSettings.connect(view)) {
            settings.setMouseMode(MouseMode.RENDERER_5);
            assertEquals(MouseMode.RENDERER_5, again.getMouseMode());
            camera = Camera3d.connect(settings);
            axes = AxisSetup.connect(settings);
            grid = GridBoxSettings.connect(settings);
            camera.setFieldOfView(30);
            try (Camera3d second = Camera3d.connect(again)) {
                assertEquals(camera.getFieldOfView(), second.getFieldOfView());
            }
            view.setRenderMode(2);
            assertThrows(IllegalStateException.class, settings::getRenderMode);
        }
        camera.setPosition(1, 2, 3, 0, 1, 0, 0, 0, 1);
        assertEquals(2, camera.getPositionY());
        axes.setExtraX(1, 2);
        assertArrayEquals(new double[] {1, 2}, axes.getExtraX());
        assertTrue(grid.isGridShown());
        camera.close();
        axes.close();
        grid.close();
        try (PickedObjectCollection other = new PickedObjectCollection()) {
            NativeException refused = assertThrows(NativeException.class, () -> Canvas3dSettings.connect(other));
            assertEquals("Argument \"renderer\": expected class IRendererCanvas, found class PickedObjectCollection.",
                    refused.getDetail());
            assertThrows(NativeException.class,
                    () -> Natives.call(Canvas3dSettings.class, "cloneNative", null, null));
        }
    }

    @Test
    void gridBoxSettingsAreReadBack() {
        try (Canvas3dSettings settings = new Canvas3dSettings();
                GridBoxSettings grid = GridBoxSettings.connect(settings)) {
            assertTrue(grid.isGridShown());
            assertEquals(0x808080, grid.getGridColor());
            assertEquals(0, grid.getLabelColor());
            grid.setShowGrid(false);
            grid.setGridColor(0xff010203);
            grid.setLabelColor(0x040506);
            assertFalse(grid.isGridShown());
            assertEquals(0x010203, grid.getGridColor());
            assertEquals(0x040506, grid.getLabelColor());
        }
    }

    @Test
    void axisSetupIsReadBack() {
        try (Canvas3dSettings settings = new Canvas3dSettings();
                AxisSetup axes = AxisSetup.connect(settings)) {
            assertEquals(LegendLayoutStrategy.DEFAULT, axes.getLegendLayoutStrategy());
            assertArrayEquals(new double[0], axes.getExtraY());
            for (AxisType type : AxisType.values()) {
                axes.setAxisType(type);
                assertEquals(type == AxisType.POLAR, axes.isPolar(), type.name());
                assertEquals(type == AxisType.GRAPH, axes.isGraph(), type.name());
            }
            axes.setXAxisLog(true);
            assertTrue(axes.getXAxisLog() && !axes.getYAxisLog());
            axes.setYAxisLog(true);
            assertTrue(axes.getYAxisLog());
            axes.setAutoSpacing(false);
            axes.setXSpacing(0.1);
            axes.setYSpacing(0.2);
            assertEquals(0.1, axes.getXAxisSpacing());
            assertEquals(0.2, axes.getYAxisSpacing());
            axes.setExtraX(1, 2, 3);
            axes.setExtraY(4);
            assertArrayEquals(new double[] {1, 2, 3}, axes.getExtraX());
            assertArrayEquals(new double[] {4}, axes.getExtraY());
            axes.setLegendPosition(LegendPosition.RENDERER_3);
            for (LegendLayoutStrategy strategy : LegendLayoutStrategy.values()) {
                axes.setLegendLayoutStrategy(strategy);
                assertEquals(strategy, axes.getLegendLayoutStrategy());
            }
            axes.setXAxisTitle("x {m}");
            axes.setYAxisTitle("");
            axes.setSymmetryAxis("r");
            assertThrows(NullPointerException.class, () -> axes.setExtraX((double[]) null));
            assertThrows(NullPointerException.class, () -> axes.setXAxisTitle(null));
            assertThrows(NativeException.class, () -> Natives.call(AxisSetup.class, "setExtraX", axes, null));
            assertThrows(NativeException.class, () -> Natives.call(AxisSetup.class, "setSymmetryAxis", axes, 1, null));
            assertArrayEquals(new double[] {1, 2, 3}, axes.getExtraX());
        }
    }

    @Test
    void missingItemsAreRefused() {
        try (Canvas3dSettings settings = new Canvas3dSettings()) {
            int before = settings.getFontSize(Text.AXIS_TITLE);
            for (int item : new int[] {-1, 5, 6, Integer.MAX_VALUE, Integer.MIN_VALUE}) {
                assertThrows(NativeException.class,
                        () -> Natives.call(Canvas3dSettings.class, "setFont", settings, item, "f", 1));
                assertThrows(NativeException.class,
                        () -> Natives.call(Canvas3dSettings.class, "getFontName", settings, item));
                assertThrows(NativeException.class,
                        () -> Natives.call(Canvas3dSettings.class, "getFontSize", settings, item));
            }
            assertThrows(NullPointerException.class, () -> settings.setFont(Text.AXIS_TITLE, null, 1));
            assertThrows(NativeException.class,
                    () -> Natives.call(Canvas3dSettings.class, "setFont", settings, 0, null, 1));
            assertEquals(before, settings.getFontSize(Text.AXIS_TITLE));
            assertThrows(NullPointerException.class,
                    () -> settings.setAxisOrientationIndicator(1, "x", 0, null, 0, "z", 0));
            assertThrows(NativeException.class, () -> Natives.call(Canvas3dSettings.class,
                    "setAxisOrientationIndicator", settings, 1.0f, "x", 0, null, 0, "z", 0));
        }
    }

    @Test
    void settingsOfASceneAreReadBackAndReportedToTheRenderer() {
        try (TestRenderer view = new TestRenderer();
                Scene scene = new Scene()) {
            assertThrows(NativeException.class, () -> SceneSettings.connect(view), "the view shows no scene");
            view.show(scene);
            try (SceneSettings settings = SceneSettings.connect(view)) {
                assertTrue(settings.isLegendsShown() && settings.isMinMaxShown() && settings.isTitleShown());
                assertFalse(settings.isLabelsShown() || settings.isPhysicsMarkersShown()
                        || settings.isLineDirectionsShown());
                assertEquals(1.0f, settings.getGlobalOpacity());
                assertTrue(settings.isGlobalOpaque());
                assertEquals(0, view.getChangedFlags());
                settings.setShowLegends(false);
                settings.setShowMinMax(false);
                assertEquals(0x08, view.getChangedFlags());
                settings.setShowTitle(false);
                settings.setShowLabels(true);
                settings.setShowPhysicsMarkers(true);
                settings.setShowLineDirections(true);
                settings.setGlobalOpacity(0.99f);
                assertEquals(0xf8, view.getChangedFlags());
                assertFalse(settings.isLegendsShown() || settings.isMinMaxShown() || settings.isTitleShown());
                assertTrue(settings.isLabelsShown() && settings.isPhysicsMarkersShown()
                        && settings.isLineDirectionsShown());
                assertFalse(settings.isGlobalOpaque());
                settings.setFont(SceneSettings.Text.TITLE, "title", 50);
                assertEquals("title", settings.getFontName(SceneSettings.Text.TITLE));
                assertNotEquals(50, settings.getFontSize(SceneSettings.Text.LABEL));
                for (int item : new int[] {-1, 2, Integer.MAX_VALUE}) {
                    assertThrows(NativeException.class,
                            () -> Natives.call(SceneSettings.class, "getFontSize", settings, item));
                }
            }
        }
    }

    @Test
    void lightSwitchesAreReadBack() {
        try (TestRenderer view = new TestRenderer();
                Scene scene = new Scene()) {
            view.show(scene);
            try (SceneSettings settings = SceneSettings.connect(view);
                    SceneSettingsLight light = SceneSettingsLight.connect(settings)) {
                assertTrue(light.isLightUsed() && light.isGlobalAmbientLight() && light.isAmbientLight()
                        && light.isDiffuseLight() && light.isSpecularLight());
                light.setUseLight(false);
                light.setAmbientLight(false);
                light.setSpecularLight(false);
                light.setRenderLightMarkers(true);
                assertTrue(light.isGlobalAmbientLight() && light.isDiffuseLight());
                assertFalse(light.isLightUsed() || light.isAmbientLight() || light.isSpecularLight());
                light.setGlobalAmbientLight(false);
                assertTrue(!light.isGlobalAmbientLight() && light.isDiffuseLight());
                light.setDiffuseLight(false);
                assertFalse(light.isDiffuseLight());
            }
        }
    }

    @Test
    void settingsOfASceneOutliveTheViewAndTheScene() {
        TestRenderer view = new TestRenderer();
        Scene scene = new Scene();
        view.show(scene);
        SceneSettings settings = SceneSettings.connect(view);
        SceneSettingsLight light = SceneSettingsLight.connect(settings);
        view.show(null);
        settings.setShowTitle(false);
        assertThrows(NativeException.class, () -> SceneSettings.connect(view), "the view shows nothing now");
        view.show(scene);
        try (SceneSettings fresh = SceneSettings.connect(view)) {
            assertTrue(fresh.isTitleShown(), "settings of their own");
        }
        scene.close();
        view.close();
        assertFalse(settings.isTitleShown());
        settings.close();
        light.setUseLight(false);
        assertFalse(light.isLightUsed());
        light.close();
        assertThrows(IllegalStateException.class, () -> SceneSettings.connect(view));
        assertThrows(IllegalStateException.class, () -> SceneSettingsLight.connect(settings));
        assertThrows(NativeException.class, settings::isTitleShown);
    }
}
