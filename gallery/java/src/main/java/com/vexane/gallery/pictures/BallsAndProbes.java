package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphBallBox;
import com.vexane.graphics3d.SceneGraphPlotEdge3d;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.graphics3d.SceneGraphProbeObject;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Balls, boxes and probes",
        text = "With a ball and a box a program shows what it will select. A probe has a point and a line.",
        section = Section.OBJECTS,
        pages = "geometry/construction")
public final class BallsAndProbes implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (SceneGraphPlotSurface3d bracket = new SceneGraphPlotSurface3d(1);
                SceneGraphPlotEdge3d edges = new SceneGraphPlotEdge3d(2);
                PostDataObject surface = file.surface3d();
                PostDataObject lines = edgesOf(file);
                SceneGraphBallBox selection = new SceneGraphBallBox();
                SceneGraphProbeObject probe = new SceneGraphProbeObject()) {
            bracket.fillPlot(surface);
            bracket.setColor(0xc8ccd2);
            edges.fillPlot(lines);
            edges.setColor(0x30343c);
            studio.hideAxes().show(selection).show(probe).show(bracket, "").show(edges, "");
            selection.setBall(new double[] {150, 0, 0}, 32);
            selection.setBox(new double[] {-3, -49, -65}, new double[] {19, 49, 65});
            studio.view(-50, 25);
            studio.save("A translucent ball around the end of the arm, and a box around the foot.");

            // The line of the probe goes up the arm, along the path that the graph of stress was taken from, with a
            // mark at a third of it.
            selection.clear();
            bracket.setActive(false);
            probe.setLinePoints(111, 0, -18.8f, 111, 0, 29.1f, 1.0f / 3);
            probe.setProbe(60, 0, 0);
            studio.view(-60, 15);
            studio.save("The point of the probe in red, and its line, over the edges of the bracket alone.");
        }
    }

    private static PostDataObject edgesOf(PlotFile file) {
        PostDataGroup group = new PostDataGroup().coordinates(file.coordinates()).elements(file.lines());
        return new PostDataBuilder(PlotKind.GENERAL).addGroup(group).build();
    }
}
