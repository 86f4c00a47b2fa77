package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import java.util.NoSuchElementException;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

class LightsTest {
    private Scene scene;
    private SceneLight light;

    @BeforeEach
    void makeScene() {
        scene = new Scene();
        light = SceneLight.connect(scene);
    }

    @AfterEach
    void closeScene() {
        light.close();
        scene.close();
    }

    @Test
    void everyValueOfTheSceneLightIsReadBack() {
        assertEquals(1.0f, light.getTotalLightSourceIntensity());
        assertEquals(1.0f, light.getAmbientIntensity());
        assertEquals(0xffffff, light.getGlobalAmbientColor());
        light.setTotalLightSourceIntensity(0.5f);
        light.setAmbientIntensity(0.25f);
        light.setGlobalAmbientColor(0xff102030);
        assertEquals(0.5f, light.getTotalLightSourceIntensity());
        assertEquals(0.25f, light.getAmbientIntensity());
        assertEquals(0x102030, light.getGlobalAmbientColor());
        try (SceneLight second = SceneLight.connect(scene)) {
            assertEquals(0.25f, second.getAmbientIntensity(), "one light, two peers");
        }
    }

    @Test
    void everyValueOfALightSourceIsReadBack() {
        try (DirectionLightSource source = DirectionLightSource.connect(light, light.createDirectionLight())) {
            assertEquals(1, source.getId());
            assertEquals(LightSource.Type.DIRECTION, source.getType());
            assertEquals("", source.getName());
            assertFalse(source.isActive());
            assertFalse(source.isLockedToCamera());
            assertEquals(0xffffff, source.getColor());
            assertEquals(0.0f, source.getIntensity());
            assertEquals(0.0f, source.getAmbientIntensity());
            assertEquals(0.0f, source.getSpecularIntensity());
            source.setName("S\u00fcd");
            source.setColor(0x010203);
            source.setIntensity(1.0f);
            source.setAmbientIntensity(2.0f);
            source.setSpecularIntensity(3.0f);
            source.setSelected(true);
            source.setMarkerVisibility(true);
            assertEquals("S\u00fcd", source.getName());
            assertEquals(0x010203, source.getColor());
            assertEquals(1.0f, source.getIntensity());
            assertEquals(2.0f, source.getAmbientIntensity());
            assertEquals(3.0f, source.getSpecularIntensity());
            assertTrue(source.setActive(true));
            assertTrue(source.isActive());
            assertFalse(source.setActive(false));
        }
    }

    @Test
    void positionsAndDirectionsAreReadBack() {
        try (DirectionLightSource direction = DirectionLightSource.connect(light, light.createDirectionLight());
                PointLightSource point = PointLightSource.connect(light, light.createPointLight());
                SpotLightSource spot = SpotLightSource.connect(light, light.createSpotLight())) {
            assertArrayEquals(new float[] {0, 0, 1}, direction.getFromDirection());
            assertArrayEquals(new float[] {0, 0, 0}, point.getPosition());
            assertArrayEquals(new float[] {0, 0, 1}, spot.getPosition());
            assertArrayEquals(new float[] {0, 0, -1}, spot.getAtDirection());
            assertEquals(0.7853982f, spot.getSpreadAngle());
            direction.setFromDirection(false, 1, 2, 3);
            assertTrue(direction.isLockedToCamera());
            assertArrayEquals(new float[] {1, 2, 3}, direction.getFromDirection());
            point.setPosition(true, 4, 5, 6);
            assertArrayEquals(new float[] {4, 5, 6}, point.getPosition());
            spot.setAtDirection(1, 0, 0);
            spot.setPosition(true, 7, 8, 9);
            assertArrayEquals(new float[] {7, 8, 9}, spot.getPosition());
            assertArrayEquals(new float[] {0, 0, 1}, spot.getAtDirection(), "a new position turns the light");
            spot.setAtDirection(1, 0, 0);
            assertArrayEquals(new float[] {1, 0, 0}, spot.getAtDirection());
            spot.setSpreadAngle(0.5f);
            assertEquals(0.5f, spot.getSpreadAngle());
        }
    }

    @Test
    void theNinthLightStaysOff() {
        PointLightSource[] sources = new PointLightSource[9];
        for (int i = 0; i < 9; ++i) {
            sources[i] = PointLightSource.connect(light, light.createPointLight());
            assertEquals(i < 8, sources[i].setActive(true));
        }
        sources[0].setActive(false);
        assertTrue(sources[8].setActive(true));
        light.removeAllLightSources();
        for (PointLightSource source : sources) {
            assertFalse(source.isActive(), "removal switches off");
            source.close();
        }
    }

