package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import com.vexane.interaction.CameraInteraction;
import com.vexane.interaction.CurveDrawing;
import com.vexane.interaction.CurveEditing;
import com.vexane.interaction.FrameInteraction;
import com.vexane.interaction.OverlayPicker;
import com.vexane.interaction.PickInteraction;
import com.vexane.interaction.RubberBand;
import com.vexane.producer.DataRole;
import com.vexane.producer.EditGeometryBuilder;
import com.vexane.producer.GeometryBuilder1D;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.GeometryBuilder3D;
import com.vexane.producer.MeshKind;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import com.vexane.producer.ProjectionBuilder2D;
import com.vexane.producer.RenderDraw1D;
import com.vexane.producer.RenderDraw2D;
import com.vexane.producer.RenderDraw3D;
import com.vexane.producer.RenderDrawEdit2D;
import com.vexane.producer.RenderDrawProj2D;
import com.vexane.producer.RenderGeom1D;
import com.vexane.producer.RenderGeom2D;
import com.vexane.producer.RenderGeom3D;
import com.vexane.producer.RenderMeshCollection;
import com.vexane.producer.SheetGeometry;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.function.Function;

/** How to make a peer of each class: a new class is added here only, for tests of all natives. */
final class PeerRecipes implements AutoCloseable {
    private static final Map<Class<?>, Function<PeerRecipes, NativePeer>> RECIPES = new LinkedHashMap<>();
    private static final double[] AXIS = {0, 1, 3};
    private static final double[] OTHER_AXIS = {0, 2, 2};

    private static <T extends NativePeer> void recipe(Class<T> type, Function<PeerRecipes, T> maker) {
        RECIPES.put(type, maker::apply);
    }

