package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSphere3d;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "A week of earthquakes",
        text = "One sphere per earthquake of magnitude 1 to 6.4. The radius grows with the magnitude, "
                + "the colour shows the depth. Spheres are round however large they are drawn.")
public final class Earthquakes implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        try (SceneGraphPlotSurface3d globe = new SceneGraphPlotSurface3d(1);
                SceneGraphPlotSphere3d spheres = new SceneGraphPlotSphere3d(2);
                PostDataObject relief = PlotFile.read(studio.data("earth_relief_3d.txt")).surface3d();
                PostDataObject record = Globe.earthquakes(studio)) {
            globe.fillPlot(relief);
            globe.setColor(0xb8c4c8);
            globe.setShowLegend(false);
            spheres.setColorTable("inferno", studio.colors("inferno"), true);
            spheres.setReverseColorTable(true);
            spheres.fillPlot(record);
            studio.hideAxes();
            studio.show(globe, "").show(spheres, "Depth in km").view(-115, 25).save("North America.");
            studio.view(150, -5).save("The western Pacific.");
        }
    }
}
