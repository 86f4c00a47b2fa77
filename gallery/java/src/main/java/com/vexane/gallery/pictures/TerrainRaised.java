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

@About(title = "The same mountains, raised",
        text = "The same file with a height role: the elevation raises the surface and also colours it.",
        pages = {"plot-data-format", "common-tasks"})
public final class TerrainRaised implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The second array of the file is the elevation. The reader keeps heights in metres, so the legend shows metres
        // too.
        Map<DataRole, Integer> roles = Map.of(DataRole.COLOR, 1, DataRole.HEIGHT, 1);
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = studio.read("terrain_2d.txt", PlotKind.SURFACE_2D, roles)) {

            // A fill makes the relief as high as the plot is wide. The height scale reduces that to a fifth without
            // another fill, which is about six times the true height. The z axis still has the elevation in metres: the
            // values of the plot are its heights.
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.fillPlot(record);
            plot.setHeightScale(0.2f);
            studio.nameAxes("x in km", "y in km", "z in m");
            studio.show(plot, "Elevation in m").view(-60, 35);
            studio.save("The range from the south, with ridges in yellow and valleys in blue. `view` takes the "
                    + "direction to look from and fits the whole scene into the picture.");
        }
    }
}