    static {
        recipe(TestRenderer.class, made -> {
            TestRenderer view = new TestRenderer();
            view.openContext(1);
            view.show(made.first(Scene.class));
            return view;
        });
        recipe(Scene.class, made -> new Scene());
        recipe(Canvas3dSettings.class, made -> Canvas3dSettings.connect(made.first(TestRenderer.class)));
        recipe(Camera2d.class, made -> Camera2d.connect(made.first(Canvas3dSettings.class)));
        recipe(Camera3d.class, made -> Camera3d.connect(made.first(Canvas3dSettings.class)));
        recipe(AxisSetup.class, made -> AxisSetup.connect(made.first(Canvas3dSettings.class)));
        recipe(GridBoxSettings.class, made -> GridBoxSettings.connect(made.first(Canvas3dSettings.class)));
        recipe(SceneSettings.class, made -> SceneSettings.connect(made.first(TestRenderer.class)));
        recipe(SceneSettingsLight.class, made -> SceneSettingsLight.connect(made.first(SceneSettings.class)));
        recipe(SceneLight.class, made -> SceneLight.connect(made.first(Scene.class)));
        recipe(DirectionLightSource.class, made -> DirectionLightSource.connect(
                made.first(SceneLight.class), made.first(SceneLight.class).createDirectionLight()));
        recipe(PointLightSource.class, made -> PointLightSource.connect(
                made.first(SceneLight.class), made.first(SceneLight.class).createPointLight()));
        recipe(SpotLightSource.class, made -> SpotLightSource.connect(
                made.first(SceneLight.class), made.first(SceneLight.class).createSpotLight()));
        recipe(CanvasPickSettings.class, made -> new CanvasPickSettings(made.first(TestRenderer.class)));
        recipe(PickedObjectCollection.class, made -> new PickedObjectCollection());
        recipe(HardcopySettings.class, made -> new HardcopySettings());
        recipe(CanvasBackgroundImage.class, made -> new CanvasBackgroundImage());
        recipe(Image.class, made -> new Image());
        recipe(ContextData.class, made -> ContextData.connect(made.first(TestRenderer.class)));
        recipe(MarkingSetups.class, made -> MarkingSetups.connect());
        recipe(RendererInfo.class, made -> new TestRenderer.Info());
        recipe(RendererInfo.MonitorInfo.class,
                made -> RendererInfo.MonitorInfo.connect(made.first(RendererInfo.class), 0));
        recipe(SceneGraphRoot.class, made -> SceneGraphRoot.connect(made.first(Scene.class)));
        recipe(SceneGraphGroup.class, made -> new SceneGraphGroup());
        recipe(SceneGraphPlotGroup.class, made -> new SceneGraphPlotGroup());
        recipe(SceneGraphObject.class, made -> new TestRenderer.Leaf());
        recipe(SceneGraphDrawObjectPoint.class, made -> new SceneGraphDrawObjectPoint(1));
        recipe(SceneGraphDrawObjectCurve.class, made -> new SceneGraphDrawObjectCurve(2));
        recipe(SceneGraphDrawObjectFace.class, made -> new SceneGraphDrawObjectFace(3));
        recipe(SceneGraphDrawObjectSolid.class, made -> new SceneGraphDrawObjectSolid(4));
        recipe(SceneGraphPhysicsObject.class, made -> new SceneGraphPhysicsObject(5));
        recipe(SceneGraphPlotSurface2d.class, made -> new SceneGraphPlotSurface2d(1));
        recipe(SceneGraphPlotSurface3d.class, made -> new SceneGraphPlotSurface3d(2));
        recipe(SceneGraphPlotDomain3d.class, made -> new SceneGraphPlotDomain3d(3));
        recipe(SceneGraphPlotGraph.class, made -> new SceneGraphPlotGraph(4));
        recipe(SceneGraphPlotIsoSurface3d.class, made -> new SceneGraphPlotIsoSurface3d(4));
        recipe(SceneGraphPlotContour.class, made -> new SceneGraphPlotContour(5));
        recipe(SceneGraphPlotSlice3d.class, made -> new SceneGraphPlotSlice3d(6));
        recipe(SceneGraphPlotMesh3d.class, made -> new SceneGraphPlotMesh3d(7, 3));
        recipe(SceneGraphPlotArrow2d.class, made -> new SceneGraphPlotArrow2d(4));
        recipe(SceneGraphPlotArrow3d.class, made -> new SceneGraphPlotArrow3d(5));
        recipe(SceneGraphPlotTube2d.class, made -> new SceneGraphPlotTube2d(6));
        recipe(SceneGraphPlotTube3d.class, made -> new SceneGraphPlotTube3d(7));
        recipe(SceneGraphPlotRibbon3d.class, made -> new SceneGraphPlotRibbon3d(8));
        recipe(SceneGraphPlotPrincipal.class, made -> new SceneGraphPlotPrincipal(
                3, SceneGraphPlotPrincipal.Content.PRINCIPAL_VALUES, 9));
        recipe(SceneGraphPlotSphere2d.class, made -> new SceneGraphPlotSphere2d(4));
        recipe(SceneGraphPlotSphere3d.class, made -> new SceneGraphPlotSphere3d(5));
        recipe(SceneGraphPlotEdge2d.class, made -> new SceneGraphPlotEdge2d(6));
        recipe(SceneGraphPlotEdge3d.class, made -> new SceneGraphPlotEdge3d(7));
        recipe(SceneGraphPlotPointLabel.class, made -> new SceneGraphPlotPointLabel(3, 8));
        recipe(SceneGraphPlotInteractive.class, made -> new SceneGraphPlotInteractive(9));
        recipe(SceneGraphFeatureObject.class, made -> new SceneGraphFeatureObject());
        recipe(SceneGraphDrawProj.class, made -> new SceneGraphDrawProj(1));
        recipe(SceneGraphBallBox.class, made -> new SceneGraphBallBox());
        recipe(SceneGraphProbeObject.class, made -> new SceneGraphProbeObject());
        recipe(Overlay.class, made -> new Overlay());
        recipe(OverlayPoint.class, made -> new OverlayPoint());
        recipe(OverlaySymbol.class, made -> new OverlaySymbol());
        recipe(OverlayLine.class, made -> new OverlayLine());
        recipe(OverlayRectangle.class, made -> new OverlayRectangle());
        recipe(OverlayEllipse.class, made -> new OverlayEllipse());
        recipe(OverlayTransformation.class, made -> new OverlayTransformation());
        recipe(OverlayDrawCurve.class, made -> new OverlayDrawCurve());
        recipe(OverlayRenderEdit2d.class, made -> {
            OverlayRenderEdit2d curve = new OverlayRenderEdit2d();
            curve.connectRenderDrawEdit(made.first(RenderDrawEdit2D.class));
            return curve;
        });
        recipe(PostDataObject.class, made -> recordForEveryPlot());
        recipe(RenderDrawEdit2D.class, made -> {
            EditGeometryBuilder geometry = new EditGeometryBuilder();
            geometry.addLine(geometry.addVertex(0, 0), geometry.addVertex(1, 1));
            return geometry.build();
        });
        recipe(RenderDraw1D.class, made -> rod().buildDraw(1, "Rod"));
        recipe(RenderDraw2D.class, made -> area().buildDraw(2, "Area"));
        recipe(RenderDraw3D.class, made -> shell().buildDraw(3, "Shell"));
        recipe(RenderGeom1D.class, made -> rod().buildGeom());
        recipe(RenderGeom2D.class, made -> area().buildGeom());
        recipe(RenderGeom3D.class, made -> shell().buildGeom());
        recipe(RenderDrawProj2D.class, made -> new ProjectionBuilder2D().points(AXIS, AXIS, new int[3])
                .addCurve(ProjectionBuilder2D.PRIMARY, AXIS, AXIS).build(4, "Section"));
        recipe(RenderMeshCollection.class, made -> meshes());
        recipe(CameraInteraction.class, made -> CameraInteraction.connect(made.first(TestRenderer.class), 48));
        recipe(PickInteraction.class, made -> PickInteraction.connect(made.first(TestRenderer.class), 48));
        recipe(FrameInteraction.class, made -> FrameInteraction.connect(
                made.first(TestRenderer.class), made.first(OverlayTransformation.class), 48));
        recipe(CurveDrawing.class, made -> CurveDrawing.connect(
                made.first(TestRenderer.class), made.first(Overlay.class), made.first(OverlayDrawCurve.class), 48));
        recipe(CurveEditing.class, made -> CurveEditing.connect(
                made.first(TestRenderer.class), made.first(OverlayDrawCurve.class), 48));
        recipe(OverlayPicker.class, made -> OverlayPicker.connect(
                made.first(TestRenderer.class), made.first(Overlay.class), 48));
        recipe(RubberBand.class, made -> new RubberBand(made.first(Overlay.class), made.first(OverlayRectangle.class)));
        try {
            // The renderer is not built everywhere.
            Class<?> type = Class.forName("com.vexane.renderer.OffscreenRenderer");
            RECIPES.put(type, made -> {
                try {
                    return (NativePeer) type.getMethod("create", int.class, int.class).invoke(null, 64, 48);
                } catch (ReflectiveOperationException e) {
                    throw new AssertionError(e);
                }
            });
        } catch (ClassNotFoundException e) {
            // Then none of its natives can be called.
        }
    }

