package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.SceneGraphDrawObjectSolid;
import com.vexane.producer.RenderDraw3D;
import java.io.IOException;
import java.util.stream.IntStream;

@About(title = "The bracket as a solid",
        text = "226 faces with their 522 edges and 309 vertices, read from a file.",
        section = Section.OBJECTS,
        pages = {"geometry/draw-objects", "solid-data-format"})
public final class BracketSolid implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // A draw object is filled from a record of geometry, as a plot is filled from a record of data.
        try (SceneGraphDrawObjectSolid solid = new SceneGraphDrawObjectSolid(1);
                RenderDraw3D record = RenderDraw3D.read(1, "Bracket", studio.data("bracket_solid.txt"))) {
            solid.fillObject(record);
            studio.show(solid).nameAxes("x in mm", "y in mm", "z in mm").view(-35, 25);
            studio.save("Faces in grey with their edges and vertices in black.");

            // Hiding is a mark. It is set for the faces in front of the middle plane, by the mean of their
            // vertices.
            IntStream.range(0, record.getNumSheets()).filter(face -> isInFront(record.getSheet(face)))
                    .forEach(face -> solid.markPart(ObjectPartType.SHEET, face, MarkingAction.HIDDEN));
            studio.save("The faces of the front half are hidden, and with them the edges that belong to no other "
                    + "face.");
        }
    }

    private static boolean isInFront(float[][] vertices) {
        double sum = 0;
        for (float y : vertices[1]) {
            sum += y;
        }
        return sum < 0;
    }
}
