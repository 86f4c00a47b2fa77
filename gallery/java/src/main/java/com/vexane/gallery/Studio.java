package com.vexane.gallery;

import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphPlot;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.graphics3d.TextFormat;
import com.vexane.renderer.OffscreenRenderer;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;

/** Where a program of the gallery draws: a scene with one plot group, the view, the folders of data and pictures. */
public final class Studio implements AutoCloseable {
    private static final double[] DEFAULT_VIEW = {-50, 30};
    private static final int FONT_SIZE = 18;

    private final Path root;
    private final Path output;
    private final String name;
    private final OffscreenRenderer renderer;
    private final Scene scene = new Scene();
    private final SceneGraphPlotGroup group = new SceneGraphPlotGroup();
    private final List<Shot> shots = new ArrayList<>();

    /**
     * A picture that was saved.
     *
     * @param file where it lies
     * @param caption what it shows beside the others of its program; may be empty
     */
    public record Shot(Path file, String caption) {}

    Studio(Path root, Path output, Class<? extends Picture> picture, OffscreenRenderer renderer) {
        this.root = root;
        this.output = output;
        this.name = picture.getSimpleName().replaceAll("(?<=[a-z0-9])(?=[A-Z])", "-").toLowerCase(Locale.ROOT);
        this.renderer = renderer;
        try (SceneGraphRoot sceneRoot = SceneGraphRoot.connect(scene)) {
            sceneRoot.setChild(group);
        }
        renderer.setScene(scene);
        renderer.setFont("default", FONT_SIZE);
        renderer.setDecoration(true, true, true);
        view(DEFAULT_VIEW[0], DEFAULT_VIEW[1]);
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
     * Shows a plot, beside those shown before.
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
     * Looks at the scene from another side.
     *
     * @param azimuth degrees around the z axis, from the x axis on
     * @param elevation degrees above the xy plane
     * @return this studio
     */
    public Studio view(double azimuth, double elevation) {
        renderer.setViewDirection(azimuth, elevation);
        return this;
    }

    /**
     * Leaves out the box around the scene.
     *
     * @return this studio
     */
    public Studio withoutBox() {
        renderer.setDecoration(true, true, false);
        return this;
    }

    /**
     * Draws and saves the only picture of a program.
     *
     * @throws IOException if it cannot be written
     */
    public void save() throws IOException {
        save("");
    }

    /**
     * Draws and saves one of several pictures of a program.
     *
     * @param caption what this one shows
     * @throws IOException if it cannot be written
     */
    public void save(String caption) throws IOException {
        Path file = output.resolve(name + (caption.isEmpty() ? "" : "-" + (shots.size() + 1)) + ".png");
        renderer.draw();
        renderer.writePng(file);
        shots.add(new Shot(file, caption));
    }

    List<Shot> shots() {
        return shots;
    }

    /** Plots give their texture handles back when they leave the group, so they leave it here. */
    @Override
    public void close() {
        renderer.setScene(null);
        if (!group.isClosed()) {
            group.removeAllPlots();
        }
        group.close();
        scene.close();
    }
}
