package com.vexane.renderer;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Camera3d;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.HardcopySettings;
import com.vexane.graphics3d.MarkingSetups;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.PickedObjectCollection;
import com.vexane.graphics3d.RendererInfo;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphNode;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.Locale;
import java.util.Objects;

/**
 * A view that draws scenes into pictures in memory and files. It needs neither a screen nor a graphics card.
 *
 * <pre>{@code
 * try (OffscreenRenderer renderer = OffscreenRenderer.create(1600, 1000, 4)) {
 *     renderer.setScene(scene);
 *     renderer.viewFrom(-50, 30);
 *     renderer.draw();
 *     renderer.writePng(Path.of("plot.png"));
 * }
 * }</pre>
 *
 * <p>The view owns settings, to which peers connect: {@link Canvas3dSettings#connect Canvas3dSettings} and through them
 * cameras, backgrounds, grid box, axes and fonts; {@link com.vexane.graphics3d.SceneSettings#connect SceneSettings} for
 * title, legends, labels, markers, opacity and light switches while a scene is shown; {@link com.vexane.graphics3d.ContextData#connect
 * ContextData} for the properties of the drawing context. A new view is white. Sizes of fonts are in points at the
 * resolution of the screen or of the export. The bits of the render mask are the {@code RENDER_} constants.
 *
 * <p>Buffers of the scene are uploaded to the graphics hardware once, and again when their plots or objects are filled
 * again. A picture after a change of legend limits, colours or view uploads nothing; after marks, only a byte per part. Plots, titles and legends are read while a
 * picture is drawn, so another thread must not change the scene meanwhile. Calls may come from any thread, one at
 * a time.
 *
 * <p>The view keeps its scene alive, even after the peer of the scene is closed.
 */
public final class OffscreenRenderer extends NativePeer {
    /** Bit of the render mask: plots. */
    public static final int RENDER_PLOTS = 0x1;

    /** Bit of the render mask: the grid box of a 3D view, the axes of a 2D view. */
    public static final int RENDER_AXES = 0x2;

    /** Bit of the render mask: the axis orientation indicator. */
    public static final int RENDER_AXIS_ORIENTATION = 0x4;

    /** Bit of the render mask: colour legends. */
    public static final int RENDER_LEGENDS = 0x8;

    /** Bit of the render mask: titles. */
    public static final int RENDER_TITLE = 0x10;

    /** Bit of the render mask: markers of lights. */
    public static final int RENDER_LIGHT_MARKERS = 0x20;

    /** Bit of the render mask: the background; without it, the background is black. */
    public static final int RENDER_BACKGROUND = 0x40;

    /** Bit of the render mask: objects of geometry. */
    public static final int RENDER_OBJECTS = 0x80;

    private static final int BYTES_PER_PIXEL = 4;

    /** Of the formats of exports, in the order of their numbers. */
    private static final List<String> SUFFIXES = List.of(".png", ".pdf", ".svg");

    /** The image that callers see: memory of the virtual machine, so that it outlives the renderer. */
    private ByteBuffer image;

    private OffscreenRenderer() {}

    /**
     * Makes a renderer whose pictures use the multisample setting of {@link
     * com.vexane.graphics3d.Canvas3dGlobalSettings}.
     *
     * @param width pixels in a row, at least 1
     * @param height rows, at least 1
     * @return the renderer
     * @throws IllegalArgumentException if a number is below 1
     * @throws com.vexane.base.NativeException as for {@link #create(int, int, int)}
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static OffscreenRenderer create(int width, int height) {
        return make(width, height, 0);
    }

    /**
     * Makes a renderer. This starts the graphics driver, which takes 50 to 200 milliseconds.
     *
     * @param width pixels in a row, at least 1
     * @param height rows, at least 1
     * @param samples samples per pixel for smooth edges, 1 for none; reduced to what the driver offers, often 4 or 8
     * @return the renderer
     * @throws IllegalArgumentException if a number is below 1
     * @throws com.vexane.base.NativeException if the picture is larger than the driver allows, or if there is no
     *     driver or font; the message names what is missing
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static OffscreenRenderer create(int width, int height, int samples) {
        requirePositive(samples, "samples");
        return make(width, height, samples);
    }

    private static OffscreenRenderer make(int width, int height, int samples) {
        requirePositive(width, "width");
        requirePositive(height, "height");
        NativeLibrary.require(OffscreenRenderer.class, "vxrenderer");
        OffscreenRenderer renderer = new OffscreenRenderer();
        createNative(renderer, width, height, samples);
        return renderer;
    }

    /**
     * Shows a scene from the next picture on. A scene that has been disposed is released when the next picture is
     * drawn. Another scene gets new {@link com.vexane.graphics3d.SceneSettings}; the current scene keeps its own.
     *
     * @param scene the scene, or null for an empty picture
     * @throws IllegalStateException if the scene is closed
     */
    public void setScene(Scene scene) {
        setScene(this, scene == null ? null : requireOpen(scene, "scene"));
    }

