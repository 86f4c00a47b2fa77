package com.vexane.renderer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.graphics3d.SceneSettings;
import com.vexane.graphics3d.TextFormat;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.nio.ByteBuffer;
import java.util.Arrays;
import org.junit.jupiter.api.Test;

/** The path of a plot from Java arrays to pixels. */
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

    /** A scene with that square, and a renderer that shows it. */
    private static final class SquareScene implements AutoCloseable {
        final Scene scene = new Scene();
        final SceneGraphPlotGroup group = new SceneGraphPlotGroup();
        final SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
        final OffscreenRenderer renderer;

        SquareScene(int side, int samples, String colorTable, double[]... colors) {
            renderer = OffscreenRenderer.create(side, side, samples);
            plot.setColorTable(colorTable, colors, false);
            group.addPlot(plot);
            try (SceneGraphRoot root = SceneGraphRoot.connect(scene); PostDataObject record = square()) {
                root.setChild(group);
                plot.fillPlot(record);
            }
            renderer.setScene(scene);
        }

        @Override
        public void close() {
            renderer.close();
            plot.close();
            group.close();
            scene.close();
        }
    }

    /** The pixel as 0xRRGGBBAA, at fractions of the picture from its top left corner. */
    private static int pixelAt(OffscreenRenderer renderer, double x, double y) {
        ByteBuffer image = renderer.image();
        int column = (int) (x * renderer.getWidth());
        int row = (int) (y * renderer.getHeight());
        return image.getInt(4 * (row * renderer.getWidth() + column));
    }

    /** Looks at the whole scene from above and draws the kinds of item of a render mask. */
    private static void showFlat(OffscreenRenderer renderer, int mask) {
        try (Canvas3dSettings settings = Canvas3dSettings.connect(renderer)) {
            settings.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
            settings.setRenderMask(mask);
        }
        renderer.zoomExtents();
    }

    @Test
    void legendLimitsChangeThePictureAndCostNoUpload() {
        try (SquareScene square = new SquareScene(200, 4, "blue and red", new double[][] {{0, 0, 1}, {1, 0, 0}})) {
            SceneGraphPlotSurface2d plot = square.plot;
            OffscreenRenderer renderer = square.renderer;
            showFlat(renderer, OffscreenRenderer.RENDER_PLOTS | OffscreenRenderer.RENDER_BACKGROUND);

            renderer.draw();
            assertEquals(BLUE, pixelAt(renderer, 0.25, 0.5));
            assertEquals(RED, pixelAt(renderer, 0.75, 0.5));
            assertEquals(WHITE, pixelAt(renderer, 0.01, 0.01));
            OffscreenRenderer.UploadCounts before = renderer.countUploads();
            assertEquals(1, before.meshes());

            plot.setLegendLimits(0, 8);
            renderer.draw();
            assertEquals(BLUE, pixelAt(renderer, 0.75, 0.5));
            plot.setAutoLegendLimits();
            plot.setValueRestrictions(0.5, 1);
            renderer.draw();
            assertEquals(WHITE, pixelAt(renderer, 0.25, 0.5));
            assertEquals(RED, pixelAt(renderer, 0.75, 0.5));
            // The first restriction counts as a change of geometry, but the buffers are the same.
            assertEquals(before, renderer.countUploads());
            plot.setValueRestrictions(0, 0.5);
            renderer.draw();
            assertEquals(BLUE, pixelAt(renderer, 0.25, 0.5));
            assertEquals(WHITE, pixelAt(renderer, 0.75, 0.5));
            assertEquals(before, renderer.countUploads());
        }
    }

    @Test
    void aDraftDiffersFromTheFullPictureInEdgesOnly() {
        try (SquareScene square = new SquareScene(200, 4, "red", new double[] {1, 0, 0})) {
            OffscreenRenderer renderer = square.renderer;
            renderer.viewFrom(20, 40);
            renderer.drawDraft();
            int red = pixelAt(renderer, 0.5, 0.5);
            byte[] draft = bytes(renderer);
            renderer.draw();
            assertEquals(red, pixelAt(renderer, 0.5, 0.5));
            byte[] full = bytes(renderer);
            int others = 0;
            for (int i = 0; i < full.length; i += 4) {
                others += Arrays.equals(full, i, i + 4, draft, i, i + 4) ? 0 : 1;
            }
            assertTrue(others > 50 && others < 4000, others + " pixels differ");
            assertEquals(4, renderer.getSamples());
        }
    }

    private static byte[] bytes(OffscreenRenderer renderer) {
        ByteBuffer image = renderer.image();
        byte[] bytes = new byte[image.remaining()];
        image.get(bytes);
        return bytes;
    }

    @Test
    void titlesAndLegendsTakeTheirSpaceFromThePlot() {
        try (SquareScene square = new SquareScene(300, 1, "red", new double[] {1, 0, 0})) {
            OffscreenRenderer renderer = square.renderer;
            square.group.setTitle(TextFormat.PLAIN, "A title");
            int bare = OffscreenRenderer.RENDER_PLOTS | OffscreenRenderer.RENDER_BACKGROUND;
            int withLegends = bare | OffscreenRenderer.RENDER_LEGENDS;
            int withAll = countRed(renderer, withLegends | OffscreenRenderer.RENDER_TITLE);
            try (SceneSettings settings = SceneSettings.connect(renderer)) {
                settings.setFont(SceneSettings.Text.TITLE, "Serif", 40);
                int withLargeTitle = countRed(renderer, withLegends | OffscreenRenderer.RENDER_TITLE);
                assertTrue(withLargeTitle < withAll, "a larger title leaves less space");
            }
            int withLegend = countRed(renderer, withLegends);
            int alone = countRed(renderer, bare);
            assertTrue(withAll <= withLegend && withLegend < alone, withAll + " " + withLegend + " " + alone);
        }
    }

    private static int countRed(OffscreenRenderer renderer, int mask) {
        showFlat(renderer, mask);
        renderer.draw();
        ByteBuffer image = renderer.image();
        int count = 0;
        while (image.hasRemaining()) {
            count += image.getInt() == RED ? 1 : 0;
        }
        return count;
    }
}
