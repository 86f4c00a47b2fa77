package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Relief of the earth",
        text = "The heights of the earth, 30 times exaggerated, as a surface in space with normals.",
        pages = "common-tasks")
public final class EarthRelief implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The table `relief` changes from blue to green in its middle. A symmetric legend puts the sea level there.
        PlotFile file = PlotFile.read(studio.data("earth_relief_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d()) {
            plot.setColorTable("relief", studio.colors("relief"), true);
            plot.setSymmetricColorTable(true);
            plot.fillPlot(record);
            studio.size(960, 800);
            studio.hideAxes();
            studio.show(plot, "Height in m");
            studio.view(75, 20);
            studio.save("Asia and the Indian Ocean. Land is green to white, sea is blue.");

            // The same scene from another side.
            studio.view(-75, 5);
            studio.save("The Americas, with the Andes along the west coast.");
        }
    }
}
