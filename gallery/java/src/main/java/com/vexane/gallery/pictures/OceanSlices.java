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
        text = "Temperature on six meridians, with the outline of each section: the sea floor and "
                + "the islands. The producer computes the outlines from the triangles.")
public final class OceanSlices implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
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
            studio.show(plot, "Temperature in \\degree C").view(-50, 25).save();
        }
    }
}
