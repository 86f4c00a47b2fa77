package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotArrow;
import com.vexane.graphics3d.SceneGraphPlotArrow3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Wind over the earth",
        text = "The monthly mean of the wind at the surface: a vector at each point, drawn as a shaded arrow.",
        pages = "plots/vector-plots")
public final class WindArrows implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // `Globe` is a helper of several programs: the relief without a legend, and records of wind and earthquakes.
        // The record of the wind has the three components of the vectors, and the speed as the colour.
        try (Globe globe = new Globe(studio); SceneGraphPlotArrow3d plot = new SceneGraphPlotArrow3d(2);
                PostDataObject record = Globe.wind(studio)) {
            plot.fillPlot(record);
            plot.setColorTable("plasma", studio.colors("plasma"), true);
            plot.setHeadRadius(0.15f);
            plot.setShaftRadius(0.05f);
            studio.size(960, 800);
            globe.show(studio);
            studio.show(plot, "Speed of the wind in m/s");
            studio.view(-75, 5);
            studio.save("Lengths are proportional to the speed, and strong wind is yellow. A fill makes the longest "
                    + "arrow about as long as the distance between points.");

            // The other scalings map lengths in another way without a fill; `NORMALIZED` makes them equal.
            plot.setScalingType(SceneGraphPlotArrow.Scaling.NORMALIZED);
            plot.setCommonArrowScale(0.6f);
            studio.save("All arrows have the same length and show the direction only. The speed is still visible as "
                    + "the colour.");
        }
    }
}
