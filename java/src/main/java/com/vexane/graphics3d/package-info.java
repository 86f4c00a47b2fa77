/**
 * The model of 2D and 3D visualisation: scenes with plots and lights, views with cameras, and settings.
 *
 * <p>Nearly every class is a peer of a native object. The model draws nothing. A renderer, such as that of
 * {@code com.vexane.renderer}, reads a scene and the settings of a view and makes the picture:
 *
 * <pre>{@code
 * try (Scene scene = new Scene();
 *         SceneGraphRoot root = SceneGraphRoot.connect(scene);
 *         SceneGraphPlotGroup group = new SceneGraphPlotGroup();
 *         SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
 *         OffscreenRenderer renderer = OffscreenRenderer.create(1600, 1000)) {
 *     root.setChild(group);
 *     group.addPlot(plot);
 *     plot.fillPlot(record);                  // made by com.vexane.producer or read from a file
 *     renderer.setScene(scene);
 *     renderer.draw();
 *     group.removeAllPlots();
 * }
 * }</pre>
 *
 * <h2>The scene: what is shown</h2>
 *
 * <ul>
 *   <li>A {@link Scene} has a tree and a light. The tree starts at its {@link SceneGraphRoot}, which has one child.
 *   <li>Every node is a {@link SceneGraphNode}. A {@link SceneGraphGroup} has any number of children, a
 *       {@link SceneGraphObject} shows geometry, and a {@link SceneGraphPlotGroup} has plots.
 *   <li>A {@link SceneGraphDrawObject} shows geometry whose parts can be marked and picked:
 *       {@link SceneGraphDrawObjectSolid}, {@link SceneGraphDrawObjectFace}, {@link SceneGraphDrawObjectCurve} and
 *       {@link SceneGraphDrawObjectPoint}. {@link MarkingAction} and {@link ObjectPartType} say what is done to which
 *       parts.
 *   <li>A {@link SceneGraphPhysicsObject} shows the geometry of a simulation model in the same way, with the meshes,
 *       materials and markers of its parts.
 *   <li>A {@link SceneGraphPlot} shows the values of one record with a colour table, a legend and a title:
 *       {@link SceneGraphPlotSurface2d}, {@link SceneGraphPlotSurface3d}, {@link SceneGraphPlotDomain3d},
 *       {@link SceneGraphPlotSlice3d} and {@link SceneGraphPlotMesh3d}. Levels of a field are a
 *       {@link SceneGraphPlotIso}: {@link SceneGraphPlotIsoSurface3d} or {@link SceneGraphPlotContour}.
 *       A {@link SceneGraphPlotGraph} shows lines with a {@link RenderSymbol} and a {@link LineStyle} each.
 *       Vectors are arrows in {@link SceneGraphPlotArrow2d} and {@link SceneGraphPlotArrow3d}, principal values and
 *       axes are in {@link SceneGraphPlotPrincipal}; lines are {@link SceneGraphPlotTube2d},
 *       {@link SceneGraphPlotTube3d} and {@link SceneGraphPlotRibbon3d}.
 *       Points are {@link SceneGraphPlotSphere2d} and {@link SceneGraphPlotSphere3d}, edges of elements
 *       {@link SceneGraphPlotEdge2d} and {@link SceneGraphPlotEdge3d}, texts {@link SceneGraphPlotPointLabel}, and points
 *       and lines of a program {@link SceneGraphPlotInteractive}.
 *       {@link PostDataReader} reads records from files.
 *   <li>Aids of construction are objects as well: work planes ({@link SceneGraphFeatureObject}), projected geometry
 *       ({@link SceneGraphDrawProj}), balls and boxes ({@link SceneGraphBallBox}) and probes
 *       ({@link SceneGraphProbeObject}).
 *   <li>The {@link SceneLight} of a scene makes and removes its light sources, which are
 *       {@linkplain DirectionLightSource directional lights}, {@linkplain PointLightSource point lights} and
 *       {@linkplain SpotLightSource spotlights}.
 * </ul>
 *
 * <h2>The view: how it is shown</h2>
 *
 * <ul>
 *   <li>{@link Canvas3dSettings} are the settings of one view. Their parts have peers of their own: {@link Camera3d},
 *       {@link Camera2d}, {@link AxisSetup} and {@link GridBoxSettings}. A {@link CanvasBackgroundImage} can be shown
 *       behind the scene.
 *   <li>{@link SceneSettings} and {@link SceneSettingsLight} are the decorations and the light with which one view
 *       shows one scene.
 *   <li>{@link CanvasPickSettings} specify what a pick looks for; a {@link PickedObjectCollection} has its results.
 *   <li>An {@link Overlay} is a list of shapes drawn over the scene, each an {@link OverlayObject}: {@link OverlayPoint},
 *       {@link OverlaySymbol}; {@link OverlayLine}, {@link OverlayRectangle} and {@link OverlayEllipse}, which are
 *       {@linkplain OverlayTwoPointsObject given by two points}; the {@link OverlayTransformation} frame; and an
 *       {@link OverlayCurve} to be edited, {@link OverlayDrawCurve} or
 *       {@link OverlayRenderEdit2d}.
 *   <li>{@link HardcopySettings} are those of one export, an {@link Image} is filled by a renderer, and
 *       {@link RendererInfo} and {@link ContextData} describe the renderer and its drawing context.
 * </ul>
 *
 * <h2>The process: what all views share</h2>
 *
 * <p>{@link Canvas3dGlobalSettings} has quality, mouse actions, initial fonts and precisions, {@link MarkingSetups} the
 * looks of marked parts. Colour tables are known by name, see {@link SceneGraphPlot#setColorTable}. {@link ErrorLog} is
 * the log, which is silent until a level is set.
 *
 * <h2>Ownership and closing</h2>
 *
 * <p>Constructors make a native object; static {@code connect} methods, and the constructor
 * {@link CanvasPickSettings#CanvasPickSettings(com.vexane.base.NativePeer)}, make another peer of an object that a
 * scene, a group, a view or the process already has. A peer holds one reference to its object and
 * {@linkplain com.vexane.base.NativePeer#close() releases} it when it is closed. The object lives while a peer or a
 * native owner refers to it:
 *
 * <ul>
 *   <li>a parent owns its children, a plot group its plots, a scene its root and its light, and the light its sources;
 *   <li>a view owns its settings, settings own their cameras, axes and grid box, and a renderer owns the scene it
 *       shows.
 * </ul>
 *
 * <p>So peers may be closed in any order, and a peer may be closed while its object stays in use. A method of a closed
 * peer throws a {@link com.vexane.base.NativeException}. Remove plots from their group before the last peers are
 * closed; this returns their texture handles. Peers that are garbage collected without being closed are released later,
 * see {@link com.vexane.base.NativePeer}.
 *
 * <h2>Threads</h2>
 *
 * <p>The library starts no thread and takes no locks. Calls must come from one thread at a time for a scene with
 * everything in it and the views that show it; different scenes may be used on different threads. What belongs to the
 * process may be changed only while no other thread uses any scene: the target and level of the log, the global
 * settings with their fonts, the marking tables and the colour tables. The page {@code docs/threads.md} describes both.
 *
 * <h2>Values</h2>
 *
 * <p>Colours are ints {@code 0xRRGGBB}. Angles are in radians, except the angle of view, which is in degrees. Choices
 * are enumerations; each is a {@link com.vexane.base.NativeEnum}, whose number native code uses.
 */
package com.vexane.graphics3d;
