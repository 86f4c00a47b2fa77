package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.CsvFile;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotPrincipal;
import com.vexane.graphics3d.SceneGraphPlotTube3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

@About(title = "Principal stresses in the bracket",
        text = "The principal stresses in the bracket: three pairs of arrows at each point.",
        pages = "plots/vector-plots")
public final class PrincipalStress implements Picture {
    private static final double EDGE_RADIUS = 0.35;

    // At each point, each of the three principal stresses is a length and a direction of three components.
    private static PostDataObject stresses(CsvFile file) {
        PostDataGroup points = new PostDataGroup().coordinates(file.columns("x", "y", "z"));
        PostDataBuilder record = new PostDataBuilder(PlotKind.GENERAL);
        int array = 0;
        for (int axis = 0; axis < 3; ++axis) {
            points.data(file.column("s" + (axis + 1)));
            record.role(DataRole.principalLength(axis), array++);
            for (int component = 0; component < 3; ++component) {
                points.data(file.column("d" + (axis + 1) + "xyz".charAt(component)));
                record.role(DataRole.principalDirection(axis, component), array++);
            }
        }
        return record.addGroup(points).build();
    }

    // The edges of the faces are thin tubes that show where the points are.
    private static PostDataObject edges(PlotFile file) {
        double[] radii = new double[file.data().length];
        Arrays.fill(radii, EDGE_RADIUS);
        return new PostDataBuilder(PlotKind.LINES_3D).role(DataRole.COLOR, 0).role(DataRole.RADIUS, 0)
                .addGroup(new PostDataGroup().coordinates(file.coordinates()).elements(file.lines()).data(radii))
                .build();
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // A table of three colours without interpolation gives each principal stress its own: red, green and blue for
        // the first, second and third.
        try (SceneGraphPlotPrincipal plot =
                        new SceneGraphPlotPrincipal(3, SceneGraphPlotPrincipal.Content.PRINCIPAL_VALUES, 1);
                SceneGraphPlotTube3d frame = new SceneGraphPlotTube3d(2);
                PostDataObject stresses = stresses(CsvFile.read(studio.data("bracket_principal.csv")));
                PostDataObject edges = edges(PlotFile.read(studio.data("bracket_stress_3d.txt")))) {
            studio.size(1120, 800);
            plot.setColorTable("principal axes", new double[][] {{0.8, 0.1, 0.1}, {0.2, 0.6, 0.2}, {0.1, 0.3, 0.8}},
                    false);
            plot.setShowLegend(false);
            plot.setCommonArrowScale(3);
            plot.fillPlot(stresses);
            frame.setColor(0xb0b0b0);
            frame.fillPlot(edges);
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(frame, "").show(plot, "Principal stresses");
            studio.view(-35, 25);
            studio.save("Arrows point outwards for tension and inwards for compression. The flange is pulled at its "
                    + "upper side (red) and compressed at its lower side (blue).");
        }
    }
}
