package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotInteractive;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.ArrayList;
import java.util.List;

@About(title = "Lines while measuring",
        text = "What a program shows while its user measures a distance: two points and the line between "
                + "them, solid up to a fraction of its length and dashed from there.",
        pages = "plots/point-and-line-plots")
public final class DashedLines implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // A `SceneGraphPlotInteractive` takes points and lines directly, without a record, and is fast to change. The
        // solid fraction applies to the lines that are set after it.
        List<SceneGraphPlotInteractive> plots = new ArrayList<>();
        try (SceneGraphPlotSurface3d bracket = new SceneGraphPlotSurface3d(1);
                PostDataObject record = PlotFile.read(studio.data("bracket_stress_3d.txt")).surface3d()) {
            bracket.fillPlot(record);
            bracket.setColor(0xc8c8c8);
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(bracket, "Solid fractions of 1, 0.5 and 0");
            double[] fractions = {1, 0.5, 0};
            int[] colors = {0xb01010, 0x1040b0, 0x107030};
            for (int i = 0; i < fractions.length; ++i) {
                double[][] ends = {{0, 170}, {-70, -70}, {60 - 40 * i, 70 - 40 * i}};
                SceneGraphPlotInteractive line = new SceneGraphPlotInteractive(2 + i);
                plots.add(line);
                line.setSolidFraction(fractions[i]);
                line.setPoints(ends);
                line.setLinePoints(ends);
                line.setColor(colors[i]);
                studio.show(line, "");
            }
            studio.view(-50, 20);
            studio.save("Three lines through the part: solid in full length (red), up to the middle (blue), and dashed "
                    + "all along (green). The part hides what is inside it.");
        } finally {
            plots.forEach(SceneGraphPlotInteractive::close);
        }
    }
}
