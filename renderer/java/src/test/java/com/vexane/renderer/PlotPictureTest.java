package com.vexane.renderer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.graphics3d.TextFormat;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.nio.ByteBuffer;
import org.junit.jupiter.api.Test;

/** The road of a plot from Java arrays to pixels. */
class PlotPictureTest {
    private static final int BLUE = 0x0000ffff;
    private static final int RED = 0xff0000ff;
    private static final int WHITE = 0xffffffff;

    /** A square whose values rise from 0 at the left to 1 at the right. */
    private static PostDataObject square() {
        return new PostDataBuilder(PlotKind.SURFACE_2D)
                .role(DataRole.COLOR, 0)
                .addGroup(new PostDataGroup()
                        .coordinates(new double[] {0, 1, 1, 0}, new double[] {0, 0, 1, 1})
                        .elements(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3})
                        .data(new double[] {0, 1, 1, 0}))
                .build();
    }

    /** The pixel as 0xRRGGBBAA, at fractions of the picture from its top left corner. */
    private static int pixelAt(OffscreenRenderer renderer, double x, double y) {
        ByteBuffer image = renderer.image();
        int column = (int) (x * renderer.getWidth());
        int row = (int) (y * renderer.getHeight());
        return image.getInt(4 * (row * renderer.getWidth() + column));
    }

    @Test
    void legendLimitsChangeThePictureAndCostNoUpload() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = square();
                OffscreenRenderer renderer = OffscreenRenderer.create(200, 200, 4)) {
            plot.setColorTable("blue and red", new double[][] {{0, 0, 1}, {1, 0, 0}}, false);
            root.setChild(group);
            group.addPlot(plot);
            plot.fillPlot(record);
            renderer.setScene(scene);
            renderer.setDecoration(false, false, false);

            renderer.draw();
            assertEquals(BLUE, pixelAt(renderer, 0.25, 0.5));
            assertEquals(RED, pixelAt(renderer, 0.75, 0.5));
            assertEquals(WHITE, pixelAt(renderer, 0.01, 0.01));
            OffscreenRenderer.UploadCounts before = renderer.countUploads();
            assertEquals(1, before.meshes());

            // A flat scene is seen from above, whatever the direction, and without light.
            renderer.setViewDirection(77, 12);
            renderer.setLit(false);
            plot.setLegendLimits(0, 8);
            renderer.draw();
            assertEquals(BLUE, pixelAt(renderer, 0.75, 0.5));
            plot.setAutoLegendLimits();
            plot.setValueRestrictions(0.5, 1);
            renderer.draw();
            assertEquals(WHITE, pixelAt(renderer, 0.25, 0.5));
            assertEquals(RED, pixelAt(renderer, 0.75, 0.5));
            // The first restriction counts as a change of geometry.
            assertEquals(2, renderer.countUploads().meshes());
            plot.setValueRestrictions(0, 0.5);
            renderer.draw();
            assertEquals(BLUE, pixelAt(renderer, 0.25, 0.5));
            assertEquals(WHITE, pixelAt(renderer, 0.75, 0.5));
            assertEquals(2, renderer.countUploads().meshes());
            assertEquals(before.colorTables(), renderer.countUploads().colorTables());
        }
    }

    @Test
    void titlesAndLegendsTakeTheirRoomFromThePlot() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = square();
                OffscreenRenderer renderer = OffscreenRenderer.create(300, 300, 1)) {
            plot.setColorTable("red", new double[][] {{1, 0, 0}}, false);
            root.setChild(group);
            group.addPlot(plot);
            plot.fillPlot(record);
            group.setTitle(TextFormat.PLAIN, "A title");
            renderer.setScene(scene);
            renderer.draw();
            int withAll = countRed(renderer);
            renderer.setFont("Serif", 28);
            renderer.draw();
            assertTrue(countRed(renderer) < withAll - 1000, "larger letters leave less room");
            renderer.setFont("default", 14);
            renderer.setDecoration(false, true, true);
            renderer.draw();
            int withLegend = countRed(renderer);
            renderer.setDecoration(false, false, true);
            renderer.draw();
            int alone = countRed(renderer);
            assertTrue(withAll <= withLegend && withLegend < alone, withAll + " " + withLegend + " " + alone);
        }
    }

    private static int countRed(OffscreenRenderer renderer) {
        ByteBuffer image = renderer.image();
        int count = 0;
        while (image.hasRemaining()) {
            count += image.getInt() == RED ? 1 : 0;
        }
        return count;
    }
}
