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
        text = "The same file with a height role: the elevation raises the surface and colours it as well. "
                + "Heights are kept in metres by the reader, so the legend shows metres. A plot makes its relief as "
                + "high as it is wide; the height scale takes four fifths of that back without a refill, to about "
                + "six times the truth.")
public final class TerrainRaised implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        Map<DataRole, Integer> roles = Map.of(DataRole.COLOR, 1, DataRole.HEIGHT, 1);
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = studio.read("terrain_2d.txt", PlotKind.SURFACE_2D, roles)) {
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.fillPlot(record);
            plot.setHeightScale(0.2f);
            studio.nameAxes("x in km", "y in km", "z, enlarged");
            studio.show(plot, "Elevation in m").view(-60, 35).save();
        }
    }
}
