package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotRibbon3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Streamlines of the wind as ribbons",
        text = "Bands that lie flat on the globe: their directions and normals are data of the record. Both faces are "
                + "lit.")
public final class WindRibbons implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        try (Globe globe = new Globe(studio);
                PostDataObject record = Globe.streamlines(studio, 0.014);
                SceneGraphPlotRibbon3d lines = new SceneGraphPlotRibbon3d(2)) {
            globe.show(studio);
            lines.setColorTable("plasma", studio.colors("plasma"), true);
            lines.fillPlot(record);
            studio.show(lines, "Speed of the wind in m/s");
            studio.view(-75, 5).save();
        }
    }
}
