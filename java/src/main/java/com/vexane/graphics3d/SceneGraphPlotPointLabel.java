package com.vexane.graphics3d;

import java.util.Objects;

/**
 * Texts at points. The points come from the first group of a record, the texts from {@link #setLabels}: the first text
 * belongs to the first point, and so on. Points without a text and texts without a point are not drawn.
 *
 * <p>A record of the kind {@code POINT_LABEL_2D} has points in the plane, one of any other kind points in space. A point
 * takes about 150 bytes of native memory.
 */
public final class SceneGraphPlotPointLabel extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param dimension 2 for points in the plane, any other number for points in space
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotPointLabel(int dimension, int id) {
        createNative(this, dimension, id);
    }

    /**
     * Sets the texts. They stay when the points change.
     *
     * @param labels plain texts, one per point
     * @throws NullPointerException if the array or a text is null
     */
    public void setLabels(String... labels) {
        for (String label : labels) {
            Objects.requireNonNull(label, "label");
        }
        setLabels(this, labels);
    }

    private static native void setLabels(SceneGraphPlotPointLabel peer, String[] labels);

    private static native void createNative(SceneGraphPlotPointLabel peer, int dimension, int id);
}
