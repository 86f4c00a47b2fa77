package com.vexane.gallery;

import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.DirectionLightSource;
import com.vexane.graphics3d.HardcopySettings;
import com.vexane.graphics3d.ResizeBehaviour;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.graphics3d.SceneLight;
import com.vexane.graphics3d.SceneSettings;
import com.vexane.graphics3d.TextItem;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import com.vexane.renderer.OffscreenRenderer;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.Future;

/** Common tasks, each in a few lines and with a picture of its outcome. */
public final class CommonTasks implements AutoCloseable {
    private static final int COLUMNS = 241;
    private static final int ROWS = 121;
    private static final double[][] NIGHT_TO_SUN = {{0.19, 0.07, 0.48}, {0.13, 0.57, 0.55}, {0.99, 0.91, 0.14}};
    private static final double[][] ICE_TO_FIRE = {{0.1, 0.4, 0.9}, {0.9, 0.9, 0.9}, {0.8, 0.2, 0.1}};

    private final Path folder;
    private final Scene scene = new Scene();
    private final SceneGraphPlotGroup group = new SceneGraphPlotGroup();
    private final SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
    private final OffscreenRenderer renderer = OffscreenRenderer.create(800, 500, 4);
    private final Canvas3dSettings canvas = Canvas3dSettings.connect(renderer);
    private final Camera2d camera2d = Camera2d.connect(canvas);
    private final AxisSetup axes = AxisSetup.connect(canvas);
    private final SceneLight light = SceneLight.connect(scene);

    private CommonTasks(Path folder) {
        this.folder = folder;
        try (SceneGraphRoot root = SceneGraphRoot.connect(scene);
                PostDataObject record = ripple(1)) {
            root.setChild(group);
            group.addPlot(plot);
            plot.setColorTable("night to sun", NIGHT_TO_SUN, true);
            plot.fillPlot(record);
            plot.setHeightScale(0.4f);
            renderer.setScene(scene);
        }
    }

    /** A ripple over a rectangle of 12 by 6 units, as colour and height. */
    private static PostDataObject ripple(double wavelength) {
        double[] x = new double[COLUMNS * ROWS];
        double[] y = new double[COLUMNS * ROWS];
        double[] height = new double[COLUMNS * ROWS];
        for (int i = 0; i < x.length; ++i) {
            x[i] = (i % COLUMNS - COLUMNS / 2) * 0.05;
            y[i] = (i / COLUMNS - ROWS / 2) * 0.05;
            height[i] = Math.cos(Math.hypot(x[i], y[i]) / wavelength);
        }
        return record(x, y, height);
    }

