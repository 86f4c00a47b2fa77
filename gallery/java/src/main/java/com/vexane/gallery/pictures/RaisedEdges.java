package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotEdge2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "A net over the plane",
        text = "Edges of squares in the plane, raised and coloured by the same data.",
        pages = "plots/point-and-line-plots")
public final class RaisedEdges implements Picture {
    private static final int SIDE = 61;

    @Override
    public void draw(Studio studio) throws IOException {
        // A hill and a smaller hollow over a grid of points. The elements are the lines between neighbours.
        int count = SIDE * SIDE;
        double[][] points = new double[2][count];
        double[] heights = new double[count];
        int numLines = 2 * SIDE * (SIDE - 1);
        int[][] lines = new int[2][numLines];
        int line = 0;
        for (int i = 0; i < count; ++i) {
            double x = points[0][i] = (i % SIDE) / 10.0 - 3;
            double y = points[1][i] = (i / SIDE) / 10.0 - 3;
            heights[i] = Math.exp(-x * x - y * y) - 0.6 * Math.exp(-(x - 1.5) * (x - 1.5) - (y + 1) * (y + 1));
            for (int next : new int[] {i % SIDE + 1 < SIDE ? i + 1 : -1, i + SIDE < count ? i + SIDE : -1}) {
                if (next >= 0) {
                    lines[0][line] = i;
                    lines[1][line++] = next;
                }
            }
        }

        // The fill scales heights to the width of the plot; the height scale of the plot then reduces them to about a
        // third.
        PostDataGroup net = new PostDataGroup().coordinates(points).elements(lines).data(heights);
        try (SceneGraphPlotEdge2d edges = new SceneGraphPlotEdge2d(1);
                PostDataObject record = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0)
                        .role(DataRole.HEIGHT, 0).addGroup(net).build()) {
            edges.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            edges.fillPlot(record);
            edges.setHeightScale(0.35f);
            studio.nameAxes("x in m", "y in m", "z in m");
            studio.show(edges, "Height in m").view(-60, 30);
            studio.save("The net over the plane, with the hill in red and the hollow in blue.");
        }
    }
}
