package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.producer.GeometryBuilder1D;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.GeometryBuilder3D;
import com.vexane.producer.RenderDraw1D;
import com.vexane.producer.RenderDraw2D;
import com.vexane.producer.RenderDraw3D;
import com.vexane.producer.SheetGeometry;
import org.junit.jupiter.api.Test;

/** Draw objects as a program fills and marks them. */
class DrawObjectTest {
    private static final double[] X = {0, 1, 0};
    private static final double[] Y = {0, 0, 1};

    private static RenderDraw2D triangleInPlane(int id) {
        return new GeometryBuilder2D().points(X, Y)
                .addSheet(new SheetGeometry().coordinates(X, Y).triangles(new int[] {0}, new int[] {1}, new int[] {2}))
                .buildDraw(id, "triangle");
    }

    private static RenderDraw3D triangle(int id) {
        return new GeometryBuilder3D().points(X, Y, new double[3])
                .addSheet(new SheetGeometry().coordinates(X, Y, new double[3])
                        .triangles(new int[] {0}, new int[] {1}, new int[] {2}))
                .buildDraw(id, "triangle");
    }

    @Test
    void isFilledFromRecordsOfEachDimension() {
        try (RenderDraw1D axis = new GeometryBuilder1D().points(new double[] {0, 2}).addCurve(new double[] {0, 2})
                     .buildDraw(3, "rod");
                RenderDraw2D plane = triangleInPlane(3);
                RenderDraw3D space = triangle(3);
                SceneGraphDrawObjectPoint point = new SceneGraphDrawObjectPoint(3);
                SceneGraphDrawObjectCurve curve = new SceneGraphDrawObjectCurve(3);
                SceneGraphDrawObjectFace face = new SceneGraphDrawObjectFace(3);
                SceneGraphDrawObjectSolid solid = new SceneGraphDrawObjectSolid(3)) {
            point.fillObject1D(axis);
            point.fillObject2D(plane);
            point.fillObject(space);
            curve.fillObject2D(plane);
            curve.fillObject(space);
            curve.fillObject1D(axis);
            face.fillObject(space);
            face.fillObject2D(plane);
            solid.fillObject(space);
            assertEquals(3, solid.getId());
            curve.markPart(ObjectPartType.LINE, 0, MarkingAction.PRIMARY);
            face.markPart(ObjectPartType.SHEET, 0, MarkingAction.HIDDEN);
            point.markPart(ObjectPartType.POINT, 2, MarkingAction.UNPICKABLE);

            NativeException refused = assertThrows(NativeException.class, () -> solid.fillObject(plane));
            assertTrue(refused.getDetail().contains("expected class RenderDraw3D, found class RenderDraw2D"),
                    refused::getDetail);
            assertThrows(NullPointerException.class, () -> solid.fillObject(null));
            solid.markPart(ObjectPartType.SHEET, 0, MarkingAction.SECONDARY);
        }
    }

    @Test
    void refusesPartsThatItDoesNotHave() {
        try (RenderDraw3D record = triangle(1); SceneGraphDrawObjectFace face = new SceneGraphDrawObjectFace(1)) {
            face.mark(MarkingAction.PRIMARY);
            face.fillObject(record);
            NativeException refused = assertThrows(NativeException.class,
                    () -> face.markPart(ObjectPartType.SHEET, 1, MarkingAction.PRIMARY));
            assertEquals("There is no sheet 1 among 1.", refused.getDetail());
            assertThrows(NativeException.class, () -> face.unmarkPart(ObjectPartType.POINT, -1, MarkingAction.HIDDEN));
            face.markPart(ObjectPartType.SUBDOMAIN, 5, MarkingAction.PRIMARY);
            face.markPart(ObjectPartType.ALL, 5, MarkingAction.PRIMARY);
            face.unmarkAll(ObjectPartType.ALL, MarkingAction.PRIMARY);
            face.unmark(MarkingAction.PRIMARY);
        }
    }

    @Test
    void isFoundAgainUnderItsParent() {
        try (Scene scene = new Scene(); SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup group = new SceneGraphGroup();
                SceneGraphDrawObjectSolid solid = new SceneGraphDrawObjectSolid(12);
                SceneGraphDrawObjectCurve curve = new SceneGraphDrawObjectCurve(13)) {
            root.setChild(group);
            group.addChild(solid);
            group.addChild(curve);
            assertEquals(SceneGraphObject.ObjectType.CURVE, group.getChildObjectType(curve.getChildId()));
            try (SceneGraphDrawObjectCurve again = SceneGraphDrawObjectCurve.connect(group, curve.getChildId())) {
                assertEquals(13, again.getId());
            }
            NativeException refused = assertThrows(NativeException.class,
                    () -> SceneGraphDrawObjectCurve.connect(group, solid.getChildId()));
            assertTrue(refused.getDetail().contains("SceneGraphDrawObjectSolid"), refused::getDetail);
            assertThrows(NativeException.class, () -> SceneGraphDrawObjectSolid.connect(group, 77));
        }
    }
}
