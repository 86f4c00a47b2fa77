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
import java.util.List;
import java.util.Random;
import java.util.function.IntBinaryOperator;
import java.util.stream.IntStream;

@About(title = "Materials with images",
        text = "The bracket as a model of two domains: brushed steel, and a bush of bronze.",
        section = Section.OBJECTS,
        pages = {"geometry/physics-object", "geometry/marking"})
public final class BracketMaterials implements Picture {
    private static final int SIDE = 256;

    @Override
    public void draw(Studio studio) throws IOException {
        // A second file has, for each face, the domains on its two sides. With them the solid becomes a geometry with
        // domains.
        List<int[]> sides = Files.readAllLines(studio.data("bracket_domains.csv")).stream().skip(1)
                .map(row -> IntStream.of(1, 2).map(i -> Integer.parseInt(row.split(",")[i]) - 1).toArray()).toList();
        int[] up = sides.stream().mapToInt(pair -> pair[0]).toArray();
        int[] down = sides.stream().mapToInt(pair -> pair[1]).toArray();
        try (SceneGraphPhysicsObject model = new SceneGraphPhysicsObject(1);
                RenderDraw3D solid = RenderDraw3D.read(1, "Bracket", studio.data("bracket_solid.txt"));
                RenderGeom3D record = RenderGeom3D.of(solid, up, down)) {
            model.fillObject(record);
            model.setMaterial(ObjectPartType.SUBDOMAIN, 0, "steel");
            model.setMaterial(ObjectPartType.SUBDOMAIN, 1, "bronze");
            model.setImage("steel", brushed(), SIDE, SIDE, 1);
            model.setImage("bronze", image((x, y) -> {
                boolean isLight = (x / 16 + y / 16) % 2 == 0;
                return isLight ? 0xffd9a45b : 0xffb9813a;
            }), SIDE, SIDE, 1);
            studio.show(model).hideAxes().view(-35, 25);
            studio.save("Both domains with the images of their materials. An image is laid on each face from the "
                    + "direction that the face is turned to most, and four of them fit along the longest side of the "
                    + "object.");

            // Marks and materials are independent of each other.
            model.markSubdomain(1, MarkingAction.PRIMARY);
            studio.save("The bush is marked: a mark has priority over the material.");
        }
    }

    /** Fine lines in shades of grey. */
    private static int[] brushed() {
        Random random = new Random(1);
        int[] greys = random.ints(SIDE, 165, 215).toArray();
        return image((x, y) -> 0xff000000 | 0x010101 * ((greys[y] + greys[(y + 1) % SIDE]) / 2));
    }

    private static int[] image(IntBinaryOperator pixelAt) {
        return IntStream.range(0, SIDE * SIDE).map(i -> pixelAt.applyAsInt(i % SIDE, i / SIDE)).toArray();
    }
}
