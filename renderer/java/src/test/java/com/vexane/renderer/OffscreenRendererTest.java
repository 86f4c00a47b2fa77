package com.vexane.renderer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.graphics3d.NativeException;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphRoot;
import java.io.DataInputStream;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.NoSuchFileException;
import java.nio.file.Path;
import java.util.Map;
import java.util.TreeMap;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class OffscreenRendererTest {
    @TempDir Path folder;

    /** The pixel as 0xRRGGBBAA. */
    private static int pixel(ByteBuffer image, int index) {
        return image.getInt(4 * index);
    }

    @Test
    void drawsTheBackgroundOfAnEmptyScene() {
        try (Scene scene = new Scene();
                OffscreenRenderer renderer = OffscreenRenderer.create(40, 30, 1)) {
            renderer.setScene(scene);
            renderer.draw();
            ByteBuffer image = renderer.image();
            assertEquals(40 * 30 * 4, image.remaining());
            assertEquals(0xffffffff, pixel(image, 0));
            renderer.setBackground(0x204060);
            renderer.draw();
            assertEquals(0x204060ff, pixel(renderer.image(), 40 * 30 - 1));
        }
    }

    @Test
    void theImageCanBeReadAfterTheRendererIsClosed() {
        ByteBuffer image;
        try (OffscreenRenderer renderer = OffscreenRenderer.create(500, 400, 1)) {
            renderer.setBackground(0x112233);
            renderer.draw();
            image = renderer.image();
        }
        for (int i = 0; i < 500 * 400; ++i) {
            assertEquals(0x112233ff, pixel(image, i));
        }
    }

    @Test
    void thereIsNoImageUntilSomethingIsDrawnInThePresentSize() {
        try (OffscreenRenderer renderer = OffscreenRenderer.create(16, 16, 1)) {
            assertThrows(NativeException.class, renderer::image);
            assertThrows(NativeException.class, () -> renderer.writePng(folder.resolve("none.png")));
            renderer.draw();
            ByteBuffer small = renderer.image();
            renderer.resize(32, 8);
            assertEquals(32, renderer.getWidth());
            assertEquals(8, renderer.getHeight());
            assertThrows(NativeException.class, renderer::image);
            renderer.draw();
            assertNotSame(small, renderer.image());
            assertEquals(32 * 8 * 4, renderer.image().capacity());
        }
    }

    @Test
    void writesPngFilesWithResolutionAndTexts() throws IOException {
        Path file = folder.resolve("picture.png");
        try (OffscreenRenderer renderer = OffscreenRenderer.create(20, 10, 1)) {
            renderer.draw();
            renderer.writePng(file, 254, "Title of it", "Creator of it");
        }
        Map<String, byte[]> chunks = new TreeMap<>();
        try (DataInputStream in = new DataInputStream(Files.newInputStream(file))) {
            in.readLong();
            String type = "";
            while (!type.equals("IEND")) {
                int length = in.readInt();
                type = new String(in.readNBytes(4), StandardCharsets.US_ASCII);
                byte[] content = in.readNBytes(length);
                String key = type.equals("tEXt") ? type + (char) content[0] : type;
                chunks.put(key, content);
                in.readInt();
            }
        }
        ByteBuffer header = ByteBuffer.wrap(chunks.get("IHDR"));
        assertEquals(20, header.getInt());
        assertEquals(10, header.getInt());
        assertEquals(10000, ByteBuffer.wrap(chunks.get("pHYs")).getInt());
        assertEquals("Title\0Title of it", new String(chunks.get("tEXtT"), StandardCharsets.US_ASCII));
        assertEquals("Creator\0Creator of it", new String(chunks.get("tEXtC"), StandardCharsets.US_ASCII));
    }

    @Test
    void namesTheFileThatCannotBeWritten() {
        try (OffscreenRenderer renderer = OffscreenRenderer.create(4, 4, 1)) {
            renderer.draw();
            Path file = folder.resolve("missing").resolve("picture.png");
            NoSuchFileException failure = assertThrows(NoSuchFileException.class, () -> renderer.writePng(file));
            assertEquals(file.toString(), failure.getFile());
        }
    }

    @Test
    void refusesArgumentsBeforeAnythingHappens() {
        assertThrows(IllegalArgumentException.class, () -> OffscreenRenderer.create(0, 10, 1));
        assertThrows(IllegalArgumentException.class, () -> OffscreenRenderer.create(10, -1, 1));
        assertThrows(IllegalArgumentException.class, () -> OffscreenRenderer.create(10, 10, 0));
        NativeException tooLarge =
                assertThrows(NativeException.class, () -> OffscreenRenderer.create(1 << 30, 1 << 30, 1));
        assertTrue(tooLarge.getMessage().contains("1073741824 by 1073741824 is too large"), tooLarge.getMessage());
        try (OffscreenRenderer renderer = OffscreenRenderer.create(10, 10, 64)) {
            assertTrue(renderer.getSamples() >= 1 && renderer.getSamples() <= 64);
            assertThrows(IllegalArgumentException.class, () -> renderer.resize(10, 0));
            assertThrows(NativeException.class, () -> renderer.resize(1 << 20, 1 << 20));
            assertThrows(IllegalArgumentException.class, () -> renderer.setViewDirection(Double.NaN, 0.0));
            assertThrows(IllegalArgumentException.class, () -> renderer.setFont("Serif", 0));
            assertThrows(NullPointerException.class, () -> renderer.setFont(null, 10));
            renderer.draw();
            assertThrows(NullPointerException.class, () -> renderer.writePng(null));
            assertThrows(IllegalArgumentException.class, () -> renderer.writePng(folder.resolve("a"), -1, "", ""));
            assertEquals(10 * 10 * 4, renderer.image().capacity());
        }
    }

    @Test
    void closedPeersAreRefusedAndClosingTwiceIsNothing() {
        Scene scene = new Scene();
        SceneGraphRoot root = SceneGraphRoot.connect(scene);
        OffscreenRenderer renderer = OffscreenRenderer.create(8, 8, 1);
        renderer.setRoot(root);
        root.close();
        scene.close();
        renderer.draw();
        assertThrows(IllegalStateException.class, () -> renderer.setScene(scene));
        assertThrows(IllegalStateException.class, () -> renderer.setRoot(root));
        renderer.setScene(null);
        renderer.setRoot(null);
        renderer.draw();
        renderer.close();
        renderer.close();
        assertThrows(NativeException.class, renderer::draw);
        assertThrows(NativeException.class, renderer::image);
        assertThrows(NativeException.class, renderer::getWidth);
        assertThrows(NativeException.class, () -> renderer.setLit(true));
    }

    @Test
    void namesTheDriver() {
        try (OffscreenRenderer renderer = OffscreenRenderer.create(8, 8, 1)) {
            assertTrue(renderer.describeDriver().contains("OpenGL"), renderer.describeDriver());
        }
    }

    @Test
    void drawsOnWhicheverThreadCalls() throws InterruptedException {
        try (OffscreenRenderer renderer = OffscreenRenderer.create(8, 8, 1)) {
            renderer.setBackground(0xabcdef);
            Thread thread = new Thread(renderer::draw);
            thread.start();
            thread.join();
            assertEquals(0xabcdefff, pixel(renderer.image(), 0));
        }
    }
}
