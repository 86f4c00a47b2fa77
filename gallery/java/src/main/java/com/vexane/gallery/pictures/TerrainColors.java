package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

@About(title = "Colours of a plot that is filled once",
        text = "Legend limits, a symmetric table, a reversed table and a value restriction are a few "
                + "numbers stored beside the buffers. All these pictures come from one fill: no buffer is "
                + "built or loaded again between them.",
        pages = {"common-tasks", "change-numbers"})
public final class TerrainColors implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The data are the differences from the mean elevation, so that zero has a meaning. The producer makes a record
        // from arrays of the program; it does not scale them.
        PlotFile file = PlotFile.read(studio.data("terrain_2d.txt"));
        double[] x = file.coordinates()[0];
        double[] y = file.coordinates()[1];
        double[] height = file.coordinates()[2];
        double mean = Arrays.stream(height).average().orElseThrow();
        double[] difference = Arrays.stream(height).map(h -> h - mean).toArray();
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = new PostDataBuilder(PlotKind.SURFACE_2D)
                        .role(DataRole.COLOR, 0)
                        .addGroup(new PostDataGroup().coordinates(x, y).elements(file.triangles()).data(difference))
                        .build()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            studio.size(960, 800);
            studio.nameAxes("x in km", "y in km");
            studio.show(plot, "Height above the mean in m").flat();
            studio.save("As filled: the legend covers the range of the data. Grey, the middle of the table, is not the "
                    + "mean, because the peaks are farther from it than the valleys.");

            // A symmetric table has zero in its middle. The limits of the legend become the same above and below.
            plot.setSymmetricColorTable(true);
            studio.save("Symmetric: red is above the mean, blue below, and grey is the mean.");

            // Narrower limits spend the colours on the values of interest.
            plot.setLegendLimits(-200, 200);
            studio.save("A legend from \u2212200 to 200 m: values beyond the limits have the colours of the ends.");

            // The order of the table can be reversed.
            plot.setReverseColorTable(true);
            studio.save("The same limits with the table reversed.");

            // A value restriction hides everything outside a range. It cuts through triangles instead of leaving out
            // whole ones.
            plot.setReverseColorTable(false);
            plot.setValueRestrictions(0, plot.getValueMax());
            studio.save("Restricted to values above the mean: the border follows the level exactly. What is hidden is "
                    + "empty in the legend, also the triangle for values beyond its lower end.");
        }
    }
}
