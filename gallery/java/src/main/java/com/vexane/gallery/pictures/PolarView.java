package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.Camera2d;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "A polar view",
        text = "The sound pressure around a row of four loudspeakers, by direction and by distance in "
                + "wavelengths.",
        section = Section.VIEWS,
        pages = {"common-tasks", "camera-mathematics"})
public final class PolarView implements Picture {
    private static final int ANGLES = 721;
    private static final int RADII = 241;
    private static final double FARTHEST = 12;

    @Override
    public void draw(Studio studio) throws IOException {
        // The pressure is the sum of four spherical waves, computed on rings around the middle.
        double[] x = new double[ANGLES * RADII];
        double[] y = new double[ANGLES * RADII];
        double[] level = new double[ANGLES * RADII];
        for (int i = 0; i < level.length; ++i) {
            double angle = 2 * Math.PI * (i % ANGLES) / (ANGLES - 1);
            double radius = FARTHEST * (i / ANGLES) / (RADII - 1);
            x[i] = radius * Math.cos(angle);
            y[i] = radius * Math.sin(angle);
            double real = 0;
            double imaginary = 0;
            for (int speaker = 0; speaker < 4; ++speaker) {
                double distance = Math.max(0.25, Math.hypot(x[i], y[i] - 0.7 * (speaker - 1.5)));
                real += Math.cos(2 * Math.PI * distance) / distance;
                imaginary += Math.sin(2 * Math.PI * distance) / distance;
            }
            level[i] = 20 * Math.log10(Math.max(1e-3, Math.hypot(real, imaginary)));
        }

        // `gridElements` makes the triangles of a regular grid; here its rows are rings. The type of the axes and the
        // mode of the camera are both polar, and the limits of the view are radii.
        PostDataGroup disc = new PostDataGroup().coordinates(x, y).gridElements(ANGLES, RADII).data(level);
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record =
                        new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0).addGroup(disc).build()) {
            plot.setColorTable("magma", studio.colors("magma"), true);
            plot.fillPlot(record);
            plot.setLegendLimits(-40, 15);
            studio.size(960, 800);
            studio.nameAxes("", "Distance in wavelengths");
            studio.axes().setAxisType(AxisSetup.AxisType.POLAR);
            studio.show(plot, "Pressure level in dB").flat();
            studio.camera2d().setUseMode(Camera2d.UseMode.POLAR);
            studio.camera2d().setPolarLimits((float) FARTHEST, 0);
            studio.save("The row is vertical. It radiates most to the left and the right, less along its own axis, and "
                    + "hardly at all near 45 degrees.");
        }
    }
}
