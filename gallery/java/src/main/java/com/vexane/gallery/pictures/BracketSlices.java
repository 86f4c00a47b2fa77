package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSlice3d;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Sections through the loaded bracket",
        text = "Von Mises stress on ten sections, alone and inside the surface. The scene is "
                + "translucent where both are shown.")
public final class BracketSlices implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("bracket_stress_slices.txt"));
        PlotFile surface = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0);
        for (PlotFile slice : file.split(file.coordinates()[0])) {
            builder.addGroup(new PostDataGroup().coordinates(slice.coordinates()).elements(slice.triangles())
                    .computeNormals().computeOutline().data(slice.data()));
        }
        try (SceneGraphPlotSlice3d slices = new SceneGraphPlotSlice3d(1);
                SceneGraphPlotSurface3d bracket = new SceneGraphPlotSurface3d(2);
                PostDataObject record = builder.build();
                PostDataObject surfaceRecord = surface.surface3d()) {
            slices.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            slices.fillPlot(record);
            slices.setLegendLimits(0, file.percentile(0.995));
            studio.show(slices, "Stress \\sigma_{v} in MPa").view(-35, 25);
            studio.save("The sections alone.");

            bracket.fillPlot(surfaceRecord);
            bracket.setColor(0xffffff);
            studio.settings().setGlobalOpacity(0.35f);
            studio.show(bracket, "").view(145, 25);
            studio.save("The same inside the surface of the bracket.");
        }
    }
}
