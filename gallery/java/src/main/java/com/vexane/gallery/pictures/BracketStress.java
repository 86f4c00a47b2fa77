package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Stress in a loaded bracket",
        text = "Von Mises stress on the surface of a bracket. Its plate is bolted to a wall, and the load "
                + "is in the bush.",
        pages = {"common-tasks", "first-picture"})
public final class BracketStress implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // A few points at the bolts have much higher stress than the rest. If the legend covered them, most of the part
        // would have one colour, so it ends at the value that 99.5 percent of the points stay below.
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            plot.setLegendLimits(0, file.percentile(0.995));
            studio.size(1120, 800);
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(plot, "Stress \\sigma_{v} in MPa").view(-35, 25);
            studio.save("Stress is highest at the upper bolts and along the flange. The extremes of the data are above "
                    + "and below the legend; the title is in markup, which has Greek letters and subscripts.");
        }
    }
}