    private static GeometryBuilder1D rod() {
        return new GeometryBuilder1D().points(AXIS).addCurve(AXIS);
    }

    private static SheetGeometry triangle(double[]... axes) {
        return new SheetGeometry().coordinates(axes).triangles(new int[] {0}, new int[] {1}, new int[] {2});
    }

    private static GeometryBuilder2D area() {
        return new GeometryBuilder2D().points(AXIS, OTHER_AXIS).addCurve(AXIS, OTHER_AXIS)
                .addSheet(triangle(AXIS, OTHER_AXIS)).sheetToLine(new int[] {0});
    }

    private static GeometryBuilder3D shell() {
        return new GeometryBuilder3D().points(AXIS, OTHER_AXIS, AXIS).addCurve(AXIS, OTHER_AXIS, AXIS)
                .addSheet(triangle(AXIS, OTHER_AXIS, AXIS).domains(-1, 0)).sheetToLine(new int[] {0});
    }

    private static RenderMeshCollection meshes() {
        RenderMeshCollection meshes = new RenderMeshCollection();
        meshes.addLine(MeshKind.EDGE_3D, 0, AXIS, OTHER_AXIS, AXIS);
        return meshes;
    }

    /** A record in which one array has all roles. */
    private static PostDataObject recordForEveryPlot() {
        PostDataBuilder record = new PostDataBuilder(PlotKind.SURFACE_3D).addGroup(new PostDataGroup()
                .coordinates(new double[] {0, 1, 0}, new double[] {0, 0, 1}, new double[3])
                .normals(new float[3], new float[3], new float[] {1, 1, 1})
                .elements(new int[] {0}, new int[] {1}, new int[] {2}).computeOutline()
                .data(new double[] {0, 1, 2}));
        for (DataRole role : DataRole.values()) {
            record.role(role, 0);
        }
        return record.build();
    }

    private final List<NativePeer> made = new ArrayList<>();

    /** Makes a peer of each class. */
    static PeerRecipes makeAll() {
        PeerRecipes all = new PeerRecipes();
        RECIPES.keySet().forEach(all::another);
        return all;
    }

    /** A peer of a class that has a recipe, to be closed by the caller; owners are the peers made before. */
    NativePeer lone(Class<?> type) {
        return RECIPES.get(type).apply(this);
    }

    /** Another peer of a class that has a recipe. */
    NativePeer another(Class<?> type) {
        NativePeer peer = lone(type);
        made.add(peer);
        return peer;
    }

    /** The peers of a class made so far. */
    List<NativePeer> allOf(Class<?> type) {
        return made.stream().filter(type::isInstance).toList();
    }

    /** The first peer of a class, which is made if there is none. */
    <T> T first(Class<T> type) {
        return type.cast(allOf(type).stream().findFirst().orElseGet(() -> another(type)));
    }

    /** The recipe whose peers are of a class. */
    static Class<?> recipeFor(Class<?> type) {
        return RECIPES.keySet().stream().filter(type::isAssignableFrom).findFirst().orElseThrow(
                () -> new AssertionError("PeerRecipes has no recipe for a peer of " + type.getName() + "."));
    }

    void closeAll() {
        made.forEach(NativePeer::close);
    }

    @Override
    public void close() {
        closeAll();
    }
}
