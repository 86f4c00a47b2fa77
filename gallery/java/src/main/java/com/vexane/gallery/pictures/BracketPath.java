package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.CsvFile;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.LineStyle;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.List;

@About(title = "Stresses along a path",
        text = "Stress along a line through the bracket: the von Mises stress and three components.",
        pages = "plots/graph-plots")
public final class BracketPath implements Picture {
    private static final List<String> COMPONENTS = List.of("sxx", "syy", "szz");

    @Override
    public void draw(Studio studio) throws IOException {
        // Two plots have different styles: one line for the von Mises stress, three groups for the components.
        CsvFile file = CsvFile.read(studio.data("bracket_path.csv"));
        double[] distance = file.column("distance");
        PostDataBuilder components = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0);
        for (String component : COMPONENTS) {
            components.addGroup(new PostDataGroup().coordinates(distance).data(file.column(component)));
        }
        try (SceneGraphPlotGraph total = new SceneGraphPlotGraph(1);
                SceneGraphPlotGraph parts = new SceneGraphPlotGraph(2);
                PostDataObject totalRecord = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0)
                        .addGroup(new PostDataGroup().coordinates(distance).data(file.column("von Mises"))).build();
                PostDataObject partsRecord = components.build()) {

            // Styles and colours cycle from a start that the plot sets; widths apply to the whole plot.
            total.fillPlot(totalRecord);
            total.setLineWidth(5);
            total.setCycleColor(true, 2);
            total.setLegendDescription(0, "von Mises");
            total.setShowLegends(true);
            parts.fillPlot(partsRecord);
            parts.setLineWidth(2);
            parts.setLineStyle(true, LineStyle.DASHED);
            parts.setCycleColor(true, 0);
            parts.setShowLegends(true);
            for (int i = 0; i < COMPONENTS.size(); ++i) {
                parts.setLegendDescription(i, COMPONENTS.get(i));
            }
            studio.size(1200, 750);
            studio.nameAxes("Distance in mm", "Stress in MPa");

            // One more line of the grid marks an allowable stress of 28 MPa.
            studio.axes().setExtraY(28);
            studio.axes().setLegendLayoutStrategy(AxisSetup.LegendLayoutStrategy.RENDERER_2);
            studio.show(parts, "").show(total, "Stress along a path through the bracket").graph();
            studio.save("The von Mises stress is a wide line, the components are dashed or dotted. In the middle the "
                    + "stress exceeds the allowable one.");
        }
    }
}
