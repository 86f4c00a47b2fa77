package com.vexane.gallery;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.graphics3d.Canvas3dGlobalSettings;
import java.awt.Rectangle;
import java.awt.image.BufferedImage;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.function.IntPredicate;
import java.util.stream.IntStream;
import javax.imageio.ImageIO;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class CommonTasksTest {
    @TempDir static Path folder;

    @BeforeAll
    static void doAllTasks() throws Exception {
        int before = Canvas3dGlobalSettings.getOnScreenResolution();
        Canvas3dGlobalSettings.setOnScreenResolution(72); // the initial value; the gallery sets another one
        try {
            CommonTasks.main(new String[] {folder.toString()});
        } finally {
            Canvas3dGlobalSettings.setOnScreenResolution(before);
        }
    }

    private static BufferedImage picture(String name) throws IOException {
        return ImageIO.read(folder.resolve(name).toFile());
    }

    private static boolean isColored(BufferedImage image, int x, int y) {
        int c = image.getRGB(x, y);
        int[] channels = {c >> 16 & 0xff, c >> 8 & 0xff, c & 0xff};
        return IntStream.of(channels).max().getAsInt() - IntStream.of(channels).min().getAsInt() > 25;
    }

    /** The pixels left of the legend that show data, and the rectangle around them. */
    private record Data(long count, Rectangle box) {
        static Data of(BufferedImage image) {
            int endOfData = image.getWidth() * 9 / 10;
            long count = 0;
            Rectangle box = new Rectangle(-1, -1);
            for (int y = 0; y < image.getHeight(); ++y) {
                for (int x = 0; x < endOfData; ++x) {
                    if (isColored(image, x, y)) {
                        ++count;
                        box.add(new Rectangle(x, y, 1, 1));
                    }
                }
            }
            return new Data(count, box);
        }
    }

    @Test
    void aFlatViewKeepsShapesAndAFilledFrameShowsTheDataAlone() throws IOException {
        Rectangle flat = Data.of(picture("flat.png")).box();
        assertEquals(2.0, flat.getWidth() / flat.getHeight(), 0.02);
        for (String name : List.of("filled.png", "logarithmic.png")) {
            Rectangle filled = Data.of(picture(name)).box();
            assertTrue(filled.width > 600, name + ": " + filled);
            // From the upper border of the frame to the lower one, whose lines are black.
            assertEquals(402, filled.height, 2, name + ": " + filled);
        }
    }

    @Test
    void theViewInSpaceIsNotEmptyAndTheFlatOneComesBackAsItWas() throws IOException {
        assertEquals(0, GalleryTest.countChanges(folder.resolve("flat.png"), folder.resolve("flat-again.png")));
        assertTrue(Data.of(picture("space.png")).count() > 20000);
    }

    @Test
    void hidesExactlyTheValuesBelowTheLimit() throws IOException {
        int shown = 0;
        for (int i = 0; i < 1200 * 600; ++i) {
            shown += Math.cos(Math.hypot((i % 1200 - 599.5) * 0.01, (i / 1200 - 299.5) * 0.01)) > 0 ? 1 : 0;
        }
        double whole = Data.of(picture("flat.png")).count();
        assertEquals(shown / (1200 * 600.0), Data.of(picture("hidden.png")).count() / whole, 0.01);
    }

    @Test
    void aNameKeepsItsFirstColorsAndAnotherNameGetsItsOwn() throws IOException {
        assertEquals(0, GalleryTest.countChanges(folder.resolve("flat.png"), folder.resolve("same-name.png")));
        int[] middles = new int[2];
        for (int i = 0; i < 2; ++i) {
            BufferedImage image = picture(i == 0 ? "colors.png" : "bands.png");
            Rectangle box = Data.of(image).box();
            middles[i] = image.getRGB((int) box.getCenterX() + 3, (int) box.getCenterY() + 3) & 0xffffff;
        }
        assertEquals(0xcc331a, middles[1]);
        assertTrue(middles[0] >> 16 >= 0xcb, Integer.toHexString(middles[0]));
    }

    private static long count(BufferedImage image, IntPredicate isCounted) {
        int width = image.getWidth();
        return IntStream.range(0, width * image.getHeight())
                .filter(i -> isCounted.test(image.getRGB(i % width, i / width) & 0xffffff)).count();
    }

    @Test
    void theLegendChangesAndDisappears() throws IOException {
        BufferedImage whole = picture("logarithmic.png");
        BufferedImage changed = picture("legend.png");
        // From 10 kHz on, the gain is below the new limits, so that all has the lowest colour.
        IntPredicate isLowest = c -> c == 0x30127a;
        assertTrue(count(whole, isLowest) < 5000 && count(changed, isLowest) > 50000);
        // The mark of the largest value was above the bar.
        IntPredicate isDark = c -> (c & 0xc0c0c0) == 0;
        assertTrue(count(whole.getSubimage(715, 0, 30, 25), isDark) > 20);
        assertEquals(0, count(changed.getSubimage(715, 0, 30, 25), isDark));
        // The data take the space of the legend.
        assertTrue(isColored(picture("no-legend.png"), 750, 250) && !isColored(whole, 710, 250));
    }

    @Test
    void lightShadesWhatWasFlat() throws IOException {
        assertEquals(Data.of(picture("space.png")).box(), Data.of(picture("lit.png")).box());
        assertTrue(GalleryTest.countChanges(folder.resolve("space.png"), folder.resolve("lit.png")) > 20000);
    }

    @Test
    void aHardcopyHasItsSizeInCentimetresAndShowsAxesAndLegend() throws IOException {
        BufferedImage paper = picture("paper.png");
        assertArrayEquals(new int[] {1417, 945}, new int[] {paper.getWidth(), paper.getHeight()});
        byte[] file = Files.readAllBytes(folder.resolve("paper.png"));
        int at = new String(file, StandardCharsets.ISO_8859_1).indexOf("pHYs");
        assertEquals(300, ByteBuffer.wrap(file).getInt(at + 4) * 0.0254, 0.02);
        long legend = IntStream.range(0, 945).filter(y -> IntStream.range(1276, 1417).anyMatch(
                x -> isColored(paper, x, y))).count();
        assertTrue(legend > 600, legend + " rows show a legend");
    }

    @Test
    void theRecordOfAnotherThreadIsShown() throws IOException {
        assertTrue(GalleryTest.countChanges(folder.resolve("lit.png"), folder.resolve("next.png")) > 20000);
    }
}
