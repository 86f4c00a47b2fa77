package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphDrawObjectFace;
import com.vexane.graphics3d.SceneGraphPlotPointLabel;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import com.vexane.producer.RenderDraw2D;
import com.vexane.producer.SheetGeometry;
import java.io.IOException;
import java.util.Locale;
import java.util.stream.IntStream;

@About(title = "Vertices to snap to",
        text = "The cross section of a rail as a face, with the vertices that a pointer snaps to.",
        section = Section.OBJECTS,
        pages = {"geometry/draw-objects", "geometry/building-geometry"})
public final class SnapPoints implements Picture {
    private static final double[] X = {-75, 75, 75, 12, 8, 36, 36, -36, -36, -8, -12, -75};
    private static final double[] Y = {0, 0, 11, 28, 128, 141.5, 172, 172, 141.5, 128, 28, 11};

    @Override
    public void draw(Studio studio) throws IOException {
        // The face and the labels at its points are an object and a plot in one scene. The texts come from the snap
        // points of the record, which has double precision.
        try (SceneGraphDrawObjectFace rail = new SceneGraphDrawObjectFace(1);
                SceneGraphPlotPointLabel labels = new SceneGraphPlotPointLabel(2, 2);
                RenderDraw2D record = record();
                PostDataObject points = new PostDataBuilder(PlotKind.GENERAL)
                        .addGroup(new PostDataGroup().coordinates(X, Y, new double[X.length])).build()) {
            rail.fillObject2D(record);
            rail.setObjectColor(0xcfd8dc);
            rail.setUseObjectColor(true);
            labels.fillPlot(points);
            labels.setLabels(textsOf(record.getSnapPoints()));
            labels.setColor(0x203040);
            studio.nameAxes("x in mm", "y in mm").show(labels, "").show(rail).flat();
            studio.save("The rail in one colour of the object, with the coordinates of its vertices.");
        }
    }

    private static RenderDraw2D record() {
        GeometryBuilder2D builder = new GeometryBuilder2D().points(X, Y);
        int[] around = new int[X.length];
        for (int i = 0; i < X.length; ++i) {
            int next = (i + 1) % X.length;
            builder.addCurve(new double[] {X[i], X[next]}, new double[] {Y[i], Y[next]});
            around[i] = i;
        }
        // Foot, web and head.
        int[] a = {0, 0, 0, 0, 10, 10, 9, 9, 9, 9};
        int[] b = {1, 2, 3, 10, 3, 4, 4, 5, 6, 7};
        int[] c = {2, 3, 10, 11, 4, 9, 5, 6, 7, 8};
        return builder
                .addSheet(new SheetGeometry().coordinates(X, Y).triangles(a, b, c)).sheetToLine(around)
                .buildDraw(1, "Rail");
    }

    private static String[] textsOf(double[][] points) {
        return IntStream.range(0, points[0].length)
                .mapToObj(i -> String.format(Locale.ROOT, "(%.1f, %.1f)", points[0][i], points[1][i]))
                .toArray(String[]::new);
    }
}
