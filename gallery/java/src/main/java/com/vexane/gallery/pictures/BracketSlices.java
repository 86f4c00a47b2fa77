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
        text = "Von Mises stress on ten sections of the bracket, alone and inside its surface.",
        pages = "plots/scalar-plots")
public final class BracketSlices implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The sections come from a file of their own and become one group each.
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
            studio.size(1120, 800);
            slices.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            slices.fillPlot(record);
            slices.setLegendLimits(0, file.percentile(0.995));
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(slices, "Stress \\sigma_{v} in MPa").view(-35, 25);
            studio.save("The sections alone. Stress is highest near the bolts.");

            // The surface is another plot of the same group, in one colour. The opacity applies to the scene as a
            // whole.
            bracket.fillPlot(surfaceRecord);
            bracket.setColor(0xffffff);
            studio.settings().setGlobalOpacity(0.35f);
            studio.show(bracket, "").view(145, 25);
            studio.save("The same sections inside the surface of the bracket, from behind. Both are translucent.");
        }
    }
}
