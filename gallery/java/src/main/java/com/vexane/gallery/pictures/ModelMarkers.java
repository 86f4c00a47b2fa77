package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.SceneGraphPhysicsObject;
import com.vexane.producer.RenderDraw3D;
import com.vexane.producer.RenderGeom3D;
import java.io.IOException;
import java.nio.file.Files;
import java.util.Comparator;
import java.util.List;
import java.util.stream.IntStream;
import java.util.stream.Stream;

@About(title = "Markers and connectors",
        text = "Icons show where the physics of a model applies: a bracket with a marker of each kind on its "
                + "faces, and a connector between two of them.",
        section = Section.OBJECTS,
        pages = "geometry/physics-object")
public final class ModelMarkers implements Picture {
    // Width and height of the icons, in pixels.
    private static final int ICON = 28;

    @Override
    public void draw(Studio studio) throws IOException {
        // A second file lists the domains on both sides of each face: the bracket and the bush in its ring.
        List<int[]> sides = Files.readAllLines(studio.data("bracket_domains.csv")).stream().skip(1)
                .map(row -> IntStream.of(1, 2).map(i -> Integer.parseInt(row.split(",")[i]) - 1).toArray()).toList();
        int[] up = sides.stream().mapToInt(pair -> pair[0]).toArray();
        int[] down = sides.stream().mapToInt(pair -> pair[1]).toArray();
        try (SceneGraphPhysicsObject model = new SceneGraphPhysicsObject(1);
                RenderDraw3D solid = RenderDraw3D.read(1, "Bracket", studio.data("bracket_solid.txt"));
                RenderGeom3D record = RenderGeom3D.of(solid, up, down)) {
            model.fillObject(record);

            // Each icon is an image with a name, which must be set before the first marker with that name.
            for (String name : List.of("fixed", "force", "sensor", "system", "coupling")) {
                model.setImage(name, icon(name), ICON, ICON, 1);
            }

            // The program finds faces by where they are, and marks them in four ways: with an icon alone, with the
            // normal of the face, with directions of its own, and with a coordinate system around the normal. The
            // connector has a position of its own, and a line to each of its faces.
            int plate = nearest(solid, 6, 0, 60);
            int web = nearest(solid, 70, -15, 0);
            int slope = between(solid, new double[] {15.3, -13, 46.3}, new double[] {138.8, 13, 24});
            int ring = nearest(solid, 152, -18.5, 0);
            model.setPhysicsMarker("fixed", ObjectPartType.SHEET, plate);
            model.setPhysicsMarkerNormal("force", ObjectPartType.SHEET, ring, false);
            model.setPhysicsMarkerSys("sensor", ObjectPartType.SHEET, web, new double[][] {{1, 0, 0}, {0, -1, 0}});
            model.setPhysicsMarkerBoundSys("system", ObjectPartType.SHEET, slope, false, true, 3, 0);
            model.setPhysicsConnector("coupling", ObjectPartType.SHEET, new int[] {plate, ring},
                    new double[] {120, 30, 90});
            studio.settings().setShowPhysicsMarkers(true);
            studio.show(model).hideAxes().view(-35, 25);
            studio.save("The bar is the icon alone, at the plate. The arrow in the bush has the normal of its "
                    + "face, the dot two given directions, and the cross on the arm the three axes of a system. "
                    + "The ring at the upper right is a connector between the plate and the bush.");

            // Markers and marks are independent of each other: faces and domains keep their icons when they are
            // marked.
            model.markBoundary(slope, MarkingAction.PRIMARY);
            model.markSubdomain(1, MarkingAction.SECONDARY);
            studio.save("The top of the arm has a primary mark (red), and the bush, a domain, a secondary one "
                    + "(blue). All icons are where they were.");

            // Markers belong to the object, not to the parts: they stay until they are cleared, even over a hidden
            // domain.
            model.clearPhysicsMarkers();
            model.markSubdomain(0, MarkingAction.HIDDEN);
            studio.view(-35, 25).save("Without the markers and the bracket, the bush remains: a sleeve with a "
                    + "flange and a hole for oil. Faces between the two domains are shown as long as one of them "
                    + "is.");
        }
    }

    // Faces are looked for by points in millimetres: the one whose vertices are nearest on average, or the one that
    // has vertices next to two points.
    private static int nearest(RenderDraw3D solid, double... point) {
        return IntStream.range(0, solid.getNumSheets()).boxed()
                .min(Comparator.comparingDouble(face -> distance(solid.getSheet(face), point))).orElseThrow();
    }

    private static int between(RenderDraw3D solid, double[]... points) {
        return IntStream.range(0, solid.getNumSheets()).boxed().min(Comparator.comparingDouble(face -> Stream.of(points)
                .mapToDouble(point -> shortest(solid.getSheet(face), point)).sum())).orElseThrow();
    }

    private static double shortest(float[][] vertices, double[] point) {
        return IntStream.range(0, vertices[0].length).mapToDouble(i -> Math.hypot(
                Math.hypot(vertices[0][i] - point[0], vertices[1][i] - point[1]), vertices[2][i] - point[2]))
                .min().orElse(Double.MAX_VALUE);
    }

    private static double distance(float[][] vertices, double[] point) {
        double sum = 0;
        for (int i = 0; i < vertices[0].length; ++i) {
            sum += Math.hypot(
                    Math.hypot(vertices[0][i] - point[0], vertices[1][i] - point[1]), vertices[2][i] - point[2]);
        }
        return vertices[0].length == 0 ? Double.MAX_VALUE : sum / vertices[0].length;
    }

    // An icon is a disc with a sign in its middle, drawn into an array of colours. Its corners are transparent.
    private static int[] icon(String name) {
        int color = 0xff000000 | 0x9e3779 * name.hashCode() >>> 8 & 0x7f7f7f | 0xff303030;
        return IntStream.range(0, ICON * ICON).map(i -> {
            double x = i % ICON - 0.5 * (ICON - 1);
            double y = i / ICON - 0.5 * (ICON - 1);
            double radius = Math.hypot(x, y);
            boolean isSign = switch (name) {
                case "fixed" -> Math.abs(x) < 7 && Math.abs(y) < 3;
                case "force" -> Math.abs(x) < 2.5 && Math.abs(y) < 8 || y < -2 && Math.abs(x) < 10 + y;
                case "sensor" -> radius < 5;
                case "system" -> Math.abs(x) < 2 && Math.abs(y) < 8 || Math.abs(y) < 2 && Math.abs(x) < 8;
                default -> radius > 4 && radius < 8;
            };
            return radius > 0.5 * ICON ? 0 : isSign ? 0xffffffff : color;
        }).toArray();
    }
}
