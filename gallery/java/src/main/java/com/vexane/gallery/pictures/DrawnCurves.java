package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayDrawCurve;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.ArrayList;
import java.util.List;

@About(title = "Drawn curves",
        text = "Edges of overlay curves with their control polygons, of degree 1, 2 and 3, and a filled "
                + "outline with a hole.",
        section = Section.OVERLAYS,
        pages = "overlays")
public final class DrawnCurves implements Picture {
    private static final double[][] LINE = {{0, 0}, {3, 2}};
    private static final double[][] ARC = {{0, 0}, {3, 0}, {3, 3}};
    private static final double[][] CUBIC = {{0, 0}, {1, 3}, {3, -1}, {4, 2}};

    private final List<OverlayDrawCurve> curves = new ArrayList<>();

    /** Adds a chain of edges, each given by its polygon, which begins where the one before ends. */
    private static void addChain(OverlayDrawCurve curve, double x, double y, double[][]... polygons) {
        int first = curve.addVertex(x + polygons[0][0][0], y + polygons[0][0][1]);
        int start = first;
        for (int i = 0; i < polygons.length; ++i) {
            double[][] polygon = polygons[i];
            double[] last = polygon[polygon.length - 1];
            boolean closes = polygons.length > 1 && i == polygons.length - 1;
            int end = closes ? first : curve.addVertex(x + last[0], y + last[1]);
            int edge = curve.addEdge(start, end);
            for (double[] point : polygon) {
                curve.addControlPoint(edge, x + point[0], y + point[1]);
            }
            start = end;
        }
    }

    private OverlayDrawCurve newCurve(Overlay overlay, int color) {
        OverlayDrawCurve curve = new OverlayDrawCurve();
        curves.add(curve);
        curve.setUseColor(true);
        curve.setOutlineColor(color >> 16 & 0xff, color >> 8 & 0xff, color & 0xff, 255);
        curve.setLineSize(3);
        overlay.addOverlayObject(curve, curves.size());
        return curve;
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // A square that gives the view its size; it is not drawn.
        try (SceneGraphPlotSurface2d paper = new SceneGraphPlotSurface2d(1);
                PostDataObject square = new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0)
                        .addGroup(new PostDataGroup().coordinates(new double[] {0, 16, 0}, new double[] {0, 0, 9})
                                .elements(new int[] {0}, new int[] {1}, new int[] {2}).data(new double[3]))
                        .build();
                Overlay overlay = new Overlay()) {
            paper.fillPlot(square);
            paper.setValueRestrictions(1, 2);
            paper.setShowLegend(false);
            studio.nameAxes("x in cm", "y in cm");
            studio.show(paper, "Edges of degree 1, 2 and 3").flat();

            double[][][] polygons = {LINE, ARC, CUBIC};
            int[] colors = {0x1f77b4, 0x2ca02c, 0x9467bd};
            for (int i = 0; i < polygons.length; ++i) {
                OverlayDrawCurve curve = newCurve(overlay, colors[i]);
                addChain(curve, 1.0 + 5 * i, 5.5, polygons[i]);
                curve.setDisplayVertexNumbers(true);
                curve.setDisplayEdgeNumbers(true);
            }

            // Marking an edge shows its vertices and control points.
            OverlayDrawCurve marked = newCurve(overlay, 0x2ca02c);
            addChain(marked, 1, 0.8, ARC);
            marked.setMarkingColor(230, 60, 0, 255);
            marked.setEdgeMarking(0, true);

            // Chains of edges that end where they begin are filled. A chain inside another one is a hole.
            OverlayDrawCurve filled = newCurve(overlay, 0x333333);
            addChain(filled, 7, 0.8, new double[][] {{0, 0}, {6, 0}}, new double[][] {{6, 0}, {8, 0}, {8, 2}},
                    new double[][] {{8, 2}, {8, 6}, {2, 0}, {2, 4}}, new double[][] {{2, 4}, {0, 4}, {0, 0}});
            addChain(filled, 10, 1.3, new double[][] {{0, 0}, {2, 0}}, new double[][] {{2, 0}, {2, 1}},
                    new double[][] {{2, 1}, {0, 0}});
            filled.setFilled(true);
            filled.setFillColor(255, 190, 90, 160);
            studio.renderer().setOverlay(overlay);
            studio.save("Above: a straight line with two control points, an arc with three, a cubic curve with four. "
                    + "Below: the arc marked, and an outline of all three kinds with a triangular hole.");
        } finally {
            curves.forEach(OverlayDrawCurve::close);
            curves.clear();
        }
    }
}
