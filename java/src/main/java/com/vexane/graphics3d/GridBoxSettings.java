package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/** How the grid box around the scene looks in a view. */
public final class GridBoxSettings extends NativePeer {
    private GridBoxSettings() {}

    /**
     * Makes a peer of the grid box settings of a view. They live as long as the peer, even after the view is gone.
     *
     * @param settings the settings of the view
     * @return the peer
     * @throws NullPointerException if the settings are null
     * @throws IllegalStateException if the settings are closed
     */
    public static GridBoxSettings connect(Canvas3dSettings settings) {
        GridBoxSettings grid = new GridBoxSettings();
        connectNative(grid, requireOpen(settings, "settings"));
        return grid;
    }

    /** {@return whether the grid box is shown, initially true} */
    public boolean isGridShown() {
        return isGridShown(this);
    }

    /**
     * Sets whether the grid box is shown.
     *
     * @param show true to show it
     */
    public void setShowGrid(boolean show) {
        setShowGrid(this, show);
    }

    /** {@return the colour of the lines as 0xRRGGBB, initially grey} */
    public int getGridColor() {
        return getGridColor(this);
    }

    /**
     * Sets the colour of the lines.
     *
     * @param color 0xRRGGBB; higher bits are ignored
     */
    public void setGridColor(int color) {
        setGridColor(this, color);
    }

    /** {@return the colour of the labels as 0xRRGGBB, initially black} */
    public int getLabelColor() {
        return getLabelColor(this);
    }

    /**
     * Sets the colour of the labels.
     *
     * @param color 0xRRGGBB; higher bits are ignored
     */
    public void setLabelColor(int color) {
        setLabelColor(this, color);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(GridBoxSettings peer, Canvas3dSettings owner);

    private static native void cleanupNative(GridBoxSettings peer);

    private static native boolean isGridShown(GridBoxSettings peer);

    private static native void setShowGrid(GridBoxSettings peer, boolean show);

    private static native int getGridColor(GridBoxSettings peer);

    private static native void setGridColor(GridBoxSettings peer, int color);

    private static native int getLabelColor(GridBoxSettings peer);

    private static native void setLabelColor(GridBoxSettings peer, int color);
}
