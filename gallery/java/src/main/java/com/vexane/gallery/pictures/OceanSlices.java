package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSlice3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Sections through the Pacific",
        text = "The temperature of the Pacific on six meridians, each with its outline: the sea floor and "
                + "the islands.",
        pages = "plots/scalar-plots")
public final class OceanSlices implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The file holds all sections; `split` separates them by their first coordinate, so that each becomes a group.
        // The producer computes the normals, and the outlines from edges that only one triangle has.
        PlotFile file = PlotFile.read(studio.data("ocean_slices.txt"));
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0);
        for (PlotFile slice : file.split(file.coordinates()[0])) {
            builder.addGroup(new PostDataGroup().coordinates(slice.coordinates()).elements(slice.triangles())
                    .computeNormals().computeOutline().data(slice.data()));
        }
        try (SceneGraphPlotSlice3d plot = new SceneGraphPlotSlice3d(1);
                PostDataObject record = builder.build()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            studio.nameAxes("Longitude in degrees", "Latitude in degrees", "z in 100 m");
            studio.show(plot, "Temperature in \\degree C").view(-50, 25);
            studio.save("Warm water is a thin layer at the surface. The outlines follow the steps of the sea floor in "
                    + "the data.");
        }
    }
}
