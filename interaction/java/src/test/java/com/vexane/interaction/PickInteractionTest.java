package com.vexane.interaction;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.Canvas3dSettings.RenderMode;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.CanvasPickSettings.Mask;
import com.vexane.graphics3d.CanvasPickSettings.Target;
import com.vexane.graphics3d.CanvasPickSettings;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.PickedObject.ObjectType;
import com.vexane.graphics3d.PickedObject.PartType;
import com.vexane.graphics3d.PickedObject;
import com.vexane.graphics3d.PickedObjectCollection;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphDrawObjectFace;
import com.vexane.graphics3d.SceneGraphGroup;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.graphics3d.TestRenderer;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.RenderDraw2D;
import com.vexane.producer.SheetGeometry;
import java.util.EnumSet;
import java.util.List;
import java.util.stream.IntStream;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

/** Picks in a flat view of 100 by 100 pixels, in which a unit is a pixel, counted from the lower left corner. */
class PickInteractionTest {
    private static final int HEIGHT = 100;
    private static final double[] X = {20.5, 50.5, 80.5, 20.5, 50.5, 80.5};
    private static final double[] Y = {20.5, 20.5, 20.5, 70.5, 70.5, 70.5};
    /** Lines 0 to 3 are around the left square, 1 and 4 to 6 around the right one. */
    private static final int[][] ENDS = {{0, 1}, {1, 4}, {4, 3}, {3, 0}, {1, 2}, {2, 5}, {5, 4}};

    private TestRenderer view;
    private Scene scene;
    private CanvasPickSettings settings;
    private PickedObjectCollection hits;
    private PickInteraction picking;

    @BeforeEach
    void showTwoSquares() {
        view = new TestRenderer();
        scene = new Scene();
        settings = new CanvasPickSettings(view);
        hits = new PickedObjectCollection();
        picking = PickInteraction.connect(view, HEIGHT);
        GeometryBuilder2D builder = new GeometryBuilder2D().points(X, Y)
                .addSheet(square(0, 1, 4, 3)).addSheet(square(1, 2, 5, 4))
                .sheetToLine(new int[] {0, 1, 2, 3}, new int[] {4, 5, 6, 1});
        for (int[] ends : ENDS) {
            builder.addCurve(at(X, ends), at(Y, ends));
        }
        try (SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup group = new SceneGraphGroup();
                SceneGraphDrawObjectFace face = new SceneGraphDrawObjectFace(7);
                RenderDraw2D record = builder.buildDraw(7, "squares");
                Canvas3dSettings canvas = Canvas3dSettings.connect(view);
                Camera2d camera = Camera2d.connect(canvas)) {
            face.fillObject2D(record);
            group.addChild(face);
            root.setChild(group);
            canvas.setRenderMode(RenderMode.VIEW_2D);
            camera.setViewLimits(0, 100, 0, 100);
        }
        settings.setPickMask(EnumSet.allOf(Mask.class));
    }

    @AfterEach
    void close() {
        picking.close();
        hits.close();
        settings.close();
        scene.close();
        view.close();
    }

    private static double[] at(double[] values, int... indices) {
        return IntStream.of(indices).mapToDouble(i -> values[i]).toArray();
    }

    private static SheetGeometry square(int a, int b, int c, int d) {
        return new SheetGeometry().coordinates(at(X, a, b, c, d), at(Y, a, b, c, d))
                .triangles(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3});
    }

    private List<Integer> parts() {
        return hits.stream().map(PickedObject::partId).toList();
    }

    private List<Integer> linesInPicture() {
        settings.setPickTarget(Target.LINE);
        picking.rectangle(scene, hits, 0, 0, 99, 99);
        return parts();
    }

    @Test
    void clickedPartsAreMarkedAndTheMarksSpreadToWhatBoundsThem() {
        settings.setPickTarget(Target.SHEET);
        assertEquals(1, picking.click(scene, hits, 30, 60));
        assertEquals(new PickedObject(ObjectType.SOLID, 7, PartType.SHEET, 0), hits.get(0));
        assertEquals(1, PickInteraction.mark(scene, hits, MarkingAction.HIDDEN));

        // The line between both squares is hidden with the second one only.
        assertEquals(List.of(1, 4, 5, 6), linesInPicture());
        settings.setPickTarget(Target.SHEET);
        assertEquals(0, picking.click(scene, hits, 30, 60));
        assertEquals(1, picking.drag(scene, hits, 62, 58, 60, 60));
        assertEquals(List.of(1), parts());
        PickInteraction.mark(scene, hits, MarkingAction.HIDDEN);
        assertEquals(List.of(), linesInPicture());

        settings.setPickTarget(Target.OBJECT);
        assertEquals(0, picking.click(scene, hits, 60, 60));
    }

    @Test
    void unmarkingRestoresWhatWasHidden() {
        settings.setPickTarget(Target.SHEET);
        try (PickedObjectCollection hidden = new PickedObjectCollection()) {
            assertEquals(2, picking.rectangle(scene, hidden, 0, 99, 99, 0));
            PickInteraction.mark(scene, hidden, MarkingAction.HIDDEN);
            assertEquals(List.of(), linesInPicture());
            assertEquals(2, PickInteraction.unmark(scene, hidden, MarkingAction.HIDDEN));
        }
        assertEquals(List.of(0, 1, 2, 3, 4, 5, 6), linesInPicture());
    }

    @Test
    void rectanglesCountRowsFromTheTopOfThePicture() {
        settings.setPickTarget(Target.POINT);
        assertEquals(3, picking.drag(scene, hits, 0, 0, 99, 40));
        assertEquals(List.of(3, 4, 5), parts());
        picking.setCanvasHeight(HEIGHT - 40);
        assertEquals(0, picking.drag(scene, hits, 0, 0, 99, 30));
        assertEquals(3, picking.drag(scene, hits, 0, 31, 99, 39));
        assertEquals(List.of(0, 1, 2), parts());
    }

    @Test
    void refusesWhatIsNoViewNoSceneOrNoList() {
        assertThrows(NullPointerException.class, () -> PickInteraction.connect(null, HEIGHT));
        assertThrows(NativeException.class, () -> PickInteraction.connect(scene, HEIGHT));
        assertThrows(IllegalArgumentException.class, () -> PickInteraction.connect(view, 0));
        assertThrows(IllegalArgumentException.class, () -> picking.setCanvasHeight(-5));
        assertThrows(NullPointerException.class, () -> picking.click(null, hits, 1, 1));
        assertThrows(NullPointerException.class, () -> picking.rectangle(scene, null, 0, 0, 1, 1));
        assertThrows(NullPointerException.class, () -> PickInteraction.mark(scene, hits, null));
        settings.setPickTarget(Target.SHEET);
        assertEquals(0, picking.click(scene, hits, Integer.MIN_VALUE, Integer.MAX_VALUE));
        assertEquals(2, picking.drag(scene, hits, Integer.MIN_VALUE, Integer.MAX_VALUE, Integer.MAX_VALUE,
                Integer.MIN_VALUE));
        PickedObjectCollection closed = new PickedObjectCollection();
        closed.close();
        assertThrows(IllegalStateException.class, () -> picking.click(scene, closed, 1, 1));
        assertThrows(IllegalStateException.class, () -> PickInteraction.unmark(scene, closed, MarkingAction.PRIMARY));
        picking.close();
        assertThrows(NativeException.class, () -> picking.click(scene, hits, 1, 1));
    }
}
