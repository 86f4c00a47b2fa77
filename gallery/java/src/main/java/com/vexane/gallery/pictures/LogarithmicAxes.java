package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "A flat view with both axes logarithmic",
        text = "The gain of a low-pass filter of second order over frequency and quality factor, in a flat "
                + "view.",
        section = Section.VIEWS,
        pages = {"common-tasks", "plots/graph-plots"})
public final class LogarithmicAxes implements Picture {
    private static final int COLUMNS = 401;
    private static final int ROWS = 201;

    @Override
    public void draw(Studio studio) throws IOException {
        // On logarithmic axes a surface holds the logarithms of its coordinates, so the data are computed on a grid of
        // logarithms.
        double[] logFrequency = new double[COLUMNS * ROWS];
        double[] logQuality = new double[COLUMNS * ROWS];
        double[] gain = new double[COLUMNS * ROWS];
        for (int i = 0; i < gain.length; ++i) {
            logFrequency[i] = 1 + 4.0 * (i % COLUMNS) / (COLUMNS - 1);
            logQuality[i] = -1 + 2.0 * (i / COLUMNS) / (ROWS - 1);
            double ratio = Math.pow(10, logFrequency[i]) / 1000;
            double real = 1 - ratio * ratio;
            double imaginary = ratio / Math.pow(10, logQuality[i]);
            gain[i] = -20 * Math.log10(Math.hypot(real, imaginary));
        }
        PostDataGroup map = new PostDataGroup()
                .coordinates(logFrequency, logQuality)
                .gridElements(COLUMNS, ROWS)
                .data(gain);

        // The axes are set to be logarithmic and label positions by their values. The scales of both axes are
        // independent of each other, and the limits of the view are logarithms too.
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record =
                        new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0).addGroup(map).build()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.setSymmetricColorTable(true);
            plot.fillPlot(record);
            plot.setLegendLimits(-40, 40);
            studio.size(1200, 800);
            studio.axes().setXAxisLog(true);
            studio.axes().setYAxisLog(true);
            studio.nameAxes("Frequency in Hz", "Quality factor");
            studio.show(plot, "Gain in dB");
            studio.camera2d().setPreserveAspectRatio(false);
            studio.flat();
            studio.camera2d().setViewLimits(0.5f, 5.5f, -1.25f, 1.25f);
            studio.save("Far below 1000 Hz the gain is 0 dB (grey), far above it falls by 40 dB per decade (blue). "
                    + "Filters of a high quality factor have a resonance between (red); those of a low one begin to "
                    + "fall off earlier.");
        }
    }
}
