package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Temperature of the sea surface in January",
        text = "A map of the world by longitude and latitude. The continents, and a part of the southern "
                + "Pacific without data, are holes in the mesh.",
        pages = {"common-tasks", "plot-data-format"})
public final class SeaTemperature implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // `PlotFile` reads the file without scaling its values, and the producer makes the record from its arrays. So
        // the legend shows degrees, which a plot that the library reads itself would not have.
        PlotFile file = PlotFile.read(studio.data("sea_temperature_2d.txt"));
        PostDataGroup sea = new PostDataGroup()
                .coordinates(file.coordinates()[0], file.coordinates()[1])
                .elements(file.triangles())
                .data(file.data());
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record =
                        new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0).addGroup(sea).build()) {
            plot.setColorTable("inferno", studio.colors("inferno"), true);
            plot.fillPlot(record);
            studio.size(1200, 675);
            studio.nameAxes("Longitude in degrees", "Latitude in degrees");
            studio.show(plot, "Temperature in \\degree C").flat();
            studio.save("Warm water is bright. A unit has the same length on both axes of a flat view, unless the "
                    + "camera is set up differently.");
        }
    }
}
