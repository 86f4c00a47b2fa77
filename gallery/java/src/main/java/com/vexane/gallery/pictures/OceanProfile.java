package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.CsvFile;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.LineStyle;
import com.vexane.graphics3d.RenderSymbol;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;
import java.util.List;
import java.util.stream.IntStream;

@About(title = "Profiles with gaps and a logarithmic axis",
        text = "The temperature of the ocean over depth, at the stations of a file.",
        pages = "plots/graph-plots")
public final class OceanProfile implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // Each station is a group. The file has all of them in one table, and the stations end at different depths.
        CsvFile file = CsvFile.read(studio.data("ocean_profile.csv"));
        String[] station = file.texts("station");
        double[] depth = file.column("depth");
        double[] temperature = file.column("temperature");
        List<String> stations = Arrays.stream(station).distinct().toList();
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0);
        for (String name : stations) {
            int[] rows = IntStream.range(0, station.length).filter(row -> station[row].equals(name)).toArray();
            builder.addGroup(new PostDataGroup()
                    .coordinates(Arrays.stream(rows).mapToDouble(row -> depth[row]).toArray())
                    .data(Arrays.stream(rows).mapToDouble(row -> temperature[row]).toArray()));
        }
        try (SceneGraphPlotGraph plot = new SceneGraphPlotGraph(1); PostDataObject record = builder.build()) {
            plot.fillPlot(record);
            plot.setCycleColor(true, 0);
            plot.setLineStyle(true, LineStyle.SOLID);
            plot.setMarkerType(true, RenderSymbol.CIRCLE);
            plot.setNMarkers(8);
            plot.setLineWidth(3);
            plot.setShowLegends(true);
            for (int i = 0; i < stations.size(); ++i) {
                plot.setLegendDescription(i, stations.get(i));
            }

            // A fill makes the lines for linear and for logarithmic axes, so switching an axis needs no fill.
            studio.size(1200, 750);
            studio.nameAxes("Depth in m", "Temperature in \u00b0C");
            studio.axes().setXAxisLog(true);
            studio.axes().setLegendLayoutStrategy(AxisSetup.LegendLayoutStrategy.RENDERER_0);
            studio.show(plot, "Temperature of the ocean over depth").graph();
            studio.save("Warm stations cool down between 100 and 1000 m; only the Mediterranean keeps 13 degrees down "
                    + "to its floor. The depth is on a logarithmic axis.");
        }
    }
}
