package com.vexane.gallery;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.awt.image.BufferedImage;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.List;
import java.util.stream.Collectors;
import javax.imageio.ImageIO;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class GalleryTest {
    private static final Path ROOT = Path.of(System.getProperty("com.vexane.test.data")).getParent();

    @TempDir Path folder;

    private static int[] pixels(Path file) throws IOException {
        BufferedImage image = ImageIO.read(file.toFile());
        assertEquals(400, image.getWidth());
        assertEquals(250, image.getHeight());
        return image.getRGB(0, 0, 400, 250, null, 0, 400);
    }

    /** How many colours cover at least three pixels each. */
    private static long colors(int[] pixels) {
        return Arrays.stream(pixels).boxed().collect(Collectors.groupingBy(c -> c,
                Collectors.counting())).values().stream().filter(count -> count >= 3).count();
    }

    @Test
    void everyProgramDrawsItsPictures() throws IOException {
        List<Path> files = Gallery.draw(ROOT, folder, List.of(), 400, 250);
        String page = Files.readString(folder.resolve("index.html"));
        for (Path file : files) {
            assertTrue(colors(pixels(file)) > 100, file + " shows hardly anything");
            assertTrue(page.contains("src=\"" + file.getFileName() + "\""), file + " is not on the page");
        }
        assertTrue(page.contains("final class EarthRelief"), "the page shows no code");
        assertTrue(page.contains("Map&lt;DataRole, Integer&gt;"), "the code is not escaped");
    }

    @Test
    void everyChangeOfColoursShows() throws IOException {
        List<Path> files = Gallery.draw(ROOT, folder, List.of("TerrainColors"), 400, 250);
        assertEquals(5, files.size());
        for (int i = 1; i < files.size(); ++i) {
            int[] before = pixels(files.get(i - 1));
            int[] after = pixels(files.get(i));
            int changed = 0;
            for (int k = 0; k < before.length; ++k) {
                changed += before[k] == after[k] ? 0 : 1;
            }
            assertTrue(changed > before.length / 20, files.get(i) + " differs in " + changed + " pixels only");
        }
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
    void textsOnThePageAreEscaped() {
        assertEquals("a &lt; b &amp;&amp; &quot;c&quot; &gt; d", ContactSheet.escaped("a < b && \"c\" > d"));
    }
}