    /**
     * Draws an overlay over the scene from the next picture on, in the coordinates of the scene: its shapes are in the
     * plane z = 0, and are seen through whatever is in front of them. If an axis is logarithmic, coordinates on it are
     * logarithms to base 10. The view keeps the overlay alive. Without a scene nothing of it is drawn; an empty scene is
     * enough.
     *
     * @param overlay the overlay, or null for none
     * @throws IllegalStateException if the overlay is closed
     */
    public void setOverlay(Overlay overlay) {
        setOverlay(this, overlay == null ? null : requireOpen(overlay, "overlay"));
    }

    /**
     * Draws an overlay over the whole picture from the next one on, in pixels from the top left corner as in mouse
     * events: whole numbers are borders of pixels. The view keeps the overlay alive. It is not part of exports.
     *
     * @param overlay the overlay, or null for none
     * @throws IllegalStateException if the overlay is closed
     */
    public void setScreenOverlay(Overlay overlay) {
        setScreenOverlay(this, overlay == null ? null : requireOpen(overlay, "overlay"));
    }

    /**
     * Sets what the frames of the overlay enclose, each an {@link com.vexane.graphics3d.OverlayTransformation}: the
     * bounding box of a node. When the node ceases to exist, they enclose the whole scene again.
     *
     * @param node the node, or null for the whole scene
     * @throws IllegalStateException if the node's peer is closed
     */
    public void setFramedNode(SceneGraphNode node) {
        setFramedNode(this, node == null ? null : requireOpen(node, "node"));
    }

    /**
     * Selects the table of {@link MarkingSetups} by which the parts of objects are drawn from the next picture on, at
     * first {@link MarkingSetups.Mode#FIRST}.
     *
     * @param mode the table
     * @throws NullPointerException if the mode is null
     */
    public void setMarkingMode(MarkingSetups.Mode mode) {
        setMarkingMode(this, mode.number());
    }

    /**
     * Lights 3D views so that shapes are read at a glance, from the next picture on: soft light from above, a weak light
     * from the eye, shade in corners, and colours that stay those of their table. Otherwise, as at first, the lights of
     * the scene act by the documented formula alone. A scene without light shows its bare colours in both cases.
     *
     * @param on whether it is lit that way
     */
    public void setStudioLight(boolean on) {
        setStudioLight(this, on);
    }

    /** {@return whether 3D views have studio light} */
    public boolean isStudioLight() {
        return isStudioLight(this);
    }

    /**
     * Sets from which angle on two faces of a body meet in a sharp edge, at first 35 degrees. Each side of such an edge is
     * shaded with its own normals, also where the data have one normal per point. Surfaces in the plane, which are raised
     * by heights, have no sharp edges. Another angle lets the next picture upload the bodies again.
     *
     * @param degrees the angle between the normals of the faces, 0 to 180; with 180 there are no sharp edges
     * @throws IllegalArgumentException if it is outside of that range or not a number
     */
    public void setCreaseAngle(float degrees) {
        if (!(degrees >= 0.0f && degrees <= 180.0f)) {
            throw new IllegalArgumentException("degrees: " + degrees);
        }
        setCreaseAngle(this, degrees);
    }

