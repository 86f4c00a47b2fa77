package com.vexane.renderer;

import com.vexane.graphics3d.NativeLibrary;
import com.vexane.graphics3d.NativePeer;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphRoot;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Objects;

/**
 * Draws scenes into pictures that no window shows. It needs neither a screen nor a graphics card.
 *
 * <pre>{@code
 * try (OffscreenRenderer renderer = OffscreenRenderer.create(1600, 1000, 4)) {
 *     renderer.setScene(scene);
 *     renderer.draw();
 *     renderer.writePng(Path.of("plot.png"));
 * }
 * }</pre>
 *
 * <p>Buffers of the scene go to the graphics hardware once and again only when their plots are filled anew, so a picture
 * after a change of legend limits, colours or view costs the drawing alone. Plots, titles and legends are read when a
 * picture is drawn: a scene must not be changed on another thread meanwhile. Calls may come from any thread, one at a
 * time.
 *
 * <p>While a scene is shown it is kept alive, also if its peer is closed.
 */
public final class OffscreenRenderer extends NativePeer {
    private static final int BYTES_PER_PIXEL = 4;

    /** The image that Java sees: memory of the virtual machine, so that it outlives the renderer. */
    private ByteBuffer image;

    private OffscreenRenderer() {}

    /**
     * Makes a renderer. That starts the graphics driver, which takes some 50 to 200 milliseconds.
     *
     * @param width pixels in a row, at least 1
     * @param height rows, at least 1
     * @param samples samples a pixel against jagged edges, 1 for none; reduced to what the driver has, often 4 or 8
     * @return the renderer
     * @throws IllegalArgumentException if a number is below 1
     * @throws com.vexane.graphics3d.NativeException if the picture is larger than the driver allows, or if there is no
     *     driver or font; the message says what is missing
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static OffscreenRenderer create(int width, int height, int samples) {
        requirePositive(width, "width");
        requirePositive(height, "height");
        requirePositive(samples, "samples");
        NativeLibrary.require(OffscreenRenderer.class, "vxrenderer");
        OffscreenRenderer renderer = new OffscreenRenderer();
        createNative(renderer, width, height, samples);
        return renderer;
    }

    /**
     * Shows a scene from the next picture on. A scene that is disposed is let go when the next picture is drawn.
     *
     * @param scene the scene, or null for an empty picture
     * @throws IllegalStateException if the scene is closed
     */
    public void setScene(Scene scene) {
        setScene(this, scene == null ? null : requireOpen(scene, "scene"));
    }

    /**
     * Shows the tree below a root from the next picture on.
     *
     * @param root the root, or null for an empty picture
     * @throws IllegalStateException if the root is closed
     */
    public void setRoot(SceneGraphRoot root) {
        setRoot(this, root == null ? null : requireOpen(root, "root"));
    }

    /**
     * Gives the picture another size. There is no image until the next {@link #draw()}.
     *
     * @param width pixels in a row, at least 1
     * @param height rows, at least 1
     * @throws IllegalArgumentException if a number is below 1
     * @throws com.vexane.graphics3d.NativeException if the driver does not allow the size; the present one then stays
     */
    public void resize(int width, int height) {
        requirePositive(width, "width");
        requirePositive(height, "height");
        resize(this, width, height);
    }

    /**
     * The width of the picture.
     *
     * @return pixels
     */
    public int getWidth() {
        return getWidth(this);
    }

    /**
     * The height of the picture.
     *
     * @return rows
     */
    public int getHeight() {
        return getHeight(this);
    }

    /**
     * The samples in use, which may be fewer than were asked for.
     *
     * @return samples a pixel
     */
    public int getSamples() {
        return getSamples(this);
    }

    /**
     * Sets where a scene in space is seen from; -50 and 30 degrees at first. The scene always fills the picture. Scenes
     * that are flat in z are seen from above, whatever the direction.
     *
     * @param azimuth degrees around the z axis, from the x axis on
     * @param elevation degrees above the xy plane
     * @throws IllegalArgumentException if a number is not finite
     */
    public void setViewDirection(double azimuth, double elevation) {
        requireFinite(azimuth, "azimuth");
        requireFinite(elevation, "elevation");
        setViewDirection(this, azimuth, elevation);
    }

    /**
     * Sets whether surfaces in space are lit, as at first, or show the bare colours of their colour table.
     *
     * @param lit whether there is light
     */
    public void setLit(boolean lit) {
        setLit(this, lit);
    }

    /**
     * Sets what is shown beside the plots; at first all of it. What is not shown leaves its room to the plots.
     *
     * @param title the titles of plots and group, above
     * @param legends the colour legends, to the right
     * @param box the edges of the box around the scene
     */
    public void setDecoration(boolean title, boolean legends, boolean box) {
        setDecoration(this, title, legends, box);
    }

    /**
     * Sets the colour behind the scene; white at first.
     *
     * @param rgb 0xRRGGBB; higher bits are ignored
     */
    public void setBackground(int rgb) {
        setBackground(this, rgb);
    }

