package com.vexane.renderer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Camera3d;
import com.vexane.graphics3d.Canvas3dGlobalSettings;
import com.vexane.graphics3d.Canvas3dSettings.RenderMode;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.ContextData;
import com.vexane.graphics3d.HardcopySettings;
import com.vexane.graphics3d.RendererInfo;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneSettings;
import java.io.DataInputStream;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.NoSuchFileException;
import java.nio.file.Path;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import java.util.concurrent.atomic.AtomicBoolean;
import javax.imageio.ImageIO;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class OffscreenRendererTest {
    @TempDir Path folder;

    private static void setBackground(OffscreenRenderer renderer, int color) {
        try (Canvas3dSettings settings = Canvas3dSettings.connect(renderer)) {
            settings.setBackgroundColor(RenderMode.VIEW_3D, color);
        }
    }

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
            setBackground(renderer, 0x204060);
            renderer.draw();
            assertEquals(0x204060ff, pixel(renderer.image(), 40 * 30 - 1));
        }
    }

    private static void loseRendererOf(Scene scene) {
        OffscreenRenderer lost = OffscreenRenderer.create(8, 8, 1);
        lost.setScene(scene);
        lost.draw();
    }

    @Test
    void lostRenderersAreReleasedOnAnotherThreadWhileTheirSceneIsDrawn() throws InterruptedException {
        try (Scene scene = new Scene();
                OffscreenRenderer renderer = OffscreenRenderer.create(8, 8, 1)) {
            for (int i = 0; i < 4; ++i) {
                loseRendererOf(scene);
            }
            AtomicBoolean isDone = new AtomicBoolean();
            Thread other = new Thread(() -> {
                while (!isDone.get()) {
                    new Scene().close();
                }
            });
            other.start();
            for (int i = 0; i < 200 && NativePeer.countOpen().get("OffscreenRenderer") > 1; ++i) {
                System.gc();
                renderer.setScene(null);
                renderer.setScene(scene);
                renderer.draw();
            }
            isDone.set(true);
            other.join();
            assertEquals(1, NativePeer.countOpen().get("OffscreenRenderer"));
            assertEquals(0xffffffff, pixel(renderer.image(), 0));
        }
    }

    @Test
    void theImageCanBeReadAfterTheRendererIsClosed() {
        ByteBuffer image;
        try (OffscreenRenderer renderer = OffscreenRenderer.create(500, 400, 1)) {
            setBackground(renderer, 0x112233);
            renderer.draw();
            image = renderer.image();
        }
        for (int i = 0; i < 500 * 400; ++i) {
            assertEquals(0x112233ff, pixel(image, i));
        }
    }

    @Test
    void thereIsNoImageUntilSomethingIsDrawnAtTheCurrentSize() {
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
    void theSuffixOfAFileChoosesItsFormat() throws IOException {
        try (OffscreenRenderer renderer = OffscreenRenderer.create(40, 40, 1);
                HardcopySettings settings = new HardcopySettings()) {
            settings.setDpi(36);
            settings.setFileTitle("Title of it");
            Map<String, String> starts = Map.of("a.png", "\u0089PNG", "a.Pdf", "%PDF-1.", "a.b.svg", "<?xml");
            for (Map.Entry<String, String> start : starts.entrySet()) {
                Path file = folder.resolve(start.getKey());
                renderer.writeHardcopy(file, settings, 30, 20);
                String content = Files.readString(file, StandardCharsets.ISO_8859_1);
                assertTrue(content.startsWith(start.getValue()), start.getKey());
            }
            // Points of 30 by 20 pixels at half their resolution.
            String svg = Files.readString(folder.resolve("a.b.svg"));
            assertTrue(svg.contains("width=\"60pt\" height=\"40pt\""), svg);
            assertTrue(svg.contains("<title>Title of it</title>"), svg);
            for (String name : List.of("a.jpg", "png", "svg.", ".pdf.txt")) {
                Path file = folder.resolve(name);
                String message = assertThrows(
                                IllegalArgumentException.class, () -> renderer.writeHardcopy(file, settings, 30, 20))
                        .getMessage();
                assertTrue(message.contains(name) && message.endsWith(".png, .pdf, .svg"), message);
                assertFalse(Files.exists(file));
            }
        }
    }

    @Test
    void hardcopiesHaveTheirOwnSizeResolutionBackgroundAndTexts() throws IOException {
        Path file = folder.resolve("picture.png");
        try (OffscreenRenderer renderer = OffscreenRenderer.create(40, 40, 1);
                HardcopySettings settings = new HardcopySettings()) {
            setBackground(renderer, 0xabcdef);
            renderer.draw();
            settings.setDpi(254);
            settings.setFileTitle("Title of it");
            settings.setFileCreator("Creator of it");
            settings.setBackground(0x112233, 0x112233);
            renderer.writeHardcopy(file, settings, 20, 10);
            assertEquals(0x112233, ImageIO.read(file.toFile()).getRGB(3, 3) & 0xffffff);
            assertEquals(0xabcdefff, pixel(renderer.image(), 0), "the view has changed");
            settings.setUseCurrentBackground(true);
            renderer.writeHardcopy(folder.resolve("other.png"), settings, 20, 10);
            assertEquals(
                    0xabcdef,
                    ImageIO.read(folder.resolve("other.png").toFile()).getRGB(3, 3) & 0xffffff);
            assertThrows(IllegalArgumentException.class, () -> renderer.writeHardcopy(file, settings, 0, 10));
            assertThrows(NullPointerException.class, () -> renderer.writeHardcopy(file, null, 20, 10));
            HardcopySettings closed = new HardcopySettings();
            closed.close();
            assertThrows(IllegalStateException.class, () -> renderer.writeHardcopy(file, closed, 20, 10));
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
    void peersOutliveTheViewThatTheyConnectedTo() {
        Scene scene = new Scene();
        OffscreenRenderer renderer = OffscreenRenderer.create(8, 8, 4);
        assertThrows(NativeException.class, () -> SceneSettings.connect(renderer), "no scene is shown");
        renderer.setScene(scene);
        Canvas3dSettings canvas = Canvas3dSettings.connect(renderer);
        Camera3d camera = Camera3d.connect(canvas);
        SceneSettings settings = SceneSettings.connect(renderer);
        ContextData context = ContextData.connect(renderer);
        assertEquals(32, context.getColorBits());
        assertEquals(renderer.getSamples(), context.getMultipleSamples());
        renderer.setScene(null);
        settings.setShowTitle(false);
        renderer.close();
        scene.close();
        canvas.close();
        settings.setGlobalOpacity(0.5f);
        camera.zoomCenter(2);
        assertEquals(0.5f, settings.getGlobalOpacity());
        List.of(camera, settings, context).forEach(NativePeer::close);
    }

    @Test
    void reportsWhatTheDriverCanDo() {
        try (RendererInfo info = OffscreenRenderer.info();
                RendererInfo.MonitorInfo monitor = RendererInfo.MonitorInfo.connect(info, 0)) {
            assertEquals("OpenGL", info.getRendererType());
            assertEquals(0, info.getNumberOfMissingRequirements());
            assertEquals(8, info.getNumberOfLights());
            assertTrue(info.getMaxTextureSize() >= 2048 && info.getNumberOfMultisampleSettings() > 0);
            assertTrue(monitor.getOpenGlExtensions().size() > 10);
            Canvas3dGlobalSettings.setAntiAliasing(true);
            int samples = Canvas3dGlobalSettings.getMultisampleSetting();
            assertEquals(info.getMultisampleSetting(0), samples);
            try (OffscreenRenderer renderer = OffscreenRenderer.create(8, 8)) {
                assertEquals(samples, renderer.getSamples());
                Canvas3dGlobalSettings.setAntiAliasing(false);
                renderer.draw();
                assertEquals(1, renderer.getSamples());
            }
        }
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
            assertThrows(IllegalArgumentException.class, () -> renderer.viewFrom(Double.NaN, 0.0));
            renderer.draw();
            assertThrows(NullPointerException.class, () -> renderer.writePng(null));
            assertEquals(10 * 10 * 4, renderer.image().capacity());
        }
    }

    @Test
    void keepsItsStyleWhenAnArgumentIsRefused() {
        try (OffscreenRenderer renderer = OffscreenRenderer.create(10, 10, 1)) {
            assertEquals(35.0f, renderer.getCreaseAngle());
            assertEquals(1, renderer.getSupersampling());
            assertFalse(renderer.isStudioLight() || renderer.isFeatureEdges());
            renderer.setCreaseAngle(180.0f);
            renderer.setFeatureEdges(true);
            renderer.setSupersampling(4);
            for (float angle : new float[] {-0.1f, 180.1f, Float.NaN}) {
                assertThrows(IllegalArgumentException.class, () -> renderer.setCreaseAngle(angle));
            }
            for (int factor : new int[] {0, 5}) {
                assertThrows(IllegalArgumentException.class, () -> renderer.setSupersampling(factor));
            }
            assertEquals(180.0f, renderer.getCreaseAngle());
            assertEquals(4, renderer.getSupersampling());
            assertTrue(renderer.isFeatureEdges() && !renderer.isStudioLight());
            renderer.setStudioLight(true);
            renderer.setFeatureEdges(false);
            assertTrue(renderer.isStudioLight() && !renderer.isFeatureEdges());
        }
    }

    @Test
    void closedPeersAreRefusedAndClosingTwiceDoesNothing() {
        Scene scene = new Scene();
        OffscreenRenderer renderer = OffscreenRenderer.create(8, 8, 1);
        renderer.setScene(scene);
        scene.close();
        renderer.draw();
        assertThrows(IllegalStateException.class, () -> renderer.setScene(scene));
        renderer.setScene(null);
        renderer.draw();
        renderer.close();
        renderer.close();
        assertThrows(NativeException.class, renderer::draw);
        assertThrows(NativeException.class, renderer::image);
        assertThrows(NativeException.class, renderer::getWidth);
        assertThrows(NativeException.class, renderer::zoomExtents);
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
            setBackground(renderer, 0xabcdef);
            Thread thread = new Thread(renderer::draw);
            thread.start();
            thread.join();
            assertEquals(0xabcdefff, pixel(renderer.image(), 0));
        }
    }
}
