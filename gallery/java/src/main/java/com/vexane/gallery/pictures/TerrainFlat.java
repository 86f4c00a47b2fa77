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
        text = "A file in the text plot format, read by the library's reader and drawn flat: 30 by 32 km. The "
                + "reader scales a file's data to 0 to 1, so the legend shows shares of the steepest slope, which "
                + "is 35 degrees.")
public final class TerrainFlat implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = studio.read("terrain_2d.txt", PlotKind.SURFACE_2D, Map.of(DataRole.COLOR, 0))) {
            plot.setColorTable("magma", studio.colors("magma"), true);
            plot.fillPlot(record);
            studio.nameAxes("x in km", "y in km");
            studio.show(plot, "Slope, 1 being the steepest").flat().save();
        }
    }
}
