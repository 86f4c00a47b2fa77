package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotTube3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Streamlines of the wind as tubes",
        text = "Streamlines of the wind, each a tube with round ends, coloured by the speed.",
        pages = "plots/vector-plots")
public final class WindTubes implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The record has polylines: points in their order, and the number of points of each line. The radius is data of
        // the points.
        try (Globe globe = new Globe(studio);
                PostDataObject record = Globe.streamlines(studio, 0.006);
                SceneGraphPlotTube3d lines = new SceneGraphPlotTube3d(2)) {
            studio.size(960, 800);
            globe.show(studio);
            lines.setColorTable("plasma", studio.colors("plasma"), true);
            lines.fillPlot(record);
            studio.show(lines, "Speed of the wind in m/s");
            studio.view(-75, 5);
            studio.save("Trade winds blow towards the equator, and the fastest wind, in yellow, is over the southern "
                    + "ocean.");
        }
    }
}
