/**
 * Camera movement from mouse events, for the views of any renderer.
 *
 * <p>{@link CameraInteraction} is the only class. One interaction belongs to one view: it turns presses, drags,
 * releases, the wheel and rectangles into movements of the view's current camera, as specified in the table of mouse
 * actions of {@link com.vexane.graphics3d.Canvas3dGlobalSettings}.
 *
 * <pre>{@code
 * Canvas3dGlobalSettings.setDefaultCameraMouseActions();
 * CameraInteraction interaction = CameraInteraction.connect(renderer, height);
 * interaction.press(1, CameraInteraction.keyMask(shift, control, alt), x, y);
 * if (interaction.drag(x, y)) {
 *     renderer.draw();
 * }
 * interaction.release();
 * }</pre>
 *
 * <p>The interaction owns no view and no camera, but keeps the settings of the view alive until it is closed. Its calls
 * must come from the thread that uses the view, and never while the view is drawn.
 */
package com.vexane.interaction;
