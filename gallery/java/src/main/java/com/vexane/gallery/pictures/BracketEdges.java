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

@About(title = "The mesh of the bracket",
        text = "Edges of elements, in the colour of the worst tetrahedron at each point. The second "
                + "picture has the edges of all tetrahedra, of which a value restriction shows the parts "
                + "around poor ones.")
public final class BracketEdges implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("bracket_volume.txt"));
        double[] worst = worstQualities(file);
        try (SceneGraphPlotEdge3d edges = new SceneGraphPlotEdge3d(1);
                PostDataObject surface = record(file, file.triangles(), worst);
                PostDataObject volume = record(file, file.tetrahedra(), worst)) {
            edges.setColorTable("viridis", studio.colors("viridis"), true);
            edges.fillPlot(surface);
            studio.show(edges, "Quality of the worst tetrahedron").view(-35, 25).save("The triangles of the surface.");
            edges.fillPlot(volume);
            edges.setValueRestrictions(0, 0.3);
            studio.view(-35, 25).save("Around tetrahedra of a quality below 0.3.");
        }
    }

    private static PostDataObject record(PlotFile file, int[][] elements, double[] values) {
        PostDataGroup group = new PostDataGroup().coordinates(file.coordinates()).elements(elements).data(values);
        return new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0).addGroup(group).build();
    }

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
