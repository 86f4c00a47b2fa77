package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.HardcopySettings;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.graphics3d.TextItem;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "A hardcopy at 300 dpi",
        text = "The same scene on the screen and exported for paper, with its own size, fonts and "
                + "background.",
        section = Section.RECIPES,
        pages = {"common-tasks", "renderer"})
public final class Hardcopy implements Picture {
    private static final int DPI = 300;

    @Override
    public void draw(Studio studio) throws IOException {
        // On the screen the part is half transparent on a shaded background.
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d();
                HardcopySettings hardcopy = new HardcopySettings()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            plot.setLegendLimits(0, file.percentile(0.995));
            studio.canvas().setShadedBackground(Canvas3dSettings.RenderMode.VIEW_3D, 0x6f8fb5, 0xf4f6f8);
            studio.canvas().setShowAxisOrientationIndicator(true);
            studio.settings().setGlobalOpacity(0.6f);
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(plot, "Stress \\sigma_{v} in MPa").view(-35, 25);
            studio.save("On the screen: a shaded background, small letters, and the triad at the lower left.");

            // `HardcopySettings` say what the export shows and in which fonts. Resolution, title and creator are
            // written into the file.
            hardcopy.setDpi(DPI);
            hardcopy.setMultisampleSetting(4);
            hardcopy.setTitleShown(true);
            hardcopy.setLegendsShown(true);
            hardcopy.setAxisShown(true);
            hardcopy.setAxisOrientationShown(true);
            hardcopy.setFontSize(TextItem.TITLE, 14);
            hardcopy.setFontSize(TextItem.AXIS_TICK, 9);
            hardcopy.setFontSize(TextItem.LEGEND_TICK, 9);
            hardcopy.setFileTitle("Stress in a loaded bracket");
            hardcopy.setFileCreator("Gallery");
            studio.renderer().writeHardcopy(
                    studio.file("The export: 18 by 12 centimetres at 300 dpi, on white, with letters of its own size."),
                    hardcopy, pixels(18), pixels(12));
        }
    }

    private static int pixels(double centimetres) {
        return (int) Math.round(centimetres / 2.54 * DPI);
    }
}
