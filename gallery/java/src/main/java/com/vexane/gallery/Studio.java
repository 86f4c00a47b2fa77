package com.vexane.gallery;

import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.Camera3d;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.DirectionLightSource;
import com.vexane.graphics3d.GridBoxSettings;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphGroup;
import com.vexane.graphics3d.SceneGraphObject;
import com.vexane.graphics3d.SceneGraphPlot;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.graphics3d.SceneLight;
import com.vexane.graphics3d.SceneSettings;
import com.vexane.graphics3d.TextFormat;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataObject;
import com.vexane.renderer.OffscreenRenderer;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;

/**
 * Where a program of the gallery draws: a scene with one plot group and a light, a view of it with its settings, the
 * folders of data and pictures.
 */
public final class Studio implements AutoCloseable {
    private static final int SAMPLES = 4;
    private static final int TITLE_SIZE = 15;
    private static final float INDICATOR_LENGTH = 10; // the initial one
    /** The bit of axes in the render mask. */
    private static final int RENDER_AXES = 2;

    private final Path root;
    private final Path output;
    private final Class<? extends Picture> program;
    private final float scale;
    private final OffscreenRenderer renderer;
    /** Plots and objects; null as long as there are plots only. */
    private SceneGraphGroup objects;
    private final Scene scene = new Scene();
    private final SceneGraphPlotGroup group = new SceneGraphPlotGroup();
    private final Canvas3dSettings canvas;
    private final Camera3d camera3d;
    private final Camera2d camera2d;
    private final GridBoxSettings grid;
    private final AxisSetup axes;
    private final SceneSettings settings;
    private final SceneLight light;
    private final DirectionLightSource lamp;
    private final List<Shot> shots = new ArrayList<>();

    /**
     * A picture that was saved.
     *
     * @param file its path
     * @param caption what one sees and what the code shows; may be empty
     * @param line the line of the program that saved it
     * @param documents what it shows in other formats
     */
    public record Shot(Path file, String caption, int line, List<Document> documents) {}

    /**
     * A picture in another format.
     *
     * @param file its path
     * @param line the line of the program that wrote it
     */
    public record Document(Path file, int line) {}

    Studio(Path root, Path output, Class<? extends Picture> picture, int width, int height) {
        this.root = root;
        this.output = output;
        this.program = picture;
        try (SceneGraphRoot sceneRoot = SceneGraphRoot.connect(scene)) {
            sceneRoot.setChild(group);
        }
        scale = (float) width / Gallery.WIDTH;
        renderer = OffscreenRenderer.create(width, height, SAMPLES);
        renderer.setScene(scene);
        renderer.setStudioLight(true);
        renderer.setFeatureEdges(true);
        canvas = Canvas3dSettings.connect(renderer);
        camera3d = Camera3d.connect(canvas);
        camera2d = Camera2d.connect(canvas);
        grid = GridBoxSettings.connect(canvas);
        axes = AxisSetup.connect(canvas);
        settings = SceneSettings.connect(renderer);
        light = SceneLight.connect(scene);
        lamp = DirectionLightSource.connect(light, light.createDirectionLight());
        settings.setFont(SceneSettings.Text.TITLE, "default", TITLE_SIZE);
        camera2d.resetAxisViewScales();
        light.setAmbientIntensity(0.42f);
        lamp.setFromDirection(false, -0.25f, 0.35f, 1);
        lamp.setIntensity(0.62f);
        lamp.setSpecularIntensity(0.3f);
        lamp.setActive(true);
    }

    /**
     * A file of sample data.
     *
     * @param file its name
     * @return its path
     */
    public Path data(String file) {
        return root.resolve("data").resolve(file);
    }

    /**
     * Reads a file of sample data.
     *
     * @param file its name
     * @param kind the kind of plot that the data are for
     * @param roles what each of its arrays is for
     * @return a record, which the caller closes
     * @throws IOException if the file cannot be read
     */
    public PostDataObject read(String file, PlotKind kind, Map<DataRole, Integer> roles) throws IOException {
        return PostDataObject.read(kind, roles, data(file));
    }

    /**
     * The rows of a colour table.
     *
     * @param table its name
     * @return red, green and blue from 0 to 1 in each row
     * @throws IOException if there is no such table
     */
    public double[][] colors(String table) throws IOException {
        List<String> rows = Files.readAllLines(data("colormaps/" + table + ".csv"));
        return rows.stream().skip(1).map(Studio::numbers).toArray(double[][]::new);
    }

    private static double[] numbers(String row) {
        String[] texts = row.split(",");
        double[] values = new double[texts.length];
        for (int i = 0; i < texts.length; ++i) {
            values[i] = Double.parseDouble(texts[i]);
        }
        return values;
    }

    /**
     * Shows a plot, in addition to those shown before.
     *
     * @param plot the plot
     * @param title its title, in markup
     * @return this studio
     */
    public Studio show(SceneGraphPlot plot, String title) {
        plot.setTitle(TextFormat.MARKUP, title);
        group.addPlot(plot);
        return this;
    }

    /**
     * Makes the pictures that follow another size than 1200 by 750 pixels. Drafts of the gallery scale it.
     *
     * @param width pixels
     * @param height pixels
     * @return this studio
     */
    public Studio size(int width, int height) {
        renderer.resize(Math.round(width * scale), Math.round(height * scale));
        return this;
    }

    /**
     * Shows an object, in addition to what is shown before. The scene then has plots and objects side by side, and no
     * title of plots.
     *
     * @param object the object
     * @return this studio
     */
    public Studio show(SceneGraphObject object) {
        if (objects == null) {
            objects = new SceneGraphGroup();
            try (SceneGraphRoot sceneRoot = SceneGraphRoot.connect(scene)) {
                sceneRoot.setChild(objects);
            }
            objects.addChild(group);
        }
        objects.addChild(object);
        return this;
    }

