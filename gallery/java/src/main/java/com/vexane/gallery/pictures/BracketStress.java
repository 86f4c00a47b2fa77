package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Stress in a loaded bracket",
        text = "Von Mises stress. The load sits in the bush, the plate is bolted to a wall. The legend ends "
                + "where 99.5 percent of the points lie below: a few peaks at the bolts would take most colours "
                + "otherwise.")
public final class BracketStress implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            plot.setLegendLimits(0, file.percentile(0.995));
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(plot, "Stress \\sigma_{v} in MPa").view(-35, 25).save();
        }
    }
}