    /** {@return the angle in degrees from which faces meet in a sharp edge} */
    public float getCreaseAngle() {
        return getCreaseAngle(this);
    }

    /**
     * Draws sharp edges, open borders and silhouettes of bodies in 3D views as thin dark lines, from the next picture on.
     *
     * @param on whether they are drawn; at first they are not
     */
    public void setFeatureEdges(boolean on) {
        setFeatureEdges(this, on);
    }

    /** {@return whether sharp edges, borders and silhouettes are drawn} */
    public boolean isFeatureEdges() {
        return isFeatureEdges(this);
    }

    /**
     * Sets how finely {@link #writeHardcopy writeHardcopy} draws: each pixel of an export becomes the mean of a square of
     * pixels, which smooths edges, lines and steps of colours. Fonts, widths and marks keep their size in the export. The
     * time grows with the number of pixels, and exports whose larger picture the driver does not allow are refused.
     *
     * @param factor pixels per direction, 1 to 4; at first 1
     * @throws IllegalArgumentException if it is outside of that range
     */
    public void setSupersampling(int factor) {
        if (factor < 1 || factor > 4) {
            throw new IllegalArgumentException("factor: " + factor);
        }
        setSupersampling(this, factor);
    }

    /** {@return the number of pixels that are drawn for each pixel of an export, per direction} */
    public int getSupersampling() {
        return getSupersampling(this);
    }

    /**
     * Changes the size of the picture. There is no image until the next {@link #draw()} or {@link #drawDraft()}.
     *
     * @param width pixels in a row, at least 1
     * @param height rows, at least 1
     * @throws IllegalArgumentException if a number is below 1
     * @throws com.vexane.base.NativeException if the driver does not allow the size; the size then stays
     */
    public void resize(int width, int height) {
        requirePositive(width, "width");
        requirePositive(height, "height");
        resize(this, width, height);
    }

    /** {@return the width of the picture in pixels} */
    public int getWidth() {
        return getWidth(this);
    }

    /** {@return the height of the picture in pixels} */
    public int getHeight() {
        return getHeight(this);
    }

    /** {@return the number of samples per pixel, which may be smaller than the one requested} */
    public int getSamples() {
        return getSamples(this);
    }

    /**
     * Shows the whole scene with the camera of the current render mode, as large as the picture allows: what is drawn
     * with its labels, and in space light markers and the numbers and names of the axes, fill what title and legends
     * leave, except for the margin of {@code Canvas3dGlobalSettings.setZoomToExtentMargin}. A 3D camera keeps its direction, and its rotation point
     * becomes the centre of the scene. Without a scene, or with an empty one, nothing happens.
     */
    public void zoomExtents() {
        zoomExtents(this);
    }

    /**
     * Shows the whole scene from a direction with the 3D camera, as {@link #zoomExtents()} does; z points upwards in
     * the picture.
     *
     * @param azimuth degrees around the z axis, from the x axis
     * @param elevation degrees above the xy plane; at 90 and -90 the view is along the z axis
     * @throws IllegalArgumentException if a number is not finite
     */
    public void viewFrom(double azimuth, double elevation) {
        double a = Math.toRadians(requireFinite(azimuth, "azimuth"));
        double e = Math.toRadians(requireFinite(elevation, "elevation"));
        float[] towards = vector(-Math.cos(a) * Math.cos(e), -Math.sin(a) * Math.cos(e), -Math.sin(e));
        // Perpendicular to the direction, so that it is valid for vertical directions too.
        float[] up = vector(-Math.cos(a) * Math.sin(e), -Math.sin(a) * Math.sin(e), Math.cos(e));
        try (Canvas3dSettings settings = Canvas3dSettings.connect(this);
                Camera3d camera = Camera3d.connect(settings)) {
            camera.setPosition(0, 0, 0, towards[0], towards[1], towards[2], up[0], up[1], up[2]);
        }
        zoomExtents();
    }

