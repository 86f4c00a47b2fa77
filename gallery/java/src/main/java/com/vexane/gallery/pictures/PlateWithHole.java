package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotMesh3d;
import com.vexane.graphics3d.SceneGraphPlotPointLabel;
import com.vexane.graphics3d.SceneGraphPlotPrincipal;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;
import java.util.stream.IntStream;

@About(title = "A plate with a hole",
        text = "Kirsch's solution for a plate with a hole that is pulled to the left and to the right: a "
                + "mesh, principal stresses and labels in one flat view.",
        section = Section.RECIPES,
        pages = {"plots/scalar-plots", "plots/vector-plots", "plots/point-and-line-plots"})
public final class PlateWithHole implements Picture {
    private static final int RINGS = 16;
    private static final int SPOKES = 48;
    private static final double OUTER_RADIUS = 4;

    private final int count = (RINGS + 1) * SPOKES;
    private final double[][] points = new double[2][count];
    private final double[] around = new double[count];
    /** By axis: the principal stress, then its direction. */
    private final double[][][] principal = new double[2][3][count];

    // The stress is known in closed form. Rings of points become denser towards the hole. Principal stresses and
    // directions follow from the radial, the circumferential and the shear stress.
    public PlateWithHole() {
        for (int i = 0; i < count; ++i) {
            double r = Math.pow(OUTER_RADIUS, (double) (i / SPOKES) / RINGS);
            double angle = 2 * Math.PI * (i % SPOKES) / SPOKES;
            double q = 1 / (r * r);
            double radial = 0.5 * (1 - q) + 0.5 * (1 - 4 * q + 3 * q * q) * Math.cos(2 * angle);
            double shear = -0.5 * (1 + 2 * q - 3 * q * q) * Math.sin(2 * angle);
            around[i] = 0.5 * (1 + q) - 0.5 * (1 + 3 * q * q) * Math.cos(2 * angle);
            points[0][i] = r * Math.cos(angle);
            points[1][i] = r * Math.sin(angle);
            double middle = 0.5 * (radial + around[i]);
            double range = Math.hypot(0.5 * (radial - around[i]), shear);
            double first = angle + 0.5 * Math.atan2(2 * shear, radial - around[i]);
            for (int axis = 0; axis < 2; ++axis) {
                principal[axis][0][i] = axis == 0 ? middle + range : middle - range;
                principal[axis][1][i] = Math.cos(first + axis * Math.PI / 2);
                principal[axis][2][i] = Math.sin(first + axis * Math.PI / 2);
            }
        }
    }

    // A mesh in the plane: a group of triangles, then a group with their edges as the wireframe.
    private PostDataObject mesh() {
        int[][] triangles = new int[3][2 * RINGS * SPOKES];
        int[][] edges = new int[2][2 * RINGS * SPOKES + SPOKES];
        for (int i = 0; i < count; ++i) {
            int next = i - i % SPOKES + (i + 1) % SPOKES;
            edges[0][i] = i;
            edges[1][i] = next;
            if (i < RINGS * SPOKES) {
                int[][] corners = {{i, i + SPOKES, next + SPOKES}, {i, next + SPOKES, next}};
                for (int corner = 0; corner < 3; ++corner) {
                    triangles[corner][2 * i] = corners[0][corner];
                    triangles[corner][2 * i + 1] = corners[1][corner];
                }
                edges[0][count + i] = i;
                edges[1][count + i] = i + SPOKES;
            }
        }
        return new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0)
                .addGroup(new PostDataGroup().coordinates(points).elements(triangles).data(around))
                .addGroup(new PostDataGroup().coordinates(points).elements(edges).data(around))
                .build();
    }

    // In the plane a principal direction has two components.
    private PostDataObject stresses() {
        // Every third spoke of every third ring.
        int[] chosen = IntStream.range(0, count).filter(i -> i / SPOKES % 3 == 1 && i % SPOKES % 3 == 0).toArray();
        PostDataBuilder record = new PostDataBuilder(PlotKind.PRINCIPAL_2D);
        PostDataGroup group = new PostDataGroup().coordinates(take(points, chosen));
        int array = 0;
        for (int axis = 0; axis < 3; ++axis) {
            // The plate has no stress across: the third principal value is 0.
            double[][] values = axis < 2 ? take(principal[axis], chosen) : new double[3][chosen.length];
            group.data(values[0]).data(values[1]).data(values[2]);
            record.role(DataRole.principalLength(axis), array++)
                    .role(DataRole.principalDirection(axis, 0), array++)
                    .role(DataRole.principalDirection(axis, 1), array++);
        }
        return record.addGroup(group).build();
    }

    private static double[][] take(double[][] columns, int[] rows) {
        return Arrays.stream(columns).map(column -> Arrays.stream(rows).mapToDouble(i -> column[i]).toArray())
                .toArray(double[][]::new);
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // The three plots lie over each other in the order in which they are shown.
        try (SceneGraphPlotMesh3d plate = new SceneGraphPlotMesh3d(1, 2);
                SceneGraphPlotPrincipal arrows =
                        new SceneGraphPlotPrincipal(2, SceneGraphPlotPrincipal.Content.PRINCIPAL_VALUES, 2);
                SceneGraphPlotPointLabel labels = new SceneGraphPlotPointLabel(2, 3);
                PostDataObject mesh = mesh();
                PostDataObject stresses = stresses();
                PostDataObject places = new PostDataBuilder(PlotKind.POINT_LABEL_2D)
                        .addGroup(new PostDataGroup().coordinates(new double[][] {{0, 0.6}, {0.6, 0}})).build()) {
            studio.size(960, 800);
            plate.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plate.fillPlot(mesh);
            plate.setWireframeColor(0xb0b0b0);
            arrows.setColorTable("dark principal axes", new double[][] {{0.4, 0, 0}, {0, 0, 0.4}, {0, 0.4, 0}}, false);
            arrows.setShowLegend(false);
            arrows.fillPlot(stresses);
            arrows.setCommonArrowScale(0.8f);
            labels.fillPlot(places);
            labels.setLabels("3", "\u22121");
            labels.setColor(0x202020);
            studio.nameAxes("x in radii of the hole", "y in radii of the hole");
            studio.show(plate, "Stress around the hole, 1 being that of the plate").show(arrows, "").show(labels, "");
            studio.flat();
            studio.save("Above and below the hole the stress is three times that of the plate (red), and beside it the "
                    + "plate is compressed (blue). Arrows show the principal stresses at some points.");
        }
    }
}
