package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotIsoSurface3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Isotherms of the Atlantic",
        text = "Surfaces of equal temperature, of 5, 10, 15, 20 and 25 degrees, below the Atlantic. Each "
                + "has a stripe in the legend.",
        pages = "plots/scalar-plots")
public final class OceanIsotherms implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // Each level is a group of the record with its triangles; one value per group, with the role `ISO_LEVEL`, gives
        // its temperature. The producer computes the normals.
        PlotFile file = PlotFile.read(studio.data("ocean_isotherms.txt"));
        PostDataBuilder builder = new PostDataBuilder(PlotKind.ISO_SURFACE).role(DataRole.ISO_LEVEL, 0);
        for (PlotFile level : file.split(file.data())) {
            builder.addGroup(new PostDataGroup().coordinates(level.coordinates()).elements(level.triangles())
                    .computeNormals().data(new double[] {level.data()[0]}));
        }
        try (SceneGraphPlotIsoSurface3d plot = new SceneGraphPlotIsoSurface3d(1);
                PostDataObject record = builder.build()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            plot.setLegendLevels(5, 10, 15, 20, 25);
            studio.nameAxes("Longitude in degrees", "Latitude in degrees", "z in 100 m");
            studio.show(plot, "Temperature in \\degree C").view(-60, 22);
            studio.save("All five levels. The warmest water is at the top and hides most of the others.");

            // Levels are hidden and shown by their numbers, without a fill.
            plot.setSurfaceShown(3, false);
            plot.setSurfaceShown(4, false);
            studio.save("Without the two warmest levels. The legend still has all of them.");
        }
    }
}
