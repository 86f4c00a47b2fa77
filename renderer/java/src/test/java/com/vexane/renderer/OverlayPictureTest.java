package com.vexane.renderer;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayDrawCurve;
import com.vexane.graphics3d.OverlayLine;
import com.vexane.graphics3d.OverlayRectangle;
import com.vexane.graphics3d.OverlayTransformation;
import com.vexane.graphics3d.PickedObject;
import com.vexane.graphics3d.PickedObject.ObjectType;
import com.vexane.graphics3d.PickedObject.PartType;
import com.vexane.graphics3d.PickedObjectCollection;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.interaction.CurveDrawing;
import com.vexane.interaction.CurveEditing;
import com.vexane.interaction.FrameInteraction;
import com.vexane.interaction.OverlayPicker;
import com.vexane.interaction.RubberBand;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.util.List;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

/** From mouse positions through overlays to pixels, in a flat view whose units are pixels, with y upwards. */
class OverlayPictureTest {
    private static final int SIDE = 200;
    private static final int RED = 0xff0000ff;
    private static final int BLUE = 0x0000ffff;
    private static final int WHITE = 0xffffffff;

    private Scene scene;
    private SceneGraphPlotGroup group;
    private SceneGraphPlotSurface2d plot;
    private Overlay overlay;
    private OffscreenRenderer renderer;

