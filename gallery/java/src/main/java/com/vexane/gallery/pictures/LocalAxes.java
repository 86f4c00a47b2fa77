package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotPrincipal;
import com.vexane.graphics3d.SceneGraphPlotTube3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

@About(title = "Coordinate systems along a helix",
        text = "Local coordinate systems at points of a helix.",
        pages = "plots/vector-plots")
public final class LocalAxes implements Picture {
    private static final int FRAMES = 24;
    private static final int STEPS = 8;
    private static final double SLOPE = 0.25;

    @Override
    public void draw(Studio studio) throws IOException {
        // Tangent, normal and binormal of the helix are known in closed form. Every eighth point gets a coordinate
        // system.
        int count = FRAMES * STEPS;
        double[][] line = new double[3][count];
        double[][] points = new double[3][FRAMES];
        double[][][] axes = new double[3][3][FRAMES];
        double unit = Math.hypot(1, SLOPE);
        for (int i = 0; i < count; ++i) {
            double t = 4 * Math.PI * i / count;
            double c = Math.cos(t);
            double s = Math.sin(t);
            double[][] frame = {
                {-s / unit, c / unit, SLOPE / unit}, {-c, -s, 0}, {SLOPE * s / unit, -SLOPE * c / unit, 1 / unit}};
            double[] position = {c, s, SLOPE * t};
            for (int component = 0; component < 3; ++component) {
                line[component][i] = position[component];
                if (i % STEPS == 0) {
                    points[component][i / STEPS] = position[component];
                    for (int axis = 0; axis < 3; ++axis) {
                        axes[axis][component][i / STEPS] = frame[axis][component];
                    }
                }
            }
        }

        // The record has three directions per point and no lengths: all axes are equally long.
        PostDataGroup frames = new PostDataGroup().coordinates(points);
        PostDataBuilder record = new PostDataBuilder(PlotKind.GENERAL).addGroup(frames);
        for (int i = 0; i < 9; ++i) {
            frames.data(axes[i / 3][i % 3]);
            record.role(DataRole.principalDirection(i / 3, i % 3), i);
        }
        double[] radii = new double[count];
        Arrays.fill(radii, 0.02);
        PostDataBuilder helix = new PostDataBuilder(PlotKind.LINES_3D).role(DataRole.COLOR, 0)
                .role(DataRole.RADIUS, 0)
                .addGroup(new PostDataGroup().coordinates(line).polylineElements(count).data(radii));

        // The content `COORDINATE_SYSTEMS` draws one arrow per axis where principal values have pairs. Without data for
        // colours, the axes have those at the start, in the middle and at the end of the table.
        try (SceneGraphPlotPrincipal plot =
                        new SceneGraphPlotPrincipal(3, SceneGraphPlotPrincipal.Content.COORDINATE_SYSTEMS, 1);
                SceneGraphPlotTube3d tube = new SceneGraphPlotTube3d(2);
                PostDataObject systems = record.build();
                PostDataObject lines = helix.build()) {
            studio.size(900, 800);
            plot.setColorTable("red, green, blue", new double[][] {{0.9, 0.1, 0.1}, {0.1, 0.7, 0.1}, {0.1, 0.2, 0.9}},
                    false);
            plot.setShowLegend(false);
            plot.fillPlot(systems);
            tube.setColor(0x909090);
            tube.fillPlot(lines);
            studio.nameAxes("x in cm", "y in cm", "z in cm");
            studio.show(tube, "").show(plot, "Local axes of a helix");
            studio.view(-55, 30);
            studio.save("The red arrows point along the helix, the green ones towards its axis, and the blue ones at "
                    + "right angles to both.");
        }
    }
}
