package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotRibbon3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Streamlines of the wind as ribbons",
        text = "The same streamlines as bands that lie flat on the globe.",
        pages = "plots/vector-plots")
public final class WindRibbons implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // A ribbon needs to know how it is turned. The record has two directions at each point: across the band, and
        // its normal. `Globe.streamlines` computes both.
        try (Globe globe = new Globe(studio);
                PostDataObject record = Globe.streamlines(studio, 0.014);
                SceneGraphPlotRibbon3d lines = new SceneGraphPlotRibbon3d(2)) {
            studio.size(960, 800);
            globe.show(studio);
            lines.setColorTable("plasma", studio.colors("plasma"), true);
            lines.fillPlot(record);
            studio.show(lines, "Speed of the wind in m/s");
            studio.view(-75, 5);
            studio.save("Bands are wider than tubes of the same thickness and show how streamlines run together. Both "
                    + "faces are lit.");
        }
    }
}
