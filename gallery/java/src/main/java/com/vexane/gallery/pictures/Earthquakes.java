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
        text = "One sphere per earthquake of magnitude 1 to 6.4. The radius grows with the magnitude, and "
                + "the colour shows the depth.",
        pages = "plots/point-and-line-plots")
public final class Earthquakes implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // Two plots are in one scene: the globe in one colour without a legend, and the spheres. `Globe.earthquakes`
        // makes their record with the roles `COLOR` and `RADIUS`.
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
            studio.size(960, 800);
            studio.hideAxes();
            studio.show(globe, "").show(spheres, "Depth in km").view(-115, 25);
            studio.save("North America, where earthquakes follow the west coast. Most of them are shallow, which is "
                    + "yellow.");

            // The renderer finds the surface of a sphere for each pixel, so spheres are round at every size.
            studio.view(150, -5);
            studio.save("The western Pacific, with deep earthquakes in red and black.");
        }
    }
}
