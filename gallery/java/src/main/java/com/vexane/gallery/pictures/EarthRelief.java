package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Relief of the earth",
        text = "Heights are drawn 30 times too high. A symmetric legend puts sea level into the middle of the "
                + "table, where blue changes to green.")
public final class EarthRelief implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("earth_relief_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d()) {
            plot.setColorTable("relief", studio.colors("relief"), true);
            plot.setSymmetricColorTable(true);
            plot.fillPlot(record);
            studio.hideAxes();
            studio.show(plot, "Height in m");
            studio.view(75, 20).save("Asia and the Indian Ocean.");
            studio.view(-75, 5).save("The Americas.");
        }
    }
}
