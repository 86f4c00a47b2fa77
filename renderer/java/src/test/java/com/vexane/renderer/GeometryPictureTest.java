package com.vexane.renderer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.MarkingSetups;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphDrawObjectFace;
import com.vexane.graphics3d.SceneGraphGroup;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.RenderDraw2D;
import com.vexane.producer.SheetGeometry;
import java.nio.ByteBuffer;
import org.junit.jupiter.api.Test;

/** The path of geometry from Java arrays to pixels. */
class GeometryPictureTest {
    private static final int WHITE = 0xffffffff;

    private static SheetGeometry square(double left) {
        return new SheetGeometry()
                .coordinates(new double[] {left, left + 1, left + 1, left}, new double[] {0, 0, 1, 1})
                .triangles(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3});
    }

    /** Two squares side by side. */
    private static RenderDraw2D squares() {
        return new GeometryBuilder2D().addSheet(square(0)).addSheet(square(1)).buildDraw(1, "squares");
    }

    private static int pixelAt(OffscreenRenderer renderer, double x) {
        ByteBuffer image = renderer.image();
        int middle = renderer.getHeight() / 2 * renderer.getWidth();
        return image.getInt(4 * (middle + (int) (x * renderer.getWidth())));
    }

    @Test
    void marksAreSeenInTheNextPictureWithoutAnUploadOfGeometry() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup group = new SceneGraphGroup();
                SceneGraphDrawObjectFace face = new SceneGraphDrawObjectFace(1);
                MarkingSetups markings = MarkingSetups.connect();
                OffscreenRenderer renderer = OffscreenRenderer.create(200, 200, 4)) {
            root.setChild(group);
            group.addChild(face);
            try (RenderDraw2D record = squares()) {
                face.fillObject2D(record);
            }
            renderer.setScene(scene);
            try (Canvas3dSettings settings = Canvas3dSettings.connect(renderer)) {
                settings.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
                settings.setRenderMask(OffscreenRenderer.RENDER_OBJECTS | OffscreenRenderer.RENDER_BACKGROUND);
            }
            renderer.zoomExtents();
            renderer.draw();
            assertEquals(0xd9d9d9ff, pixelAt(renderer, 0.25));
            assertEquals(0xd9d9d9ff, pixelAt(renderer, 0.75));
            OffscreenRenderer.UploadCounts before = renderer.countUploads();

            face.markPart(ObjectPartType.SHEET, 0, MarkingAction.PRIMARY);
            face.markPart(ObjectPartType.SHEET, 1, MarkingAction.HIDDEN);
            renderer.draw();
            assertEquals(0xf28c8cff, pixelAt(renderer, 0.25));
            assertEquals(WHITE, pixelAt(renderer, 0.75));
            assertEquals(before.meshes(), renderer.countUploads().meshes());
            assertEquals(before.partTables() + 1, renderer.countUploads().partTables());

            MarkingSetups.Marking former =
                    markings.getMarking(MarkingSetups.Mode.THIRD, MarkingSetups.Row.PRIMARY);
            markings.setMarking(MarkingSetups.Mode.THIRD, MarkingSetups.Row.PRIMARY,
                    new MarkingSetups.Marking(0x00ff00, 0, 1, 0, 5, 0, 0));
            renderer.draw();
            assertEquals(0xf28c8cff, pixelAt(renderer, 0.25));
            renderer.setMarkingMode(MarkingSetups.Mode.THIRD);
            renderer.draw();
            assertEquals(0x00ff00ff, pixelAt(renderer, 0.25));
            assertThrows(NullPointerException.class, () -> renderer.setMarkingMode(null));
            markings.setMarking(MarkingSetups.Mode.THIRD, MarkingSetups.Row.PRIMARY, former);
        }
    }
}
