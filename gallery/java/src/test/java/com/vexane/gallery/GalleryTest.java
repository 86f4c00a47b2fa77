package com.vexane.gallery;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.awt.image.BufferedImage;
import java.io.IOException;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.List;
import java.util.stream.Collectors;
import java.util.stream.IntStream;
import javax.imageio.ImageIO;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class GalleryTest {
    private static final Path ROOT = Path.of(System.getProperty("com.vexane.test.data")).getParent();

    @TempDir Path folder;

    private static int[] pixels(Path file) throws IOException {
        BufferedImage image = ImageIO.read(file.toFile());
        return image.getRGB(0, 0, image.getWidth(), image.getHeight(), null, 0, image.getWidth());
    }

    /** How many colours cover at least three pixels each. */
    private static long colors(int[] pixels) {
        return Arrays.stream(pixels).boxed().collect(Collectors.groupingBy(c -> c,
                Collectors.counting())).values().stream().filter(count -> count >= 3).count();
    }

    /** The percentage of pixels that differ from the one in the corner. */
    private static double coverage(int[] pixels) {
        return 100.0 * Arrays.stream(pixels).filter(pixel -> pixel != pixels[0]).count() / pixels.length;
    }

    @Test
    void everyProgramDrawsItsPictures() throws IOException {
        List<Path> files = Gallery.draw(ROOT, folder, List.of(), 400, 250);
        for (Path file : files) {
            // Faces have many colours; a drawing of lines has few, but covers more than the smallest text would.
            int[] pixels = pixels(file);
            assertTrue(colors(pixels) > 100 || coverage(pixels) > 2.5, file + " shows hardly anything");
        }
        SiteTest.checkPages(folder, files);
        SiteTest.checkOrder(folder.resolve("terrain-contours.html"), "fillPlot(lineRecord);", "\"terrain-contours.png\"",
                "fillPlot(bandRecord);", "\"terrain-contours-2.png\"", "fillPlot(spatialRecord);",
                "\"terrain-contours-3.png\"", "Each line lies at the height of its level.", "Contours.java", "scalar");
        SiteTest.checkOrder(folder.resolve("vector-figure.html"), "\"vector-figure.png\"", "&quot;.pdf&quot;",
                "\"vector-figure.svg\"", "\"vector-figure-2.png\"", "\"vector-figure-2.svg\"");
    }

    /** How many pixels differ in two pictures of equal size. */
    static int countChanges(Path one, Path other) throws IOException {
        int[] before = pixels(one);
        int[] after = pixels(other);
        assertEquals(before.length, after.length);
        int changed = 0;
        for (int k = 0; k < before.length; ++k) {
            changed += before[k] == after[k] ? 0 : 1;
        }
        return changed;
    }

    @Test
    void everyCameraAndEveryLightShowsAnotherPicture() throws IOException {
        for (String program : List.of("FourCameras", "LightsLockedAndFree")) {
            List<Path> files = Gallery.draw(ROOT, folder, List.of(program), 400, 250);
            assertEquals(4, files.size());
            for (int i = 0; i < 4; ++i) {
                for (int k = i + 1; k < 4; ++k) {
                    int changed = countChanges(files.get(i), files.get(k));
                    assertTrue(changed > 2000, files.get(k) + " differs in " + changed + " pixels only");
                }
            }
        }
    }

    @Test
    void aHardcopyHasItsOwnSize() throws IOException {
        List<Path> files = Gallery.draw(ROOT, folder, List.of("Hardcopy"), 400, 250);
        BufferedImage screen = ImageIO.read(files.get(0).toFile());
        BufferedImage paper = ImageIO.read(files.get(1).toFile());
        assertEquals(List.of(400, 250), List.of(screen.getWidth(), screen.getHeight()));
        assertEquals(List.of(2126, 1417), List.of(paper.getWidth(), paper.getHeight()));
        assertEquals(0xffffff, paper.getRGB(0, 0) & 0xffffff);
        assertEquals(0x6f8fb5, screen.getRGB(0, 0) & 0xffffff);
    }

    @Test
    void everyChangeOfColoursShows() throws IOException {
        for (String program : List.of("TerrainColors", "SeaTemperatureBands")) {
            List<Path> files = Gallery.draw(ROOT, folder, List.of(program), 800, 500);
            assertTrue(files.size() >= 3);
            for (int i = 1; i < files.size(); ++i) {
                int changed = countChanges(files.get(i - 1), files.get(i));
                assertTrue(changed > 20000, files.get(i) + " differs in " + changed + " pixels only");
            }
        }
    }

    @Test
    void eachRowOfResizedViewsBeginsAtTheSameSize() throws IOException {
        BufferedImage sheet = ImageIO.read(
                Gallery.draw(ROOT, folder, List.of("ResizeBehaviours"), 400, 250).get(0).toFile());
        int[] heights = new int[6];
        for (int row = 0; row < heights.length; ++row) {
            // Below the title: sheets have gaps of 8 pixels, the views of this one are 300 high.
            int top = 8 + row * 308 + 40;
            heights[row] = (int) IntStream.range(top, top + 260)
                    .filter(y -> IntStream.range(8, 408).anyMatch(x -> isSaturated(sheet.getRGB(x, y)))).count();
            assertEquals(heights[0], heights[row], 2, "row " + row);
        }
        assertTrue(heights[0] > 60, heights[0] + " rows of pixels show the part");
    }

    private static boolean isSaturated(int rgb) {
        int[] channels = {rgb >> 16 & 0xff, rgb >> 8 & 0xff, rgb & 0xff};
        return IntStream.of(channels).max().getAsInt() - IntStream.of(channels).min().getAsInt() > 60;
    }

    @Test
    void theFirstPictureIsDrawn() throws Exception {
        Path file = folder.resolve("first.png");
        FirstPicture.main(new String[] {file.toString()});
        BufferedImage image = ImageIO.read(file.toFile());
        assertEquals(1600, image.getWidth());
        assertTrue(colors(image.getRGB(0, 0, 1600, 1000, null, 0, 1600)) > 500);
    }

    @Test
    void theFirstPickMarksAFaceAndVertices() throws Exception {
        Path file = folder.resolve("pick.png");
        FirstPick.main(new String[] {ROOT.resolve("data/bracket_solid.txt").toString(), file.toString()});
        BufferedImage image = ImageIO.read(file.toFile());
        int[] pixels = image.getRGB(0, 0, 800, 500, null, 0, 800);
        // Lines are smooth, so few of their pixels have their colour alone.
        assertTrue(IntStream.of(pixels).filter(rgb -> (rgb >> 16 & 0xff) > 200 && (rgb >> 8 & 0xff) < 120).count() > 500,
                "edges of the face");
        assertTrue(IntStream.of(pixels).filter(rgb -> (rgb & 0xffffff) == 0x0000ff).count() > 200, "vertices");
    }
}
