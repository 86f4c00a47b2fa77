package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotArrow3d;
import com.vexane.graphics3d.SceneGraphPlotArrow;
import com.vexane.graphics3d.SceneGraphPlotSphere3d;
import com.vexane.graphics3d.SceneGraphPlotTube3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Relief, wind and earthquakes",
        text = "Four plots in one scene: the relief, the wind as arrows and as streamlines, and earthquakes "
                + "as spheres.",
        section = Section.RECIPES,
        pages = {"plots/vector-plots", "plots/point-and-line-plots", "common-tasks"})
public final class EarthTogether implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // Plots have numbers by which a program finds them again. Each has its own colour table and legend.
        try (Globe globe = new Globe(studio); SceneGraphPlotArrow3d arrows = new SceneGraphPlotArrow3d(2);
                SceneGraphPlotTube3d tubes = new SceneGraphPlotTube3d(3);
                SceneGraphPlotSphere3d spheres = new SceneGraphPlotSphere3d(4);
                PostDataObject wind = Globe.wind(studio);
                PostDataObject streamlines = Globe.streamlines(studio, 0.004);
                PostDataObject earthquakes = Globe.earthquakes(studio)) {
            studio.size(1120, 800);
            globe.show(studio);
            arrows.fillPlot(wind);
            arrows.setScalingType(SceneGraphPlotArrow.Scaling.NORMALIZED);
            arrows.setCommonArrowScale(0.5f);
            arrows.setColor(0xffffff);
            tubes.setColorTable("plasma", studio.colors("plasma"), true);
            tubes.fillPlot(streamlines);
            spheres.setColorTable("inferno", studio.colors("inferno"), true);
            spheres.setReverseColorTable(true);
            spheres.fillPlot(earthquakes);
            studio.show(arrows, "").show(tubes, "Speed of the wind in m/s").show(spheres, "Depth in km");
            studio.view(-115, 15);
            studio.save("White arrows show the direction of the wind, tubes its path and speed; spheres are larger for "
                    + "stronger earthquakes and darker for deeper ones. The legends are those of the plots with "
                    + "colours.");
        }
    }
}
