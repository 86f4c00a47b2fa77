package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.Camera3d.ProjectionType;
import java.util.List;
import java.util.function.Consumer;
import org.junit.jupiter.api.Test;

class Camera3dTest {
    private static float[] direction(Camera3d camera) {
        return new float[] {
            camera.getLookAtDirectionX(), camera.getLookAtDirectionY(), camera.getLookAtDirectionZ()
        };
    }

    @Test
    void positionIsReadBackWithTheLengthOfItsDirection() {
        try (Camera3d camera = new Camera3d()) {
            camera.setPosition(1, 2, 3, 0, 4, 0, 0, 5, 2);
            assertArrayEquals(new float[] {1, 2, 3},
                    new float[] {camera.getPositionX(), camera.getPositionY(), camera.getPositionZ()});
            assertArrayEquals(new float[] {0, 4, 0}, direction(camera));
            assertArrayEquals(new float[] {0, 0, 1},
                    new float[] {camera.getUpDirectionX(), camera.getUpDirectionY(), camera.getUpDirectionZ()});
        }
    }

    @Test
    void everyReadableValueIsReadBack() {
        try (Camera3d camera = new Camera3d()) {
            assertEquals(20, camera.getFieldOfView(), 1e-5);
            camera.setFieldOfView(45);
            assertEquals(45, camera.getFieldOfView(), 1e-5);
            camera.setOrthographicSize(7);
            assertEquals(7, camera.getOrthographicSize());
            camera.setViewingScale(3);
            assertEquals(3, camera.getViewingScale());
            camera.setRelativeViewOffset(0.25f, -0.5f);
            assertEquals(0.25f, camera.getRelativeViewOffsetX());
            assertEquals(-0.5f, camera.getRelativeViewOffsetY());
            camera.setAxisViewScales(2, 3, 4);
            camera.setRotationPoint(5, 6, 7);
            assertArrayEquals(new float[] {2, 3, 4, 5, 6, 7}, new float[] {
                camera.getAxisViewScaleX(), camera.getAxisViewScaleY(), camera.getAxisViewScaleZ(),
                camera.getRotationPointX(), camera.getRotationPointY(), camera.getRotationPointZ()
            });
            camera.setAxisViewScalesAuto(); // There is no scene whose box could become a cube.
            assertEquals(1, camera.getAxisViewScaleZ());
            camera.setAxisViewScales(2, 3, 4);
            camera.resetAxisViewScales();
            assertEquals(1, camera.getAxisViewScaleY());
        }
    }

    @Test
    void projectionsAreNumberedTheOtherWayRoundInNativeCode() {
        try (Camera3d camera = new Camera3d()) {
            camera.setPosition(0, 0, 10, 0, 0, -1, 0, 1, 0);
            camera.setFieldOfView(45);
            assertEquals(ProjectionType.PERSPECTIVE, camera.getProjectionType());
            camera.setProjectionType(ProjectionType.ORTHOGRAPHIC);
            assertEquals(ProjectionType.ORTHOGRAPHIC, camera.getProjectionType());
            // What is visible at 45 degrees to each side at the rotation point, ten units away.
            assertEquals(20, camera.getOrthographicSize(), 1e-5);
            Natives.call(Camera3d.class, "setProjectionType", camera, 7);
            assertEquals(ProjectionType.PERSPECTIVE, camera.getProjectionType());
        }
    }

    @Test
    void zoomHalvesTheExtentsAndKeepsTheCentre() {
        try (Camera3d camera = new Camera3d()) {
            camera.setOrthographicSize(8);
            camera.setProjectionType(ProjectionType.ORTHOGRAPHIC);
            camera.setOrthographicSize(8);
            camera.zoomCenter(2);
            assertEquals(4, camera.getOrthographicSize());
            assertEquals(0, camera.getRelativeViewOffsetX());
        }
    }

    @Test
    void anOwnResizeBehaviourDecidesWhichAngleCounts() {
        try (Camera3d camera = new Camera3d()) {
            for (ResizeBehaviour behaviour : ResizeBehaviour.values()) {
                camera.setOverrideResizeBehaviour(true, behaviour);
                boolean byAngle = behaviour != ResizeBehaviour.PIXELS && behaviour != ResizeBehaviour.KEEP;
                assertEquals(byAngle ? 20 : 0, camera.getFieldOfView(), 1e-5, behaviour.name());
            }
            camera.setOverrideResizeBehaviour(false, ResizeBehaviour.KEEP);
            assertEquals(20, camera.getFieldOfView(), 1e-5);
        }
    }

    @Test
    void badArgumentsAreRefused() {
        Camera3d closed = new Camera3d();
        closed.close();
        closed.close();
        try (Camera3d camera = new Camera3d()) {
            assertThrows(NullPointerException.class, () -> camera.setProjectionType(null));
            assertThrows(NullPointerException.class, () -> camera.setOverrideResizeBehaviour(true, null));
            assertThrows(NativeException.class, closed::getPositionX);
            assertThrows(NativeException.class, () -> closed.zoomCenter(2));
            assertThrows(NativeException.class, () -> Natives.call(Camera3d.class, "zoomCenter", null, 2f));
            Natives.call(Camera3d.class, "setOverrideResizeBehaviour", camera, true, Integer.MIN_VALUE);
            assertEquals(20, camera.getFieldOfView(), 1e-5);
        }
    }

    @Test
    void meaninglessNumbersAreHarmless() {
        float[] numbers = {0, -1, Float.NaN, Float.POSITIVE_INFINITY, -Float.MAX_VALUE, Float.MIN_VALUE};
        List<Consumer<Camera3d>> projections = List.of(c -> c.setProjectionType(ProjectionType.ORTHOGRAPHIC),
                c -> c.setProjectionType(ProjectionType.PERSPECTIVE));
        try (Camera3d camera = new Camera3d()) {
            for (float number : numbers) {
                for (Consumer<Camera3d> projection : projections) {
                    camera.setPosition(number, 0, 0, number, number, number, 0, number, 0);
                    camera.setRotationPoint(number, number, number);
                    camera.setAxisViewScales(number, number, number);
                    camera.setFieldOfView(number);
                    camera.setViewingScale(number);
                    camera.setOrthographicSize(number);
                    camera.setRelativeViewOffset(number, number);
                    camera.zoomCenter(number);
                    camera.setAxisViewScalesAuto();
                    projection.accept(camera);
                }
            }
            camera.setPosition(0, 0, 10, 0, 0, -2, 0, 1, 0);
            camera.setFieldOfView(30);
            assertArrayEquals(new float[] {0, 0, -2}, direction(camera));
            assertEquals(30, camera.getFieldOfView(), 1e-5);
        }
    }
}