    private static float[] vector(double x, double y, double z) {
        return new float[] {(float) x, (float) y, (float) z};
    }

    /**
     * Draws the scene in its current state.
     *
     * @throws com.vexane.base.NativeException if the driver reports a fault
     */
    public void draw() {
        draw(this);
    }

    /**
     * Draws a draft of the scene as it is now, for a picture that the next one replaces at once, as while the user
     * drags the scene: with one sample per pixel, in a third of the time where there is no graphics hardware. Edges are
     * jagged, what is translucent is mixed by weights instead of in its order, and studio light has no shade in corners.
     * Everything is at the same position as in the full picture, which {@link #draw()} gives when the drag is over.
     *
     * @throws com.vexane.base.NativeException if the driver reports a fault
     */
    public void drawDraft() {
        drawDraft(this);
    }

    /**
     * The last picture drawn, as a direct buffer of {@code width * height * 4} bytes: red, green, blue and alpha of
     * each pixel, the top row first.
     *
     * <p>The buffer stays readable after the renderer is closed. The next call writes into the same memory unless the
     * size has changed.
     *
     * @return the image, with position 0 and the limit at its end
     * @throws com.vexane.base.NativeException if nothing has been drawn since the size was set
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
     * Writes the last picture drawn to a PNG file with 8 bits per channel, without alpha. The file says that its colours
     * are sRGB, and has the resolution of the screen.
     *
     * @param file the file, which is replaced
     * @throws NullPointerException if the file is null
     * @throws IOException if the file cannot be written
     * @throws com.vexane.base.NativeException if nothing has been drawn since the size was set
     */
    public void writePng(Path file) throws IOException {
        Objects.requireNonNull(file, "file");
        Files.write(file, encodePng(this));
    }

    /**
     * Draws the view at another size and writes it to a file, with the resolution, decorations, background and font sizes
     * of the settings and with their texts in the file. The view itself does not change.
     *
     * <p>The suffix of the file, in any case, gives its format: {@code .png} for an image, {@code .pdf} or {@code .svg}
     * for a page of that many pixels at the resolution of the settings, which is as sharp at any size: its texts, in PDF
     * files as text in embedded fonts, and the lines of axes, legends, grids and of flat views with graphs alone are
     * vectors. The rest of the scene is a picture in the page, in the resolution of the settings. Two exports of the same
     * view are equal byte for byte.
     *
     * @param file the file, which is replaced
     * @param settings the settings of the export
     * @param width pixels in a row, at least 1
     * @param height rows, at least 1
     * @throws NullPointerException if file or settings are null
     * @throws IllegalStateException if the settings are closed
     * @throws IllegalArgumentException if a number is below 1, or the name of the file has another suffix
     * @throws IOException if the file cannot be written
     * @throws com.vexane.base.NativeException if the driver does not allow the size or reports a fault
     */
    public void writeHardcopy(Path file, HardcopySettings settings, int width, int height) throws IOException {
        Objects.requireNonNull(file, "file");
        requireOpen(settings, "settings");
        requirePositive(width, "width");
        requirePositive(height, "height");
        int format = formatOf(file);
        Files.write(file, encodeHardcopy(this, settings, width, height, format));
    }

    private static int formatOf(Path file) {
        String name = String.valueOf(file.getFileName()).toLowerCase(Locale.ROOT);
        for (int i = 0; i < SUFFIXES.size(); ++i) {
            if (name.endsWith(SUFFIXES.get(i))) {
                return i;
            }
        }
        throw new IllegalArgumentException(
                "file: " + file + " ends with none of " + String.join(", ", SUFFIXES));
    }

    /**
     * Removes from the results of a pick the parts and objects that the last picture drawn does not show: those that are
     * completely behind others or outside of the view, and lines of which less than a quarter shows. Results of other
     * kinds stay. The order stays as it is. Call it after {@link #draw()}, before the scene is changed.
     *
     * <p>Nothing is hidden by what is translucent. In a 2D view, where everything has the same depth, and where the scene
     * is translucent, only what is outside of the view is removed.
     *
     * @param picked the results
     * @return the number of results that are left
     * @throws NullPointerException if the list is null
     * @throws IllegalStateException if the list is closed
     * @throws com.vexane.base.NativeException if nothing has been drawn since the size was set
     */
    public int keepVisible(PickedObjectCollection picked) {
        return keepVisible(this, requireOpen(picked, "picked"));
    }

