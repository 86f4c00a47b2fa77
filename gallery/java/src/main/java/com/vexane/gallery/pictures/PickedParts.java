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
        text = "What a click or a rectangle finds, marked in the first colour. A rectangle finds what is "
                + "completely inside, and by itself also what is behind other faces. A click finds what it "
                + "touches, the nearest first.",
        section = Section.OBJECTS,
        pages = "picking")
public final class PickedParts implements Picture {
    private static final int BODIES = 3;

    @Override
    public void draw(Studio studio) throws IOException {
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

    /** A rectangle in fractions of the picture, what it finds, and the picture of both. */
    private record Pick(Studio studio, CanvasPickSettings settings, PickInteraction picking, RubberBand band,
            PickedObjectCollection hits) {
        private int[] pixels(double[] area) {
            int width = studio.renderer().getWidth();
            int height = studio.renderer().getHeight();
            return new int[] {(int) (area[0] * width), (int) (area[1] * height), (int) (area[2] * width),
                (int) (area[3] * height)};
        }

        void draw(Target target, double[] area, boolean isVisibleOnly, String caption) throws IOException {
            int[] pixels = pixels(area);
            settings.setPickTarget(target);
            studio.renderer().draw(); // the depths that tell what is visible
            band.press(pixels[0], pixels[1]);
            band.drag(pixels[2], pixels[3]);
            picking.rectangle(studio.scene(), hits, pixels[0], pixels[1], pixels[2], pixels[3]);
            if (isVisibleOnly) {
                studio.renderer().keepVisible(hits);
            }
            PickInteraction.mark(studio.scene(), hits, MarkingAction.PRIMARY);
            studio.save(caption);
            PickInteraction.unmark(studio.scene(), hits, MarkingAction.PRIMARY);
            band.cancel();
        }

        /** Marks what the picture shows in the first colour, and what is behind it in the second. */
        void drawWithHidden(double[] area) throws IOException {
            draw(Target.SHEET, area, true, "Target sheet: the faces inside that the picture shows.");
            int[] pixels = pixels(area);
            picking.rectangle(studio.scene(), hits, pixels[0], pixels[1], pixels[2], pixels[3]);
            try (PickedObjectCollection visible = new PickedObjectCollection()) {
                picking.rectangle(studio.scene(), visible, pixels[0], pixels[1], pixels[2], pixels[3]);
                studio.renderer().draw();
                studio.renderer().keepVisible(visible);
                PickInteraction.mark(studio.scene(), hits, MarkingAction.SECONDARY);
                PickInteraction.unmark(studio.scene(), visible, MarkingAction.SECONDARY);
                PickInteraction.mark(studio.scene(), visible, MarkingAction.PRIMARY);
                studio.view(145, 25).save("The same from behind: a pick goes through, and finds the others as well.");
                PickInteraction.unmark(studio.scene(), visible, MarkingAction.PRIMARY);
                PickInteraction.unmark(studio.scene(), hits, MarkingAction.SECONDARY);
            }
        }
    }

    private static void pickFromSolid(Studio studio, Pick pick, Overlay screen) throws IOException {
        double[] area = {0.31, 0.1, 0.72, 0.76};
        try (SceneGraphDrawObjectSolid bracket = new SceneGraphDrawObjectSolid(1);
                RenderDraw3D record = RenderDraw3D.read(1, "", studio.data("bracket_solid.txt"));
                OverlaySymbol pointer = new OverlaySymbol()) {
            bracket.fillObject(record);
            studio.show(bracket).view(-35, 25);
            pick.drawWithHidden(area);
            studio.view(-35, 25);
            pick.draw(Target.LINE, area, true, "Target line: the visible edges inside.");
            pick.draw(Target.POINT, area, true, "Target point: the visible vertices inside.");

            int x = studio.renderer().getWidth() / 2;
            int y = studio.renderer().getHeight() * 9 / 20;
            pointer.setLocation(x + 0.5, y + 0.5);
            pointer.setUseColor(true);
            pointer.setOutlineColor(0, 0, 0, 255);
            screen.addOverlayObject(pointer, 1);
            pick.settings.setPickTarget(Target.SHEET);
            pick.picking.click(studio.scene(), pick.hits, x, y);
            PickInteraction.mark(studio.scene(), pick.hits, MarkingAction.SECONDARY);
            bracket.unmarkPart(ObjectPartType.SHEET, pick.hits.get(0).partId(), MarkingAction.SECONDARY);
            bracket.markPart(ObjectPartType.SHEET, pick.hits.get(0).partId(), MarkingAction.PRIMARY);
            studio.save("A click at the symbol: the nearest face in the first colour, those behind it in the second.");
            screen.removeOverlayObject(pointer);
            bracket.setActive(false);
        }
    }

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
            pick.draw(Target.SUBDOMAIN, new double[] {0.49, 0.42, 0.71, 0.74}, false,
                    "Target subdomain: the bush is inside.");
            model.setActive(false);
        }
    }

    private static void pickObjects(Studio studio, Pick pick) throws IOException {
        SceneGraphDrawObjectSolid[] bodies = new SceneGraphDrawObjectSolid[BODIES];
        for (int i = 0; i < BODIES; ++i) {
            bodies[i] = new SceneGraphDrawObjectSolid(i);
            try (RenderDraw3D record = RenderDraw3D.read(i, "", studio.data("bracket_solid.txt"))) {
                PostDataReader.readDrawObjectSolid(record, studio.data("bracket_solid.txt"), 0, 300 * i, 0);
                record.complete();
                bodies[i].fillObject(record);
            }
            studio.show(bodies[i]);
        }
        studio.view(-35, 25);
        pick.draw(Target.OBJECT, new double[] {0.35, 0.08, 0.97, 0.65}, false,
                    "Target object: those of which all vertices, edges or faces are inside.");
        for (SceneGraphDrawObjectSolid body : bodies) {
            body.setActive(false);
            body.close();
        }
    }
}
