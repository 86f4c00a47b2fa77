/**
 * A renderer that draws scenes into memory and PNG files, without a window.
 *
 * <p>{@link OffscreenRenderer} is the only class: one view with its settings and its drawing context.
 *
 * <pre>{@code
 * try (OffscreenRenderer renderer = OffscreenRenderer.create(1600, 1000, 4);
 *         Canvas3dSettings settings = Canvas3dSettings.connect(renderer)) {
 *     settings.setShadedBackground(Canvas3dSettings.RenderMode.VIEW_3D, 0xffffff, 0xd0d8e0);
 *     renderer.setScene(scene);
 *     renderer.viewFrom(-50, 30);
 *     renderer.draw();
 *     renderer.writePng(Path.of("plot.png"));
 * }
 * }</pre>
 *
 * <p>A view owns its settings and keeps the scene that it shows alive. Closing it releases its drawing context; peers
 * of its settings stay usable. Calls may come from any thread, one at a time; while a picture is drawn, no other thread
 * may change the scene or the settings.
 */
package com.vexane.renderer;
