package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.CanvasPickSettings.Mask;
import com.vexane.graphics3d.CanvasPickSettings.Target;
import com.vexane.graphics3d.CanvasPickSettings;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayRectangle;
import com.vexane.graphics3d.OverlaySymbol;
import com.vexane.graphics3d.PickedObjectCollection;
import com.vexane.graphics3d.PostDataReader;
import com.vexane.graphics3d.SceneGraphDrawObjectSolid;
import com.vexane.graphics3d.SceneGraphPhysicsObject;
import com.vexane.interaction.PickInteraction;
import com.vexane.interaction.RubberBand;
import com.vexane.producer.RenderDraw3D;
import com.vexane.producer.RenderGeom3D;
import java.io.IOException;
import java.nio.file.Files;
import java.util.EnumSet;
import java.util.List;

@About(title = "Picked with the mouse",
        text = "A user picks parts with a click, or by dragging a rectangle open around them. Here the program "
                + "does both, for each kind of part, and marks what it finds.",
        section = Section.OBJECTS,
        pages = "picking")
public final class PickedParts implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // `CanvasPickSettings` belong to the view: the target is the kind of part that is looked for, and the mask
        // says by which parts draw objects are found. The rectangle is a shape on the screen, which `RubberBand`
        // moves.
        try (CanvasPickSettings settings = new CanvasPickSettings(studio.renderer());
                Overlay screen = new Overlay();
                OverlayRectangle rectangle = new OverlayRectangle();
                PickedObjectCollection hits = new PickedObjectCollection();
                PickInteraction picking =
                        PickInteraction.connect(studio.renderer(), studio.renderer().getHeight())) {
            settings.setPickMask(EnumSet.allOf(Mask.class));
            rectangle.setUseColor(true);
            rectangle.setFilled(true);
            rectangle.setFillColor(30, 90, 200, 40);
            rectangle.setOutlineColor(30, 90, 200, 255);
            rectangle.setLineSize(2);
            studio.renderer().setScreenOverlay(screen);
            studio.hideAxes();
            try (RubberBand band = new RubberBand(screen, rectangle)) {
                Pick pick = new Pick(studio, settings, picking, band, hits);
                pickFromSolid(studio, pick, screen);
                pickFromModel(studio, pick);
                pickObjects(studio, pick);
            }
        }
    }

    // A press and a drag open the rectangle, here given in fractions of the picture. It holds every part that is
    // completely inside, whatever lies in front of it. Only a renderer knows what is visible: `keepVisible` removes
    // from the list what its last picture does not show.
    private record Pick(Studio studio, CanvasPickSettings settings, PickInteraction picking, RubberBand band,
            PickedObjectCollection hits) {
        void rectangle(Target target, boolean isVisibleOnly, double... corners) {
            int width = studio.renderer().getWidth();
            int height = studio.renderer().getHeight();
            int[] x = {(int) (corners[0] * width), (int) (corners[2] * width)};
            int[] y = {(int) (corners[1] * height), (int) (corners[3] * height)};
            settings.setPickTarget(target);
            studio.renderer().draw(); // gives the camera its area of the picture
            band.press(x[0], y[0]);
            band.drag(x[1], y[1]);
            picking.rectangle(studio.scene(), hits, x[0], y[0], x[1], y[1]);
            if (isVisibleOnly) {
                studio.renderer().keepVisible(hits);
            }
            if (hits.size() == 0) {
                throw new IllegalStateException("The rectangle holds no " + target);
            }
        }

        void mark(MarkingAction action) {
            PickInteraction.mark(studio.scene(), hits, action);
        }

        void unmark(MarkingAction action) {
            PickInteraction.unmark(studio.scene(), hits, action);
        }
    }

    private static void pickFromSolid(Studio studio, Pick pick, Overlay screen) throws IOException {
        double[] area = {0.31, 0.1, 0.72, 0.76};
        try (SceneGraphDrawObjectSolid bracket = new SceneGraphDrawObjectSolid(1);
                RenderDraw3D record = RenderDraw3D.read(1, "", studio.data("bracket_solid.txt"));
                OverlaySymbol pointer = new OverlaySymbol()) {
            bracket.fillObject(record);
            studio.show(bracket).view(-35, 25);

            // All faces in the rectangle get the secondary mark, which is blue. The visible ones among them get the
            // primary mark instead, which is red.
            pick.rectangle(Target.SHEET, false, area);
            pick.mark(MarkingAction.SECONDARY);
            pick.rectangle(Target.SHEET, true, area);
            pick.unmark(MarkingAction.SECONDARY);
            pick.mark(MarkingAction.PRIMARY);
            studio.save("Target `SHEET`: the visible faces that are completely inside the rectangle are red. The "
                    + "side of the arm reaches below the rectangle and is not among them. Blue edges belong to "
                    + "faces that are covered.");

            // The others show when the camera moves to the other side.
            pick.band().cancel();
            studio.view(145, 25).save("The same marks from behind: blue faces are in the rectangle too, but were "
                    + "covered by others. The red ones on the top of the arm are visible from both sides.");

            // Edges and vertices are picked in the same way.
            bracket.unmarkAll(ObjectPartType.ALL, MarkingAction.PRIMARY);
            bracket.unmarkAll(ObjectPartType.ALL, MarkingAction.SECONDARY);
            studio.view(-35, 25);
            pick.rectangle(Target.LINE, true, area);
            pick.mark(MarkingAction.PRIMARY);
            studio.save("Target `LINE`: the visible edges that are completely inside the rectangle are red, and "
                    + "faces keep their colour.");

            pick.unmark(MarkingAction.PRIMARY);
            pick.rectangle(Target.POINT, true, area);
            pick.mark(MarkingAction.PRIMARY);
            studio.save("Target `POINT`: the visible vertices inside the rectangle are red dots, and edges stay "
                    + "black.");

            // A click finds all parts within a few pixels of the pointer, also those behind others, and lists the
            // nearest one first. Here that one becomes red and the rest blue.
            pick.unmark(MarkingAction.PRIMARY);
            pick.band().cancel();
            int x = studio.renderer().getWidth() / 2;
            int y = studio.renderer().getHeight() * 9 / 20;
            pointer.setLocation(x + 0.5, y + 0.5);
            pointer.setUseColor(true);
            pointer.setOutlineColor(0, 0, 0, 255);
            screen.addOverlayObject(pointer, 1);
            pick.settings().setPickTarget(Target.SHEET);
            pick.picking().click(studio.scene(), pick.hits(), x, y);
            int nearest = pick.hits().get(0).partId();
            pick.mark(MarkingAction.SECONDARY);
            bracket.unmarkPart(ObjectPartType.SHEET, nearest, MarkingAction.SECONDARY);
            bracket.markPart(ObjectPartType.SHEET, nearest, MarkingAction.PRIMARY);
            studio.save("A click where the black symbol is, close to an edge: it finds the top of the arm (red), "
                    + "the narrow face beside it, and the plate behind both (blue).");
            screen.removeOverlayObject(pointer);
            bracket.setActive(false);
        }
    }

    // In a model with domains a rectangle also finds these. The file has the domains on both sides of each face.
    private static void pickFromModel(Studio studio, Pick pick) throws IOException {
        List<int[]> sides = Files.readAllLines(studio.data("bracket_domains.csv")).stream().skip(1)
                .map(row -> row.split(",")).map(row -> new int[] {Integer.parseInt(row[1]), Integer.parseInt(row[2])})
                .toList();
        int[] up = sides.stream().mapToInt(side -> side[0] - 1).toArray();
        int[] down = sides.stream().mapToInt(side -> side[1] - 1).toArray();
        try (SceneGraphPhysicsObject model = new SceneGraphPhysicsObject(2);
                RenderDraw3D solid = RenderDraw3D.read(1, "", studio.data("bracket_solid.txt"));
                RenderGeom3D record = RenderGeom3D.of(solid, up, down)) {
            model.fillObject(record);
            studio.show(model);
            pick.rectangle(Target.SUBDOMAIN, false, 0.54, 0.54, 0.84, 0.98);
            pick.mark(MarkingAction.PRIMARY);
            studio.save("Target `SUBDOMAIN`: the bush is completely inside and becomes red with its faces; the "
                    + "bracket around it extends beyond the rectangle.");
            model.setActive(false);
        }
    }

    // Whole objects are the last target: three solids with numbers of their own.
    private static void pickObjects(Studio studio, Pick pick) throws IOException {
        SceneGraphDrawObjectSolid[] bodies = new SceneGraphDrawObjectSolid[3];
        for (int i = 0; i < bodies.length; ++i) {
            bodies[i] = new SceneGraphDrawObjectSolid(i);
            try (RenderDraw3D record = RenderDraw3D.read(i, "", studio.data("bracket_solid.txt"))) {
                PostDataReader.readDrawObjectSolid(record, studio.data("bracket_solid.txt"), 0, 300 * i, 0);
                record.complete();
                bodies[i].fillObject(record);
            }
            studio.show(bodies[i]);
        }
        studio.view(-35, 25);
        pick.rectangle(Target.OBJECT, false, 0.35, 0.08, 0.97, 0.65);
        pick.mark(MarkingAction.PRIMARY);
        studio.save("Target `OBJECT`: of the three brackets, the two in the rectangle are marked as a whole.");
        for (SceneGraphDrawObjectSolid body : bodies) {
            body.setActive(false);
            body.close();
        }
    }
}
