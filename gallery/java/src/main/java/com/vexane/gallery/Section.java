package com.vexane.gallery;

/** The themes of the gallery, in the order of its first page. */
public enum Section {
    /** One plot class, or several of them in one picture. */
    PLOTS("Plots", "Surfaces, lines, arrows, tubes, slices, contours and graphs from data of simulations and measurements."),
    /** Cameras, axes, lights and windows. */
    VIEWS("Views", "Cameras, axes, lights and legends: what decides how a scene is shown."),
    /** Geometry that is no plot. */
    OBJECTS("Objects", "Geometry beside the plots: solids, their parts and marks, objects that a user picks and draws."),
    /** What lies over the scene. */
    OVERLAYS("Overlays", "Shapes and curves on top of a view, and their editing."),
    /** How to reach something that takes several classes. */
    RECIPES("Recipes", "Tasks that take several classes together.");

    private final String title;
    private final String text;

    Section(String title, String text) {
        this.title = title;
        this.text = text;
    }

    String title() {
        return title;
    }

    String text() {
        return text;
    }

    /** The name of its heading on the first page, for links. */
    String anchor() {
        return name().toLowerCase(java.util.Locale.ROOT);
    }
}