    @Test
    void lockingTwiceMovesOnce() {
        try (Camera3d camera = new Camera3d();
                PointLightSource point = PointLightSource.connect(light, light.createPointLight())) {
            camera.setPosition(0, -5, 0, 0, 1, 0, 0, 0, 1);
            point.setPosition(true, 1, 2, 3);
            point.releaseFromCamera(camera);
            assertArrayEquals(new float[] {1, 2, 3}, point.getPosition());
            point.lockToCamera(camera);
            point.lockToCamera(camera);
            assertTrue(point.isLockedToCamera());
            assertArrayEquals(new float[] {1, 3, -2}, point.getPosition(), "right, up and towards the eye");
            point.releaseFromCamera(camera);
            point.releaseFromCamera(camera);
            assertArrayEquals(new float[] {1, 2, 3}, point.getPosition());
        }
    }

    @Test
    void onlyAnOpenCameraCanBeLockedTo() {
        Camera3d closed = new Camera3d();
        closed.close();
        try (PointLightSource point = PointLightSource.connect(light, light.createPointLight())) {
            assertThrows(IllegalStateException.class, () -> point.lockToCamera(closed));
            assertThrows(NullPointerException.class, () -> point.lockToCamera(null));
            assertThrows(IllegalStateException.class, () -> point.releaseFromCamera(closed));
            assertThrows(NativeException.class, () -> Natives.call(LightSource.class, "lockToCamera", point, null));
            assertThrows(NativeException.class, () -> Natives.call(LightSource.class, "lockToCamera", point, closed));
            assertFalse(point.isLockedToCamera());
        }
    }

    @Test
    void idsAreNeverReusedAndMissingOnesAreRefused() {
        assertEquals(1, light.createSpotLight());
        assertTrue(light.lightSourceExists(1));
        assertEquals(LightSource.Type.SPOT, light.getLightSourceType(1));
        assertTrue(light.removeLightSource(1));
        assertFalse(light.removeLightSource(1));
        assertEquals(2, light.createPointLight());
        for (int id : new int[] {1, 0, -1, Integer.MAX_VALUE, Integer.MIN_VALUE}) {
            assertFalse(light.lightSourceExists(id));
            assertThrows(NoSuchElementException.class, () -> light.getLightSourceType(id));
            NativeException missing =
                    assertThrows(NativeException.class, () -> PointLightSource.connect(light, id));
            assertEquals("There is no light source " + id + ".", missing.getDetail());
            assertThrows(NativeException.class,
                    () -> Natives.call(SceneLight.class, "getLightSourceType", light, id));
        }
        NativeException wrongKind = assertThrows(NativeException.class, () -> SpotLightSource.connect(light, 2));
        assertEquals("Argument \"lightId\": expected class SpotLightSource, found class PointLightSource.",
                wrongKind.getDetail());
    }

    @Test
    void aLightOutlivesItsRemovalAndItsScene() {
        int id = light.createPointLight();
        try (PointLightSource source = PointLightSource.connect(light, id)) {
            source.setActive(true);
            light.removeLightSource(id);
            assertFalse(source.isActive());
            source.setIntensity(2.0f);
            light.close();
            scene.close();
            source.setIntensity(3.0f);
            assertTrue(source.setActive(true), "there is no scene light to refuse it");
            source.setPosition(true, 1, 1, 1);
            assertEquals(3.0f, source.getIntensity());
        }
        assertThrows(IllegalStateException.class, () -> SceneLight.connect(scene));
        assertThrows(IllegalStateException.class, () -> PointLightSource.connect(light, 1));
        assertThrows(NativeException.class, light::createPointLight);
    }

    @Test
    void badArgumentsAreRefusedAndNothingChanges() {
        try (SpotLightSource spot = SpotLightSource.connect(light, light.createSpotLight())) {
            assertThrows(NullPointerException.class, () -> spot.setName(null));
            assertThrows(NativeException.class, () -> Natives.call(LightSource.class, "setName", spot, null));
            float[] two = {5, 5};
            for (String getter : new String[] {"getPosition", "getAtDirection"}) {
                assertThrows(NativeException.class, () -> Natives.call(SpotLightSource.class, getter, spot, two));
                assertThrows(NativeException.class, () -> Natives.call(SpotLightSource.class, getter, spot, null));
                float[] four = {5, 5, 5, 5};
                assertEquals(1, Natives.call(SpotLightSource.class, getter, spot, four));
                assertEquals(5.0f, four[3]);
            }
            assertArrayEquals(new float[] {5, 5}, two);
            assertThrows(NullPointerException.class, () -> SpotLightSource.connect(null, 1));
        }
    }
}