    private static PostDataObject record(double[] x, double[] y, double[] values) {
        return new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0).role(DataRole.HEIGHT, 0)
                .addGroup(new PostDataGroup().coordinates(x, y).gridElements(COLUMNS, ROWS).data(values)).build();
    }

    private void draw(String name) throws IOException {
        renderer.draw();
        renderer.writePng(folder.resolve(name));
    }

    private void showIn2d() throws IOException {
        canvas.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
        camera2d.resetAxisViewScales(); // a unit has the same length in x and y
        renderer.zoomExtents();
        draw("flat.png");
    }

    private void fillTheFrame() throws IOException {
        camera2d.setPreserveAspectRatio(false);
        camera2d.setOverrideResizeBehaviour(true, ResizeBehaviour.KEEP); // also if the window or a legend changes
        camera2d.setViewLimits(-6, 6, -3, 3); // these limits exactly, while zoomExtents leaves a margin
        draw("filled.png");
        camera2d.setPreserveAspectRatio(true); // units of equal length again
        camera2d.setOverrideResizeBehaviour(false, ResizeBehaviour.KEEP);
        camera2d.resetAxisViewScales();
        renderer.zoomExtents();
    }

    private void switchBetween2dAnd3d() throws IOException {
        canvas.setRenderMode(Canvas3dSettings.RenderMode.VIEW_3D);
        renderer.viewFrom(-50, 30); // shows the whole scene
        draw("space.png");
        canvas.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
        renderer.zoomExtents(); // shows the whole scene with the camera of the current mode
        draw("flat-again.png");
    }

    private void hideValues() throws IOException {
        plot.setValueRestrictions(0, plot.getValueMax());
        draw("hidden.png");
        plot.resetValueRestrictions();
    }

    private void chooseColors() throws IOException {
        plot.setColorTable("night to sun", ICE_TO_FIRE, true); // the name is in use, so its first colours stay
        draw("same-name.png");
        plot.setColorTable("ice to fire", ICE_TO_FIRE, true);
        draw("colors.png");
        plot.setColorTable("bands of ice and fire", ICE_TO_FIRE, false); // one band of equal colour per row
        draw("bands.png");
        plot.setColorTable("night to sun", NIGHT_TO_SUN, true);
    }

    private void light() throws IOException {
        canvas.setRenderMode(Canvas3dSettings.RenderMode.VIEW_3D);
        light.setAmbientIntensity(0.4f); // light without a direction
        try (DirectionLightSource lamp = DirectionLightSource.connect(light, light.createDirectionLight())) {
            lamp.setFromDirection(false, -1, 1, 4); // moves with the camera; true would fix it in the scene
            lamp.setIntensity(0.6f); // a new light source has intensity 0
            lamp.setActive(true);
        }
        draw("lit.png");
    }

    private void writeHardcopy() throws IOException {
        try (HardcopySettings hardcopy = new HardcopySettings()) {
            int dpi = 300;
            hardcopy.setDpi(dpi);
            hardcopy.setMultisampleSetting(4);
            hardcopy.setAxisShown(true); // axes, legends, title and orientation indicator are off initially
            hardcopy.setLegendsShown(true);
            hardcopy.setFontSize(TextItem.AXIS_TICK, 8); // points on the paper
            hardcopy.setFontSize(TextItem.LEGEND_TICK, 8);
            int width = (int) Math.round(12 / 2.54 * dpi); // 12 by 8 centimetres
            int height = (int) Math.round(8 / 2.54 * dpi);
            renderer.writeHardcopy(folder.resolve("paper.png"), hardcopy, width, height);
        }
    }

    private void computeOnAnotherThread() throws Exception {
        ExecutorService worker = Executors.newSingleThreadExecutor();
        Future<PostDataObject> next = worker.submit(() -> ripple(0.5)); // makes a record and uses no scene
        renderer.draw(); // this thread goes on with the scene
        try (PostDataObject record = next.get()) {
            plot.fillPlot(record);
        }
        worker.shutdown();
        draw("next.png");
    }

    private void useLogarithmicAxes() throws IOException {
        try (PostDataObject record = lowPass()) {
            plot.fillPlot(record); // its coordinates are decimal logarithms
        }
        axes.setXAxisLog(true); // labels the axis with 10, 100, ... at 1, 2, ...
        axes.setYAxisLog(true);
        canvas.setRenderMode(Canvas3dSettings.RenderMode.VIEW_2D);
        camera2d.setPreserveAspectRatio(false);
        camera2d.setOverrideResizeBehaviour(true, ResizeBehaviour.KEEP); // exactly these limits, as above
        camera2d.setViewLimits(1, 5, -1, 1); // 10 to 100000, and 0.1 to 10
        draw("logarithmic.png");
    }

    private void changeTheLegend() throws IOException {
        plot.setLegendLimits(-40, 20); // values beyond them have the colours of the ends
        canvas.setFont(Canvas3dSettings.Text.LEGEND_TICK, "serif", 16); // points on the screen
        try (SceneSettings settings = SceneSettings.connect(renderer)) {
            settings.setShowMinMax(false); // leaves out the smallest and the largest value
            draw("legend.png");
            settings.setShowLegends(false);
            draw("no-legend.png");
        }
    }

    /** The gain in decibels of a filter over the logarithms of frequency and quality. */
    private static PostDataObject lowPass() {
        double[] logFrequency = new double[COLUMNS * ROWS];
        double[] logQuality = new double[COLUMNS * ROWS];
        double[] gain = new double[COLUMNS * ROWS];
        for (int i = 0; i < gain.length; ++i) {
            logFrequency[i] = 1 + 4.0 * (i % COLUMNS) / (COLUMNS - 1);
            logQuality[i] = -1 + 2.0 * (i / COLUMNS) / (ROWS - 1);
            double ratio = Math.pow(10, logFrequency[i]) / 1000;
            gain[i] = -20 * Math.log10(Math.hypot(1 - ratio * ratio, ratio / Math.pow(10, logQuality[i])));
        }
        return record(logFrequency, logQuality, gain);
    }

    /**
     * Does all tasks: {@code CommonTasks [FOLDER]}.
     *
     * @param arguments the folder for the pictures; without one, {@code common-tasks}
     * @throws Exception if a picture cannot be drawn or written
     */
    public static void main(String[] arguments) throws Exception {
        Path folder = Files.createDirectories(Path.of(arguments.length > 0 ? arguments[0] : "common-tasks"));
        try (CommonTasks tasks = new CommonTasks(folder)) {
            tasks.showIn2d();
            tasks.fillTheFrame();
            tasks.switchBetween2dAnd3d();
            tasks.hideValues();
            tasks.chooseColors();
            tasks.light();
            tasks.writeHardcopy();
            tasks.computeOnAnotherThread();
            tasks.useLogarithmicAxes();
            tasks.changeTheLegend();
        }
    }

    @Override
    public void close() {
        group.removeAllPlots();
        List.of(light, axes, camera2d, canvas, renderer, plot, group, scene).forEach(peer -> peer.close());
    }
}
