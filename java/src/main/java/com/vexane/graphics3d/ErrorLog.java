package com.vexane.graphics3d;

/** placeholder */
public final class ErrorLog {
    private ErrorLog() {}
    private static native void nSetActive(boolean active);
}
