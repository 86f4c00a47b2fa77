package com.vexane.gallery;

import com.vexane.graphics3d.DirectionLightSource;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.graphics3d.SceneLight;
import com.vexane.graphics3d.TextFormat;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import com.vexane.renderer.OffscreenRenderer;
import java.nio.file.Path;

/** The first picture from Java: a ripple over a square, raised and coloured by its height. */
public final class FirstPicture {
    private static final int SIDE = 201;

    public static void main(String[] arguments) throws Exception {
        double[] x = new double[SIDE * SIDE];
        double[] y = new double[SIDE * SIDE];
        double[] height = new double[SIDE * SIDE];
        for (int i = 0; i < x.length; ++i) {
            x[i] = (i % SIDE - SIDE / 2) * 0.1;
            y[i] = (i / SIDE - SIDE / 2) * 0.1;
            double r = Math.hypot(x[i], y[i]);
            height[i] = r == 0 ? 1 : Math.sin(2 * r) / (2 * r);
        }
        PostDataGroup square = new PostDataGroup().coordinates(x, y).gridElements(SIDE, SIDE).data(height);
        double[][] colors = {{0.19, 0.07, 0.48}, {0.13, 0.57, 0.55}, {0.99, 0.91, 0.14}};
        try (PostDataObject record = new PostDataBuilder(PlotKind.SURFACE_2D)
                        .role(DataRole.COLOR, 0).role(DataRole.HEIGHT, 0).addGroup(square).build();
                Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneLight light = SceneLight.connect(scene);
                DirectionLightSource lamp = DirectionLightSource.connect(light, light.createDirectionLight());
                SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                OffscreenRenderer renderer = OffscreenRenderer.create(1600, 1000, 4)) {
            root.setChild(group);
            group.addPlot(plot);
            plot.setColorTable("night to sun", colors, true);
            plot.fillPlot(record);
            plot.setHeightScale(0.3f);
            plot.setTitle(TextFormat.MARKUP, "\\psi(r) = sin 2r / 2r");
            light.setAmbientIntensity(0.4f);
            lamp.setFromDirection(false, -1, 1, 4);
            lamp.setIntensity(0.6f);
            lamp.setActive(true);
            renderer.setScene(scene);
            renderer.viewFrom(-50, 30);
            renderer.draw();
            renderer.writePng(Path.of(arguments.length > 0 ? arguments[0] : "first-picture.png"));
            group.removeAllPlots();
        }
    }
}
