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

@About(title = "The mesh of the bracket",
        text = "The mesh for the computation of its stress, coloured at each point by the worst "
                + "quality of the tetrahedra around it.")
public final class BracketMesh implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
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
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.fillPlot(record);
            plot.setWireframeColor(0x202830);
            studio.show(plot, "Quality of tetrahedra").view(-35, 25);
            studio.save("Faces with their wireframe.");

            plot.setDisplayWireframe(false);
            studio.save("Without the wireframe.");

            plot.setDisplayInterior(false);
            plot.setDisplayWireframe(true);
            plot.setColor(0xd02020);
            studio.save("Without the faces: the points whose tetrahedra are worst are cubes in the colour of the plot.");
        }
    }
}
