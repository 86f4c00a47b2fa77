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

@About(title = "Lines of a program",
        text = "What a program shows while its user measures: two points and the line between them, "
                + "solid for all of its length, for half of it, and not at all. The rest is dashed.")
public final class DashedLines implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        List<SceneGraphPlotInteractive> plots = new ArrayList<>();
        try (SceneGraphPlotSurface3d bracket = new SceneGraphPlotSurface3d(1);
                PostDataObject record = PlotFile.read(studio.data("bracket_stress_3d.txt")).surface3d()) {
            bracket.fillPlot(record);
            bracket.setColor(0xc8c8c8);
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
            studio.view(-50, 20).save();
        } finally {
            plots.forEach(SceneGraphPlotInteractive::close);
        }
    }
}
