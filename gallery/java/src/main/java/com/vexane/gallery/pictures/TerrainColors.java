package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

@About(title = "Colours of a plot that is filled once",
        text = "Legend limits, a symmetric and a reversed table and a value restriction are a few numbers beside "
                + "the buffers. All these pictures come from one fill; no buffer was built or loaded again in "
                + "between.")
public final class TerrainColors implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("terrain_2d.txt"));
        double[] x = file.coordinates()[0];
        double[] y = file.coordinates()[1];
        double[] height = file.coordinates()[2];
        double mean = Arrays.stream(height).average().orElseThrow();
        double[] difference = Arrays.stream(height).map(h -> h - mean).toArray();
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = new PostDataBuilder(PlotKind.SURFACE_2D)
                        .role(DataRole.COLOR, 0)
                        .addGroup(new PostDataGroup().coordinates(x, y).elements(file.triangles()).data(difference))
                        .build()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            studio.nameAxes("x in km", "y in km");
            studio.show(plot, "Height over " + Math.round(mean) + " m").flat();
            studio.save("As filled: the legend runs over the data, so grey is not the mean.");

            plot.setSymmetricColorTable(true);
            studio.save("Symmetric table: grey is the mean.");

            plot.setLegendLimits(-200, 200);
            studio.save("Legend from -200 to 200 m: what lies outside has the colours of the ends.");

            plot.setReverseColorTable(true);
            studio.save("The same with the table reversed.");

            plot.setReverseColorTable(false);
            plot.setValueRestrictions(0, plot.getValueMax());
            studio.save("Restricted to what lies above the mean.");
        }
    }
}
