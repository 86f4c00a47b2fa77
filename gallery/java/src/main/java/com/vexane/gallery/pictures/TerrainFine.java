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

@About(title = "One corner in full detail",
        text = "One corner of the range at a higher resolution. Colour and height come from different data: "
                + "the slope and the elevation.",
        pages = {"vertex-layouts", "plot-data-format"})
public final class TerrainFine implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // 70000 points are more than 16 bits can count. The fill notices that and makes an index buffer of 32 bits;
        // smaller plots have 16 bits and half the memory.
        Map<DataRole, Integer> roles = Map.of(DataRole.COLOR, 0, DataRole.HEIGHT, 1);
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = studio.read("terrain_fine_2d.txt", PlotKind.SURFACE_2D, roles)) {
            plot.setColorTable("plasma", studio.colors("plasma"), true);
            plot.fillPlot(record);

            // A fill makes the highest point as high as the map is wide. The height scale reduces that until a
            // unit, which is a kilometre along the map, is 200 m upwards.
            double[][] bounds = record.getBounds();
            double width = 0.5 * (bounds[0][1] - bounds[0][0] + bounds[1][1] - bounds[1][0]);
            plot.setHeightScale((float) (record.getDataMax(0)[1] / (200 * width)));
            studio.nameAxes("x in km", "y in km", "z in 200 m");
            studio.show(plot, "Slope, 1 being the steepest").view(-120, 40);
            studio.save("Flanks are bright and valley floors dark, on a surface that is raised to five times the "
                    + "true heights.");
        }
    }
}
