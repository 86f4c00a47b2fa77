package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.SceneGraphDrawObjectSolid;
import com.vexane.graphics3d.SceneGraphPlotSlice3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import com.vexane.producer.RenderDraw3D;
import java.io.IOException;
import java.util.stream.IntStream;

@About(title = "A plot and a solid in one scene",
        text = "Sections of the stress in the bracket between the faces and edges of its back half.",
        section = Section.RECIPES,
        pages = {"geometry/draw-objects", "plots/scalar-plots"})
public final class StressInSolid implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The sections become one group each, as in every slice plot.
        PlotFile file = PlotFile.read(studio.data("bracket_stress_slices.txt"));
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0);
        for (PlotFile slice : file.split(file.coordinates()[0])) {
            builder.addGroup(new PostDataGroup().coordinates(slice.coordinates()).elements(slice.triangles())
                    .computeNormals().computeOutline().data(slice.data()));
        }
        try (SceneGraphPlotSlice3d slices = new SceneGraphPlotSlice3d(1);
                SceneGraphDrawObjectSolid solid = new SceneGraphDrawObjectSolid(2);
                PostDataObject record = builder.build();
                RenderDraw3D geometry = RenderDraw3D.read(2, "Bracket", studio.data("bracket_solid.txt"))) {
            slices.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            slices.fillPlot(record);
            slices.setLegendLimits(0, file.percentile(0.995));
            solid.fillObject(geometry);
            // The faces with a part before the middle plane of the bracket.
            IntStream.range(0, geometry.getNumSheets()).filter(face -> lowest(geometry.getSheet(face)[1]) < -0.1)
                    .forEach(face -> solid.markPart(ObjectPartType.SHEET, face, MarkingAction.HIDDEN));
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(slices, "Stress \\sigma_{v} in MPa").show(solid).view(-35, 25);
            studio.save("Coloured sections in the grey back half of the bracket. What is nearer covers what is "
                    + "farther, whether it belongs to the plot or to the solid.");
        }
    }

    private static double lowest(float[] values) {
        double lowest = values[0];
        for (float value : values) {
            lowest = Math.min(lowest, value);
        }
        return lowest;
    }
}
