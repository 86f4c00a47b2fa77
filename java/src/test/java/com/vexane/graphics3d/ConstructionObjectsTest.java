package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.RenderDraw2D;
import org.junit.jupiter.api.Test;

/** Work planes, projections, balls, boxes and probes as a program sets them. What they show is tested with a renderer. */
class ConstructionObjectsTest {
    private static final float[] PLANE = {0, 0, 0, 1, 0, 0, 0, 1, 0, -1, 1, -1, 1};

    @Test
    void aWorkPlaneRefusesWhatCannotBeDrawn() {
        try (SceneGraphFeatureObject plane = new SceneGraphFeatureObject()) {
            plane.setWorkPlane(PLANE);
            NativeException refused =
                    assertThrows(NativeException.class, () -> plane.setRevolve(new float[] {1, 2, 0, 0}));
            assertEquals("WorkPlane: the direction of the axis of revolution has no length.", refused.getDetail());
            float[] narrow = PLANE.clone();
            narrow[10] = 1e9f;
            narrow[12] = -1 + 1e-7f;
            refused = assertThrows(NativeException.class, () -> plane.setWorkPlane(narrow));
            assertTrue(refused.getDetail().contains("too narrow"), refused::getDetail);
            assertThrows(NullPointerException.class, () -> plane.setWorkPlane(null));
            // Other lengths are ignored.
            plane.setWorkPlane(new float[14]);
            plane.setRevolve(new float[3]);
            plane.setExtrude(new float[0]);
        }
    }

    @Test
    void aWorkPlaneOfAGroupHasFurtherPeers() {
        try (SceneGraphGroup group = new SceneGraphGroup();
                SceneGraphFeatureObject plane = new SceneGraphFeatureObject();
                SceneGraphBallBox ball = new SceneGraphBallBox()) {
            group.addChild(plane);
            group.addChild(ball);
            plane.setShininess(7);
            try (SceneGraphFeatureObject again = SceneGraphFeatureObject.connect(group, plane.getChildId())) {
                assertEquals(7, again.getShininess());
            }
            assertEquals(SceneGraphObject.ObjectType.OTHER, group.getChildObjectType(plane.getChildId()));
            assertThrows(NativeException.class, () -> SceneGraphFeatureObject.connect(group, ball.getChildId()));
        }
    }

    @Test
    void aProjectionTakesRecordsOfProjectionsOnly() {
        try (SceneGraphDrawProj projection = new SceneGraphDrawProj(12);
                RenderDraw2D area = new GeometryBuilder2D().points(new double[1], new double[1]).buildDraw(12, "Point")) {
            assertEquals(12, projection.getId());
            NativeException refused = assertThrows(NativeException.class, () -> projection.fillObject(area));
            assertTrue(refused.getDetail().contains("expected class RenderDrawProj2D, found class RenderDraw2D"),
                    refused::getDetail);
        }
    }

    @Test
    void ballsAndBoxesHaveThreeCoordinates() {
        try (SceneGraphBallBox object = new SceneGraphBallBox()) {
            assertThrows(IllegalArgumentException.class, () -> object.setBall(new double[2], 1));
            assertThrows(IllegalArgumentException.class, () -> object.setBox(new double[3], new double[4]));
            object.setBox(new double[3], new double[] {1, 2, 3});
        }
    }
}
