package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotEdge3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

@About(title = "Edges of elements",
        text = "Edges of the elements of a mesh as lines, in the colour of the worst tetrahedron at each "
                + "point.",
        pages = "plots/point-and-line-plots")
public final class BracketEdges implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The plot takes elements of up to four corners and draws their edges. Two records have the same points and
        // data but different elements: the triangles of the surface, and the tetrahedra.
        PlotFile file = PlotFile.read(studio.data("bracket_volume.txt"));
        double[] worst = worstQualities(file);
        try (SceneGraphPlotEdge3d edges = new SceneGraphPlotEdge3d(1);
                PostDataObject surface = record(file, file.triangles(), worst);
                PostDataObject volume = record(file, file.tetrahedra(), worst)) {
            studio.size(1120, 800);
            edges.setColorTable("viridis", studio.colors("viridis"), true);
            edges.fillPlot(surface);
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(edges, "Quality of the worst tetrahedron").view(-35, 25);
            studio.save("The edges of the triangles of the surface. Lines between points of different quality change "
                    + "their colour.");

            // The edges of all tetrahedra would hide each other. A value restriction leaves those around poor elements.
            edges.fillPlot(volume);
            edges.setValueRestrictions(0, 0.3);
            studio.view(-35, 25);
            studio.save("Edges of a quality below 0.3: the poor tetrahedra are at the rims of the bush and of the "
                    + "holes.");
        }
    }

    // The record: elements of any number of corners, and one value per point.
    private static PostDataObject record(PlotFile file, int[][] elements, double[] values) {
        PostDataGroup group = new PostDataGroup().coordinates(file.coordinates()).elements(elements).data(values);
        return new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0).addGroup(group).build();
    }

    // The quality belongs to tetrahedra, but the colours to points. A point takes the lowest quality around it.
    private static double[] worstQualities(PlotFile file) {
        double[] worst = new double[file.coordinates()[0].length];
        Arrays.fill(worst, 1);
        for (int[] corners : file.tetrahedra()) {
            for (int i = 0; i < corners.length; ++i) {
                worst[corners[i]] = Math.min(worst[corners[i]], file.tetrahedralData()[i]);
            }
        }
        return worst;
    }
}