    @BeforeEach
    void open() {
        scene = new Scene();
        group = new SceneGraphPlotGroup();
        plot = new SceneGraphPlotSurface2d(1);
        overlay = new Overlay();
        renderer = OffscreenRenderer.create(SIDE, SIDE, 1);
        group.addPlot(plot);
        try (PostDataObject triangle = new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0)
                .addGroup(new PostDataGroup().coordinates(new double[] {60, 100, 60}, new double[] {60, 60, 120})
                        .elements(new int[] {0}, new int[] {1}, new int[] {2}).data(new double[3]))
                .build()) {
            plot.fillPlot(triangle);
        }
        try (SceneGraphRoot root = SceneGraphRoot.connect(scene);
                Canvas3dSettings settings = Canvas3dSettings.connect(renderer);
                Camera2d camera = Camera2d.connect(settings)) {
            root.setChild(group);
            settings.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
            settings.setRenderMask(OffscreenRenderer.RENDER_BACKGROUND);
            renderer.setScene(scene);
            renderer.setOverlay(overlay);
            camera.resetAxisViewScales();
            renderer.draw();
            // Without axes the view is the whole picture.
            camera.setViewLimits(0, SIDE, 0, SIDE);
        }
    }

    @AfterEach
    void close() {
        group.removeAllPlots();
        renderer.close();
        overlay.close();
        plot.close();
        group.close();
        scene.close();
    }

    private int pixelAt(int x, int y) {
        renderer.draw();
        return renderer.image().getInt(4 * ((SIDE - 1 - y) * SIDE + x));
    }

    private static int row(int y) {
        return SIDE - 1 - y;
    }

    @Test
    void aFrameIsDraggedByItsHandles() {
        try (OverlayTransformation frame = new OverlayTransformation();
                FrameInteraction interaction = FrameInteraction.connect(renderer, frame, SIDE)) {
            frame.setUseColor(true);
            frame.setOutlineColor(0, 0, 255, 255);
            frame.setLineSize(3);
            overlay.addOverlayObject(frame, 1);
            assertEquals(BLUE, pixelAt(100, 80));
            assertArrayEquals(new double[] {100, 120, 0}, frame.getHandlePosition(4), 1e-3);
            assertTrue(interaction.press(100, row(120)));
            assertTrue(interaction.drag(160, row(120)));
            assertEquals(WHITE, pixelAt(100, 80));
            assertEquals(BLUE, pixelAt(160, 80));
            interaction.release();
            assertEquals(2.5f, interaction.getTransformation()[0], 1e-3f);
            assertTrue(interaction.press(110, row(90)));
            assertTrue(interaction.drag(110, row(70)));
            assertTrue(interaction.cancel());
            assertEquals(BLUE, pixelAt(160, 80));
            renderer.setFramedNode(group);
            assertEquals(BLUE, pixelAt(160, 80));
        }
    }

    @Test
    void aCurveIsDrawnAndItsVertexIsDragged() {
        try (OverlayDrawCurve curve = new OverlayDrawCurve();
                CurveDrawing drawing = CurveDrawing.connect(renderer, overlay, curve, SIDE);
                CurveEditing editing = CurveEditing.connect(renderer, curve, SIDE)) {
            curve.setUseColor(true);
            curve.setOutlineColor(255, 0, 0, 255);
            curve.setLineSize(3);
            overlay.addOverlayObject(curve, 5);
            assertTrue(drawing.press(20, row(100)));
            assertTrue(drawing.drag(100, row(100)));
            assertEquals(RED, pixelAt(60, 100));
            assertEquals(0, curve.getNumberOfEdges());
            assertTrue(drawing.press(180, row(100)));
            assertTrue(drawing.finish());
            assertEquals(RED, pixelAt(140, 100));

            assertTrue(editing.press(180, row(100)));
            assertTrue(editing.drag(180, row(20)));
            assertFalse(editing.release());
            assertEquals(1, editing.getVertex());
            assertEquals(-1, editing.getControlPoint());
            assertEquals(WHITE, pixelAt(140, 100));
            assertEquals(RED, pixelAt(100, 60));
            assertThrows(IllegalArgumentException.class, () -> drawing.setDegree(0));
        }
    }

    @Test
    void hitsHaveThePickIdOfTheirObject() {
        try (OverlayDrawCurve curve = new OverlayDrawCurve();
                OverlayLine line = new OverlayLine();
                OverlayPicker picker = OverlayPicker.connect(renderer, overlay, SIDE);
                PickedObjectCollection picked = new PickedObjectCollection()) {
            line.setStart(20, 50);
            line.setEnd(180, 50);
            overlay.addOverlayObject(line, 7);
            int edge = curve.addEdge(curve.addVertex(20, 50), curve.addVertex(100, 150));
            for (double[] point : new double[][] {{20, 50}, {20, 150}, {100, 150}}) {
                curve.addControlPoint(edge, point[0], point[1]);
            }
            overlay.addOverlayObject(curve, 8);
            assertArrayEquals(new double[] {20.5, 30.5}, picker.locate(20, row(30)), 1e-4);
            assertArrayEquals(new int[] {20, row(30)}, picker.pixelOf(20.5, 30.5, 0));
            assertTrue(picker.pick(22, row(51), picked));
            assertTrue(picker.pick(20, row(150), picked));
            assertFalse(picker.pick(20, row(100), picked));
            assertEquals(List.of(
                    new PickedObject(ObjectType.OVERLAY, 8, PartType.POINT, 0),
                    new PickedObject(ObjectType.OVERLAY, 7, PartType.NONE, -1),
                    new PickedObject(ObjectType.OVERLAY, 8, OverlayPicker.CONTROL_POINT, 1)), picked.stream().toList());
        }
    }

    @Test
    void aRubberBandIsDrawnOverThePicture() {
        try (Overlay screen = new Overlay(); OverlayRectangle rectangle = new OverlayRectangle();
                RubberBand band = new RubberBand(screen, rectangle)) {
            rectangle.setUseColor(true);
            rectangle.setFillColor(255, 0, 0, 255);
            rectangle.setFilled(true);
            renderer.setScreenOverlay(screen);
            band.press(0, 0);
            assertTrue(band.drag(40, 20));
            assertEquals(RED, pixelAt(30, row(10)));
            assertArrayEquals(new int[] {0, 0, 40, 20}, band.release());
            assertEquals(WHITE, pixelAt(30, row(10)));
            assertNull(band.release());
            // Closing a band removes it.
            try (RubberBand other = new RubberBand(screen, rectangle)) {
                other.press(0, 0);
                other.drag(50, 50);
                assertEquals(RED, pixelAt(30, row(10)));
            }
            assertEquals(WHITE, pixelAt(30, row(10)));
        }
    }
}
