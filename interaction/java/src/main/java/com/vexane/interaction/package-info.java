/**
 * Interaction from mouse events, for the views of any renderer.
 *
 * <p>A {@link CameraInteraction} belongs to one view: it turns presses, drags, releases, the wheel and rectangles into
 * movements of the view's current camera, as specified in the table of mouse actions of
 * {@link com.vexane.graphics3d.Canvas3dGlobalSettings}.
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
 * <p>A {@link PickInteraction} finds what a click touches and what a rectangle contains, and marks what was found.
 *
 * <p>Each {@link OverlayInteraction} changes an object of a view's overlay: {@link FrameInteraction} moves and scales a
 * frame, {@link CurveDrawing} draws a curve point by point, {@link CurveEditing} moves its vertices and control points. A
 * {@link RubberBand} is a rectangle that the user drags open, and an {@link OverlayPicker} finds the objects under the
 * pointer.
 *
 * <p>An interaction owns no view and no camera, but keeps the settings of the view alive until it is closed. Its calls
 * must come from the thread that uses the view, and never while the view is drawn.
 */
package com.vexane.interaction;