    /**
     * Looks at the whole scene in space.
     *
     * @param azimuth degrees around the z axis, from the x axis
     * @param elevation degrees above the xy plane
     * @return this studio
     */
    public Studio view(double azimuth, double elevation) {
        canvas.setRenderMode(Canvas3dSettings.RenderMode.VIEW_3D);
        renderer.viewFrom(azimuth, elevation);
        return this;
    }

    /**
     * Looks at the whole scene from above, as at a map: a unit has the same length in both directions.
     *
     * @return this studio
     */
    public Studio flat() {
        canvas.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
        renderer.zoomExtents();
        return this;
    }

    /**
     * Looks at graphs: each axis has a scale of its own, so that the lines fill the picture.
     *
     * @return this studio
     */
    public Studio graph() {
        axes.setAxisType(AxisSetup.AxisType.GRAPH);
        camera2d.setPreserveAspectRatio(false);
        camera2d.setAxisViewScalesAuto();
        return flat();
    }

    /**
     * Shows the scene without axes.
     *
     * @return this studio
     */
    public Studio hideAxes() {
        canvas.removeRenderMask(RENDER_AXES);
        return this;
    }

    /**
     * Names the axes of the flat view.
     *
     * @param x what the x axis shows, with its unit
     * @param y what the y axis shows, with its unit
     * @return this studio
     */
    public Studio nameAxes(String x, String y) {
        axes.setXAxisTitle(x);
        axes.setYAxisTitle(y);
        return this;
    }

    /**
     * Names the axes in space. The axis orientation indicator has the same names.
     *
     * @param x what the x axis shows, with its unit
     * @param y what the y axis shows, with its unit
     * @param z what the z axis shows, with its unit
     * @return this studio
     */
    public Studio nameAxes(String x, String y, String z) {
        canvas.setAxisOrientationIndicator(INDICATOR_LENGTH, x, 0xff0000, y, 0x00ff00, z, 0x0000ff);
        return this;
    }

    /**
     * The renderer that draws the pictures.
     *
     * @return the renderer
     */
    public OffscreenRenderer renderer() {
        return renderer;
    }

    /**
     * The scene that the pictures show.
     *
     * @return a peer that the studio closes
     */
    public Scene scene() {
        return scene;
    }

    /**
     * The settings of the view.
     *
     * @return a peer that the studio closes, like those of all that follow
     */
    public Canvas3dSettings canvas() {
        return canvas;
    }

    /**
     * The camera of the view in space.
     *
     * @return a peer
     */
    public Camera3d camera3d() {
        return camera3d;
    }

    /**
     * The camera of the flat view.
     *
     * @return a peer
     */
    public Camera2d camera2d() {
        return camera2d;
    }

    /**
     * The grid box of the view in space, the grid of the flat one.
     *
     * @return a peer
     */
    public GridBoxSettings grid() {
        return grid;
    }

    /**
     * The axes of the flat view.
     *
     * @return a peer
     */
    public AxisSetup axes() {
        return axes;
    }

    /**
     * How the view shows the scene.
     *
     * @return a peer
     */
    public SceneSettings settings() {
        return settings;
    }

    /**
     * The lights of the scene.
     *
     * @return a peer
     */
    public SceneLight light() {
        return light;
    }

    /**
     * The light that every studio has: it is locked to the camera and comes from behind it, at the upper left.
     *
     * @return a peer
     */
    public DirectionLightSource lamp() {
        return lamp;
    }

    /**
     * Draws and saves a picture whose caption is the title of its program.
     *
     * @throws IOException if it cannot be written
     */
    public void save() throws IOException {
        save("");
    }

    /**
     * Draws and saves a picture.
     *
     * @param caption what one sees and what the code shows
     * @throws IOException if it cannot be written
     */
    public void save(String caption) throws IOException {
        renderer.draw();
        renderer.writePng(file(caption));
    }

    /**
     * The file of the next picture of a program, for pictures that are not written by {@code save}.
     *
     * @param caption what one sees and what the code shows
     * @return the file to write
     */
    public Path file(String caption) {
        String number = shots.isEmpty() ? "" : "-" + (shots.size() + 1);
        Path file = output.resolve(Example.fileName(program.getSimpleName()) + number + ".png");
        shots.add(new Shot(file, caption, currentLine(), new ArrayList<>()));
        return file;
    }

    /**
     * A file beside the last picture, which shows the same in another format. The page links to it, and shows it if it is
     * an SVG file.
     *
     * @param suffix the suffix of its name
     * @return the file to write
     */
    public Path document(String suffix) {
        Shot shot = shots.get(shots.size() - 1);
        Path file = shot.file().resolveSibling(shot.file().getFileName().toString().replace(".png", suffix));
        shot.documents().add(new Document(file, currentLine()));
        return file;
    }

    /** The line of the program that is being run. */
    private int currentLine() {
        return StackWalker.getInstance().walk(frames -> frames
                .filter(frame -> frame.getClassName().equals(program.getName()))
                .mapToInt(StackWalker.StackFrame::getLineNumber).findFirst().orElse(Integer.MAX_VALUE));
    }

    List<Shot> shots() {
        return shots;
    }

    /** Plots return their texture handles when they leave the group, so they leave it here. */
    @Override
    public void close() {
        if (!group.isClosed()) {
            group.removeAllPlots();
        }
        if (objects != null) {
            objects.close();
        }
        List.of(lamp, light, settings, axes, grid, camera2d, camera3d, canvas, renderer, group, scene)
                .forEach(peer -> peer.close());
    }
}
