package com.vexane.renderer;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphBallBox;
import com.vexane.graphics3d.SceneGraphDrawProj;
import com.vexane.graphics3d.SceneGraphFeatureObject;
import com.vexane.graphics3d.SceneGraphObject;
import com.vexane.graphics3d.SceneGraphProbeObject;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.producer.ProjectionBuilder2D;
import com.vexane.producer.RenderDrawProj2D;
import java.util.Arrays;
import java.util.stream.IntStream;
import org.junit.jupiter.api.Test;

/** The path of construction objects from Java arrays to pixels. */
class ConstructionPictureTest {
    private static final int SIZE = 360;
    private static final int WHITE = 0xffffffff;

    /** The pixels that are drawn when an object is all that is looked at, from above. */
    private static int[] picture(SceneGraphObject object) {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                OffscreenRenderer renderer = OffscreenRenderer.create(SIZE, SIZE, 1);
                Canvas3dSettings settings = Canvas3dSettings.connect(renderer)) {
            root.setChild(object);
            renderer.setScene(scene);
            settings.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
            settings.setRenderMask(OffscreenRenderer.RENDER_OBJECTS | OffscreenRenderer.RENDER_BACKGROUND);
            renderer.zoomExtents();
            renderer.draw();
            int[] pixels = new int[SIZE * SIZE];
            renderer.image().asIntBuffer().get(pixels);
            return pixels;
        }
    }

    private static int countDrawn(SceneGraphObject object) {
        return (int) IntStream.of(picture(object)).filter(pixel -> pixel != WHITE).count();
    }

    @Test
    void aWorkPlaneShowsItsGridAndTheLastOperation() {
        try (SceneGraphFeatureObject plane = new SceneGraphFeatureObject()) {
            assertEquals(0, countDrawn(plane));
            plane.setWorkPlane(new float[12]);
            assertEquals(0, countDrawn(plane));
            plane.setWorkPlane(new float[] {0, 0, 0, 1, 0, 0, 0, 1, 0, -1, 1, -1, 1});
            int grid = countDrawn(plane);
            assertTrue(grid > 16 * SIZE && grid < SIZE * SIZE / 2, () -> "pixels: " + grid);
            int[] gridAlone = picture(plane);
            plane.setRevolve(new float[3]);
            assertArrayEquals(gridAlone, picture(plane));
            plane.setRevolve(new float[] {0.3f, 0, 0, 1});
            assertTrue(countDrawn(plane) > grid);
            plane.setExtrude(new float[] {1, 0.5f});
            plane.setExtrude(new float[0]);
            assertFalse(Arrays.equals(gridAlone, picture(plane)));
        }
    }

    @Test
    void projectionsBallsAndProbesAreDrawnUntilTheyAreCleared() {
        double[] x = {0, 1, 1};
        double[] y = {0, 0, 1};
        try (SceneGraphDrawProj projection = new SceneGraphDrawProj(1);
                SceneGraphBallBox ball = new SceneGraphBallBox();
                SceneGraphProbeObject probe = new SceneGraphProbeObject();
                RenderDrawProj2D record = new ProjectionBuilder2D().points(x, y, new int[] {1, 2, 3})
                        .addCurve(ProjectionBuilder2D.PRIMARY, x, y).build(1, "Angle");
                RenderDrawProj2D empty = new ProjectionBuilder2D().build(1, "Nothing")) {
            projection.fillObject(record);
            assertTrue(countDrawn(projection) > SIZE);
            projection.fillObject(empty);
            assertEquals(0, countDrawn(projection));

            ball.setBall(new double[] {5, 5, 5}, 2);
            assertTrue(countDrawn(ball) > SIZE * SIZE / 4);
            ball.setBox(new double[] {3, 3, 0}, new double[] {7, 7, 1});
            ball.clear();
            assertEquals(0, countDrawn(ball));

            probe.setProbe(0, 1, 0);
            probe.setLinePoints(0, 0, 0, 1, 1, 0, 0.5f);
            assertTrue(countDrawn(probe) > SIZE / 2);
            probe.clear();
            assertEquals(0, countDrawn(probe));
        }
    }
}