    /**
     * What the renderer of this process can do, or which of its requirements are not met. The first call may start the
     * graphics driver.
     *
     * @return a new peer, which the caller closes
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static RendererInfo info() {
        NativeLibrary.require(OffscreenRenderer.class, "vxrenderer");
        RendererInfo info = new Info();
        connectInfo(info);
        return info;
    }

    private static final class Info extends RendererInfo {}

    /** {@return a line of text for reports: how the drawing context was obtained, the driver and its version} */
    public String describeDriver() {
        return describeDriver(this);
    }

    /**
     * {@return how often data have been uploaded to the graphics hardware so far, which shows what changes of the scene
     * cost}
     */
    public UploadCounts countUploads() {
        int[] counts = new int[5];
        getUploadCounts(this, counts);
        return new UploadCounts(counts[0], counts[1], counts[2], counts[3], counts[4]);
    }

    /**
     * Uploads since the renderer was made.
     *
     * @param meshes vertex and index buffers of plots and objects
     * @param colorTables textures of colour tables
     * @param glyphPictures pictures of the characters of a font
     * @param partTables tables with a byte per part of an object, which marks change
     * @param images images of materials and icons
     */
    public record UploadCounts(int meshes, int colorTables, int glyphPictures, int partTables, int images) {}

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static void requirePositive(int value, String name) {
        if (value < 1) {
            throw new IllegalArgumentException(name + ": " + value);
        }
    }

    private static double requireFinite(double value, String name) {
        if (!Double.isFinite(value)) {
            throw new IllegalArgumentException(name + ": " + value);
        }
        return value;
    }

    private static native void createNative(OffscreenRenderer peer, int width, int height, int samples);

    private static native void cleanupNative(OffscreenRenderer peer);

    private static native void setScene(OffscreenRenderer peer, Scene scene);

    private static native void setOverlay(OffscreenRenderer peer, Overlay overlay);

    private static native void setScreenOverlay(OffscreenRenderer peer, Overlay overlay);

    private static native void setFramedNode(OffscreenRenderer peer, SceneGraphNode node);

    private static native void zoomExtents(OffscreenRenderer peer);

    private static native void setMarkingMode(OffscreenRenderer peer, int mode);

    private static native void setStudioLight(OffscreenRenderer peer, boolean on);

    private static native boolean isStudioLight(OffscreenRenderer peer);

    private static native void setCreaseAngle(OffscreenRenderer peer, float degrees);

    private static native float getCreaseAngle(OffscreenRenderer peer);

    private static native void setFeatureEdges(OffscreenRenderer peer, boolean on);

    private static native boolean isFeatureEdges(OffscreenRenderer peer);

    private static native void setSupersampling(OffscreenRenderer peer, int factor);

    private static native int getSupersampling(OffscreenRenderer peer);

    private static native void resize(OffscreenRenderer peer, int width, int height);

    private static native int getWidth(OffscreenRenderer peer);

    private static native int getHeight(OffscreenRenderer peer);

    private static native int getSamples(OffscreenRenderer peer);

    private static native void draw(OffscreenRenderer peer);

    private static native int keepVisible(OffscreenRenderer peer, PickedObjectCollection picked);

    private static native void drawDraft(OffscreenRenderer peer);

    private static native void readImage(OffscreenRenderer peer, ByteBuffer out);

    private static native byte[] encodePng(OffscreenRenderer peer);

    private static native byte[] encodeHardcopy(
            OffscreenRenderer peer, HardcopySettings settings, int width, int height, int format);

    private static native void connectInfo(RendererInfo info);

    private static native String describeDriver(OffscreenRenderer peer);

    private static native void getUploadCounts(OffscreenRenderer peer, int[] out);
}
