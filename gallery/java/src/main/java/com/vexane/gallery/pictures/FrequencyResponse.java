package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.RenderSymbol;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "A frequency response with the unit circle",
        text = "The open loop of a control with dead time in the complex plane, for three dead times.",
        pages = "plots/graph-plots")
public final class FrequencyResponse implements Picture {
    private static final int POINTS = 2000;
    private static final double[] DELAYS = {0.1, 0.4, 0.8};

    @Override
    public void draw(Studio studio) throws IOException {
        // Graphs need not be functions of x: a line goes through its points in their order.
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0);
        for (double delay : DELAYS) {
            double[] real = new double[POINTS];
            double[] imaginary = new double[POINTS];
            for (int i = 0; i < POINTS; ++i) {
                // 2.2 e^(-delay s) / ((1 + s) (1 + 0.2 s)) at s = j frequency
                double frequency = Math.pow(10, -2 + 4.0 * i / (POINTS - 1));
                double gain = 2.2 / (Math.hypot(1, frequency) * Math.hypot(1, 0.2 * frequency));
                double phase = -delay * frequency - Math.atan(frequency) - Math.atan(0.2 * frequency);
                real[i] = gain * Math.cos(phase);
                imaginary[i] = gain * Math.sin(phase);
            }
            builder.addGroup(new PostDataGroup().coordinates(real).data(imaginary));
        }
        try (SceneGraphPlotGraph plot = new SceneGraphPlotGraph(1); PostDataObject record = builder.build()) {

            // The plot can draw the unit circle. Both axes have the same scale here, so it is round.
            plot.fillPlot(record);
            plot.setCycleColor(true, 0);
            plot.setLineWidth(3);
            plot.setMarkerType(true, RenderSymbol.SQUARE);
            plot.setNMarkers(10);
            plot.setShowUnitCircle(true);
            plot.setShowLegends(true);
            for (int i = 0; i < DELAYS.length; ++i) {
                plot.setLegendDescription(i, "dead time " + DELAYS[i] + " s");
            }
            studio.size(1000, 750);
            studio.nameAxes("Real part", "Imaginary part");
            studio.axes().setAxisType(AxisSetup.AxisType.GRAPH);
            studio.show(plot, "Frequency response of an open loop").flat();
            studio.save("Outside of the unit circle the gain is above 1. The longer the dead time, the farther the "
                    + "line turns before it enters the circle.");
        }
    }
}
