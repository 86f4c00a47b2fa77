package com.vexane.gallery;

import java.io.IOException;

/** A small program that draws one picture, or several of one plot. */
public interface Picture {
    /**
     * Draws and saves.
     *
     * @param studio the scene, the camera and the data
     * @throws IOException if a file cannot be read or written
     */
    void draw(Studio studio) throws IOException;
}
