package com.vexane.graphics3d;

/**
 * A plot of a mesh whose elements are coloured by data.
 *
 * <p>Each group of the record has elements of one kind, by the number of their corners: one for points, which are drawn
 * as small cubes, two for lines, three for faces. A group of faces is followed by one with their edges, which is the
 * wireframe of these faces and is not coloured by data; another group of faces needs such a group of its own.
 *
 * <p>All groups have colour data and share one colour scale. Give the wireframe the values of its faces: limits are
 * those of all groups. A record of the kind {@code MESH_3D} is drawn in space, where faces need normals, and one of any
 * other kind in the plane.
 */
public final class SceneGraphPlotMesh3d extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     * @param dimensions 2 for a mesh in the plane; any other number for one in space
     */
    public SceneGraphPlotMesh3d(int id, int dimensions) {
        createNative(this, id, dimensions);
    }

    /**
     * Shows or hides the faces; lines, points and wireframes stay. Hiding them also replaces the colour table by the
     * uniform colour of the plot, and showing them again does not bring it back.
     *
     * @param display true to show the faces, the initial state
     */
    public void setDisplayInterior(boolean display) {
        setDisplayInterior(this, display);
    }

    /**
     * Shows or hides the wireframes of faces.
     *
     * @param display true to show the wireframes, the initial state
     */
    public void setDisplayWireframe(boolean display) {
        setDisplayWireframe(this, display);
    }

    /**
     * Sets the colour of wireframes, initially black.
     *
     * @param color {@code 0xRRGGBB}
     */
    public void setWireframeColor(int color) {
        setWireframeColor(this, color);
    }

    private static native void createNative(SceneGraphPlotMesh3d peer, int id, int dimensions);

    private static native void setDisplayInterior(SceneGraphPlotMesh3d peer, boolean display);

    private static native void setDisplayWireframe(SceneGraphPlotMesh3d peer, boolean display);

    private static native void setWireframeColor(SceneGraphPlotMesh3d peer, int color);
}
