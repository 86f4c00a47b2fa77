package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Map;

@About(title = "Slopes of a mountain range",
        text = "A file in the text plot format, read by the reader of the library and drawn as a flat map "
                + "of 30 by 32 km.",
        pages = {"first-picture", "plot-data-format"})
public final class TerrainFlat implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // A record holds points, triangles and arrays of data. The role `COLOR` names the array that colours the plot:
        // here it is the first one, the slope. Plots and records own native memory, so a `try` statement closes them.
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = studio.read("terrain_2d.txt", PlotKind.SURFACE_2D, Map.of(DataRole.COLOR, 0))) {
            plot.setColorTable("magma", studio.colors("magma"), true);
            plot.fillPlot(record);
            studio.size(960, 800);
            studio.nameAxes("x in km", "y in km");
            studio.show(plot, "Slope, 1 being the steepest").flat();
            studio.save("Steep slopes are bright, level ground is dark. The reader scales the data of a file to the "
                    + "range 0 to 1, so the legend shows fractions of the steepest slope, which is 35 degrees.");
        }
    }
}