    /**
     * Sets the font of legends; titles take it somewhat larger. 14 pixels of the default font at first.
     *
     * @param name {@code "default"}, {@code "Serif"}, {@code "Monospaced"} or the like; unknown names give the default
     * @param size height in pixels, at least 1; beyond 4 to 200 the nearest of these is taken
     * @throws NullPointerException if the name is null
     * @throws IllegalArgumentException if the size is below 1
     */
    public void setFont(String name, int size) {
        Objects.requireNonNull(name, "name");
        requirePositive(size, "size");
        setFont(this, name, size);
    }

    /**
     * Draws the scene as it is now.
     *
     * @throws com.vexane.graphics3d.NativeException if the driver reports a fault
     */
    public void draw() {
        draw(this);
    }

    /**
     * The picture drawn last, as a direct buffer of {@code width * height * 4} bytes: red, green, blue and alpha of each
     * pixel, the top row first.
     *
     * <p>The buffer stays readable for as long as it is held, also after the renderer is closed. Its content is that of
     * this call until the next one, which writes into the same memory unless the size has changed.
     *
     * @return the image, with position 0 and the limit at its end
     * @throws com.vexane.graphics3d.NativeException if nothing was drawn since the size was given
     */
    public ByteBuffer image() {
        int size = Math.multiplyExact(Math.multiplyExact(getWidth(), getHeight()), BYTES_PER_PIXEL);
        if (image == null || image.capacity() != size) {
            image = ByteBuffer.allocateDirect(size);
        }
        readImage(this, image);
        return image.duplicate();
    }

    /**
     * Writes the picture drawn last to a PNG file with 8 bits a channel, without alpha.
     *
     * @param file the file, which is replaced
     * @throws NullPointerException if the file is null
     * @throws IOException if the file cannot be written
     * @throws com.vexane.graphics3d.NativeException if nothing was drawn since the size was given
     */
    public void writePng(Path file) throws IOException {
        writePng(file, 0, "", "");
    }

    /**
     * Writes the picture drawn last to a PNG file, with what is known about it.
     *
     * @param file the file, which is replaced
     * @param dpi pixels per inch, from which the physical size follows; 0 for none
     * @param title the text field Title; left out if empty
     * @param creator the text field Creator; left out if empty
     * @throws NullPointerException if file, title or creator is null
     * @throws IllegalArgumentException if dpi is below 0 or above a million
     * @throws IOException if the file cannot be written
     * @throws com.vexane.graphics3d.NativeException if nothing was drawn since the size was given
     */
    public void writePng(Path file, int dpi, String title, String creator) throws IOException {
        Objects.requireNonNull(file, "file");
        Objects.requireNonNull(title, "title");
        Objects.requireNonNull(creator, "creator");
        if (dpi < 0 || dpi > 1_000_000) {
            throw new IllegalArgumentException("dpi: " + dpi);
        }
        Files.write(file, encodePng(this, dpi, title, creator));
    }

    /**
     * Who draws: the way to the drawing context, the driver and its version, for reports.
     *
     * @return a line of text
     */
    public String describeDriver() {
        return describeDriver(this);
    }

    /**
     * How often data were handed to the graphics hardware so far: what changes of the scene have cost.
     *
     * @return the counts
     */
    public UploadCounts countUploads() {
        int[] counts = new int[3];
        getUploadCounts(this, counts);
        return new UploadCounts(counts[0], counts[1], counts[2]);
    }

    /**
     * Uploads since the renderer was made.
     *
     * @param meshes vertex and index buffers of plots
     * @param colorTables textures of colour tables
     * @param glyphPictures pictures of the characters of a font
     */
    public record UploadCounts(int meshes, int colorTables, int glyphPictures) {}

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static void requirePositive(int value, String name) {
        if (value < 1) {
            throw new IllegalArgumentException(name + ": " + value);
        }
    }

    private static void requireFinite(double value, String name) {
        if (!Double.isFinite(value)) {
            throw new IllegalArgumentException(name + ": " + value);
        }
    }

    private static native void createNative(OffscreenRenderer peer, int width, int height, int samples);

    private static native void cleanupNative(OffscreenRenderer peer);

    private static native void setScene(OffscreenRenderer peer, Scene scene);

    private static native void setRoot(OffscreenRenderer peer, SceneGraphRoot root);

    private static native void resize(OffscreenRenderer peer, int width, int height);

    private static native int getWidth(OffscreenRenderer peer);

    private static native int getHeight(OffscreenRenderer peer);

    private static native int getSamples(OffscreenRenderer peer);

    private static native void setViewDirection(OffscreenRenderer peer, double azimuth, double elevation);

    private static native void setLit(OffscreenRenderer peer, boolean lit);

    private static native void setDecoration(OffscreenRenderer peer, boolean title, boolean legends, boolean box);

    private static native void setBackground(OffscreenRenderer peer, int rgb);

    private static native void setFont(OffscreenRenderer peer, String name, int size);

    private static native void draw(OffscreenRenderer peer);

    private static native void readImage(OffscreenRenderer peer, ByteBuffer out);

    private static native byte[] encodePng(OffscreenRenderer peer, int dpi, String title, String creator);

    private static native String describeDriver(OffscreenRenderer peer);

    private static native void getUploadCounts(OffscreenRenderer peer, int[] out);
}
