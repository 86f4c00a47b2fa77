package com.vexane.gallery;

import com.vexane.graphics3d.CanvasPickSettings;
import com.vexane.graphics3d.CanvasPickSettings.Mask;
import com.vexane.graphics3d.CanvasPickSettings.Target;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.PickedObject;
import com.vexane.graphics3d.PickedObjectCollection;
import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphDrawObjectSolid;
import com.vexane.graphics3d.SceneGraphGroup;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.interaction.PickInteraction;
import com.vexane.producer.RenderDraw3D;
import com.vexane.renderer.OffscreenRenderer;
import java.nio.file.Path;
import java.util.EnumSet;

/** The first pick from Java: a face of a bracket by a click, and the vertices in a rectangle. */
public final class FirstPick {
    public static void main(String[] arguments) throws Exception {
        Path solid = Path.of(arguments.length > 0 ? arguments[0] : "data/bracket_solid.txt");
        try (RenderDraw3D record = RenderDraw3D.read(1, "Bracket", solid);
                Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup group = new SceneGraphGroup();
                SceneGraphDrawObjectSolid bracket = new SceneGraphDrawObjectSolid(1);
                OffscreenRenderer renderer = OffscreenRenderer.create(800, 500, 4);
                CanvasPickSettings settings = new CanvasPickSettings(renderer);
                PickInteraction picking = PickInteraction.connect(renderer, renderer.getHeight());
                PickedObjectCollection hits = new PickedObjectCollection()) {
            bracket.fillObject(record);
            group.addChild(bracket);
            root.setChild(group);
            renderer.setScene(scene);
            renderer.viewFrom(-35, 25);
            renderer.draw(); // also gives the camera its area of the picture
            settings.setPickMask(EnumSet.allOf(Mask.class));

            settings.setPickTarget(Target.SHEET);
            if (picking.click(scene, hits, 422, 208) > 0) {
                PickedObject nearest = hits.get(0);
                System.out.println("Object " + nearest.objectId() + ", face " + nearest.partId());
                bracket.markPart(ObjectPartType.SHEET, nearest.partId(), MarkingAction.PRIMARY);
            }

            settings.setPickTarget(Target.POINT);
            picking.rectangle(scene, hits, 400, 50, 700, 300);
            renderer.draw(); // the mark may have changed what is visible
            renderer.keepVisible(hits);
            PickInteraction.mark(scene, hits, MarkingAction.SECONDARY);

            renderer.draw();
            renderer.writePng(Path.of(arguments.length > 1 ? arguments[1] : "first-pick.png"));
        }
    }
}
