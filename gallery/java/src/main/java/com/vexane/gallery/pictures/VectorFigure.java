package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.CsvFile;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.HardcopySettings;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.graphics3d.TextItem;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Figures of a report as vectors",
        text = "A part and a graph as PDF and SVG files: texts and lines are sharp at any size, and texts of a "
                + "PDF file can be searched and copied.",
        section = Section.RECIPES,
        pages = {"common-tasks", "renderer"})
public final class VectorFigure implements Picture {
    // The resolution of the image, and of the picture of the faces in the other files.
    private static final int DPI = 150;

    @Override
    public void draw(Studio studio) throws IOException {
        // Resolution and size in pixels give the size on paper, here 12 by 7.5 centimetres. Fonts are in points.
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        CsvFile path = CsvFile.read(studio.data("bracket_path.csv"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                SceneGraphPlotGraph graph = new SceneGraphPlotGraph(2);
                PostDataObject stress = file.surface3d();
                PostDataObject line = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0)
                        .addGroup(new PostDataGroup().coordinates(path.column("distance"))
                                .data(path.column("von Mises")))
                        .build();
                HardcopySettings report = new HardcopySettings()) {
            report.setDpi(DPI);
            report.setMultisampleSetting(4);
            report.setAxisShown(true);
            report.setTitleShown(true);
            report.setFontSize(TextItem.TITLE, 9);
            report.setFontSize(TextItem.AXIS_TITLE, 7);
            report.setFontSize(TextItem.AXIS_TICK, 7);
            report.setFontSize(TextItem.LEGEND_TITLE, 7);
            report.setFontSize(TextItem.LEGEND_TICK, 7);
            report.setFileTitle("Stress in a loaded bracket");

            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(stress);
            plot.setLegendLimits(0, file.percentile(0.995));
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(plot, "Stress \\sigma_{v} in MPa").view(-35, 25);
            report.setLegendsShown(true);
            studio.renderer().writeHardcopy(
                    studio.file("The image: at 150 dpi, texts and lines show their pixels when the page is enlarged."),
                    report, pixels(12), pixels(7.5));

            // The suffix of the file chooses the format. What the scene shows of faces is a picture in the page, in
            // the resolution of the settings; axes, legend and title are vectors over it. Supersampling makes that
            // picture finer.
            studio.renderer().setSupersampling(2);
            studio.renderer().writeHardcopy(studio.document(".svg"), report, pixels(12), pixels(7.5));
            studio.renderer().writeHardcopy(studio.document(".pdf"), report, pixels(12), pixels(7.5));

            // A view of graphs alone has no picture at all: its lines are vectors too.
            studio.renderer().setSupersampling(1);
            plot.setActive(false);
            graph.fillPlot(line);
            graph.setLineWidth(2);
            studio.nameAxes("Distance in mm", "Stress in MPa");
            studio.show(graph, "Stress along a path").graph();
            report.setLegendsShown(false);
            studio.renderer().writeHardcopy(
                    studio.file("The graph as an image at 150 dpi."), report, pixels(12), pixels(7.5));

            // In an SVG file letters are shapes, so a browser needs no fonts to show it.
            studio.renderer().writeHardcopy(studio.document(".svg"), report, pixels(12), pixels(7.5));
        }
    }

    private static int pixels(double centimetres) {
        return (int) Math.round(centimetres / 2.54 * DPI);
    }
}
