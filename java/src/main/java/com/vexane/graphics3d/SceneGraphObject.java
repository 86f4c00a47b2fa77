package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/** A leaf of the scene tree that shows geometry, with a colour and a shininess of its own. */
public abstract class SceneGraphObject extends SceneGraphNode {
    /** The kinds of objects. */
    public enum ObjectType implements NativeEnum {
        /** A construction object. */
        OTHER(0),
        /** A solid. */
        SOLID(1),
        /** A face. */
        FACE(2),
        /** A curve. */
        CURVE(3),
        /** A point. */
        POINT(4),
        /** A physics object. */
        PHYSICS(5);

        private final int number;

        ObjectType(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    SceneGraphObject() {}

    /** {@return the object's own colour as 0xRRGGBB, initially white} */
    public int getObjectColor() {
        return getObjectColor(this);
    }

    /**
     * Sets the object's own colour.
     *
     * @param color the colour as 0xRRGGBB; higher bits are ignored
     */
    public void setObjectColor(int color) {
        setObjectColor(this, color);
    }

    /** {@return whether the object is shown in its own colour, initially false} */
    public boolean isObjectColorUsed() {
        return isObjectColorUsed(this);
    }

    /**
     * Sets whether the object is shown in its own colour.
     *
     * @param use true to use it
     */
    public void setUseObjectColor(boolean use) {
        setUseObjectColor(this, use);
    }

    /** {@return the exponent of the highlight: 1 to 128, initially 64} */
    public float getShininess() {
        return getShininess(this);
    }

    /**
     * Sets the exponent of the highlight.
     *
     * @param shininess the exponent; values outside 1 to 128 become the nearest limit, and NaN becomes 1
     */
    public void setShininess(float shininess) {
        setShininess(this, shininess);
    }

    private static native int getObjectColor(SceneGraphObject peer);

    private static native void setObjectColor(SceneGraphObject peer, int color);

    private static native boolean isObjectColorUsed(SceneGraphObject peer);

    private static native void setUseObjectColor(SceneGraphObject peer, boolean use);

    private static native float getShininess(SceneGraphObject peer);

    private static native void setShininess(SceneGraphObject peer, float shininess);
}
