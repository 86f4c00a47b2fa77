package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotMesh3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;
import java.util.stream.IntStream;

@About(title = "A finite element mesh",
        text = "The mesh on which the stress of the bracket was computed. The colour of a point is the "
                + "lowest quality of the tetrahedra around it.",
        pages = "plots/scalar-plots")
public final class BracketMesh implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // A record of a mesh has groups of elements of one kind: faces, then the edges that are their wireframe, then
        // points. The points are those with a quality below 0.3.
        PlotFile file = PlotFile.read(studio.data("bracket_volume.txt"));
        double[] quality = file.smallestOfTetrahedra();
        PostDataGroup faces = new PostDataGroup().coordinates(file.coordinates()).elements(file.triangles())
                .computeNormals().data(quality);
        PostDataGroup edges = new PostDataGroup().coordinates(file.coordinates()).elements(file.edges()).data(quality);
        int[] worst = IntStream.range(0, quality.length).filter(i -> quality[i] < 0.3).toArray();
        PostDataGroup points = new PostDataGroup().coordinates(Arrays.stream(file.coordinates())
                .map(axis -> Arrays.stream(worst).mapToDouble(i -> axis[i]).toArray()).toArray(double[][]::new))
                .elements(IntStream.range(0, worst.length).toArray())
                .data(Arrays.stream(worst).mapToDouble(i -> quality[i]).toArray());
        try (SceneGraphPlotMesh3d plot = new SceneGraphPlotMesh3d(1, 3);
                PostDataObject record = new PostDataBuilder(PlotKind.MESH_3D).role(DataRole.COLOR, 0)
                        .addGroup(faces).addGroup(edges).addGroup(points).build()) {
            studio.size(1120, 800);
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.fillPlot(record);
            plot.setWireframeColor(0x202830);
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(plot, "Quality of tetrahedra").view(-35, 25);
            studio.save("Faces in the colours of their quality, with their wireframe in one dark colour.");

            // The wireframe can be switched off.
            plot.setDisplayWireframe(false);
            studio.save("Without the wireframe the colours are easier to compare.");

            // So can the faces. The plot then has one colour, and the points of the third group become visible.
            plot.setDisplayInterior(false);
            plot.setDisplayWireframe(true);
            plot.setColor(0xd02020);
            studio.save("Wireframe alone. The points at the worst tetrahedra are small cubes in the colour of the "
                    + "plot.");
        }
    }
}
