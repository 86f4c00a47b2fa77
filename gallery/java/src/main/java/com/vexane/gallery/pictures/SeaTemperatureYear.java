package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.CsvFile;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.RenderSymbol;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.List;

@About(title = "Lines with a legend",
        text = "The temperature of the sea surface over the year, at seven latitudes.",
        pages = "plots/graph-plots")
public final class SeaTemperatureYear implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // Each line is a group of the record: a coordinate for x, and data with the role `HEIGHT` for y.
        CsvFile file = CsvFile.read(studio.data("sea_temperature_year.csv"));
        List<String> latitudes = file.names().subList(1, file.names().size());
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0);
        for (String latitude : latitudes) {
            builder.addGroup(new PostDataGroup().coordinates(file.column("month")).data(file.column(latitude)));
        }
        try (SceneGraphPlotGraph plot = new SceneGraphPlotGraph(1); PostDataObject record = builder.build()) {

            // Lines get their colours and symbols in turn from a cycle. Markers are at the points of the data instead
            // of at equal distances, and the legend has a text per line.
            plot.fillPlot(record);
            plot.setCycleColor(true, 0);
            plot.setMarkerType(true, RenderSymbol.CIRCLE);
            plot.setMarkersInterpolation(false);
            plot.setLineWidth(2);
            plot.setShowLegends(true);
            for (int i = 0; i < latitudes.size(); ++i) {
                plot.setLegendDescription(i, latitudes.get(i));
            }
            studio.size(1200, 750);
            studio.nameAxes("Month", "Temperature in \u00b0C");

            // A grid line per month and every five degrees.
            studio.axes().setAutoSpacing(false);
            studio.axes().setXSpacing(1);
            studio.axes().setYSpacing(5);
            studio.show(plot, "Temperature of the sea surface over the year").graph();
            studio.save("Northern latitudes are warmest in August and southern ones in February; near the equator the "
                    + "temperature hardly changes.");
        }
    }
}
