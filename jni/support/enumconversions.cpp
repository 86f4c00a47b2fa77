#include "jni/support/enumconversions.h"

#include "jni/support/conversiontable.h"

namespace vxgraphics3d {

namespace {

constexpr ConversionTable<3> c_nodeTypes{
    {{{SceneGraphNode::NodeGroup, 1}, {SceneGraphNode::NodeObject, 2}, {SceneGraphNode::NodePlotGroup, 3}}},
    SceneGraphNode::NodeRoot,
    0};

constexpr ConversionTable<5> c_objectTypes{{{{SceneGraphObject::ObjectSolid, 1},
                                             {SceneGraphObject::ObjectFace, 2},
                                             {SceneGraphObject::ObjectCurve, 3},
                                             {SceneGraphObject::ObjectPoint, 4},
                                             {SceneGraphObject::ObjectPhysics, 5}}},
                                           0,
                                           0};

constexpr ConversionTable<7> c_partTypes{
    {{{PartTypePoint, 4}, {PartTypeLine, 3}, {PartTypeSheet, 2}, {PartTypeSubdomain, 1}, {4, 5}, {5, 6}, {6, 7}}},
    PartTypeNone,
    0};

constexpr auto c_pickedObjectTypes = sameNumbers<8>();

constexpr ConversionTable<4> c_markingTypes{{{{SceneGraphObject::MarkingPrimary, 1},
                                              {SceneGraphObject::MarkingSecondary, 2},
                                              {SceneGraphObject::MarkingHidden, 3},
                                              {SceneGraphObject::MarkingUnpickable, 4}}},
                                            SceneGraphObject::MarkingPrimary,
                                            0};

constexpr ConversionTable<5> c_objectPartTypes{
    {{{PartPoint, 1}, {PartLine, 2}, {PartSheet, 3}, {PartSolid, 4}, {PartAll, 5}}}, PartPoint, 0};

constexpr auto c_markingRows = sameNumbers<9>();

constexpr ConversionTable<3> c_markingModes{
    {{{MarkingSetups::MarkingMode0, 1}, {MarkingSetups::MarkingMode1, 2}, {MarkingSetups::MarkingMode2, 3}}},
    MarkingSetups::MarkingMode0,
    0};

constexpr ConversionTable<3> c_lightSourceTypes{
    {{{LightSource::LightDirection, 1}, {LightSource::LightPoint, 2}, {LightSource::LightSpot, 3}}},
    LightSource::LightDirection,
    0};

constexpr ConversionTable<2> c_renderModes{
    {{{Canvas3dSettings::RenderMode3d, 0}, {Canvas3dSettings::RenderMode2d, 1}}}, Canvas3dSettings::RenderMode3d, -1};

constexpr ConversionTable<2> c_textFormats{
    {{{static_cast<int>(TextFormat::plain), 1}, {static_cast<int>(TextFormat::markup), 2}}},
    static_cast<int>(TextFormat::plain),
    0};

constexpr NumberPair plotType(SceneGraphPlot::PlotType type, int java)
{
    return {static_cast<int>(type), java};
}

using PlotType = SceneGraphPlot::PlotType;

constexpr ConversionTable<8> c_plotTypes{
    {{plotType(PlotType::surface3d, 2), plotType(PlotType::arrow3d, 3), plotType(PlotType::edge3d, 4),
      plotType(PlotType::isoSurface3d, 5), plotType(PlotType::slice3d, 6), plotType(PlotType::tube3d, 7),
      plotType(PlotType::surface2d, 8), plotType(PlotType::sphere3d, 10)}},
    -1,
    -1};

constexpr int c_largestSymbol = 7;
constexpr int c_largestStyle = 3;

constexpr ConversionTable<3> c_anchorPoints{{{{0, 1}, {1, 2}, {2, 3}}}, 0, 0};

constexpr ConversionTable<5> c_scalingTypes{{{{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}}}, 0, 0};

constexpr auto c_antialiasingTypes = sameNumbers<3>();

using Settings = Canvas3dGlobalSettings;

constexpr ConversionTable<11> c_cameraMouseActions{{{{Settings::ActionNone, 0},
                                                     {Settings::ActionOrbitRoll, 1},
                                                     {Settings::ActionTurn, 2},
                                                     {Settings::ActionRoll, 3},
                                                     {Settings::ActionSceneMove, 4},
                                                     {Settings::ActionMove, 5},
                                                     {Settings::ActionSceneDolly, 6},
                                                     {Settings::ActionDolly, 7},
                                                     {Settings::ActionPan, 8},
                                                     {Settings::ActionZoom, 9},
                                                     {Settings::ActionNone, 10}}},
                                                   Settings::ActionNone,
                                                   0};

constexpr auto c_postMouseActions = sameNumbers<8>();

constexpr auto c_renderQualities = sameNumbers<3>();

constexpr ConversionTable<6> c_resizeBehaviours{{{{Settings::ResizeWidth, 0},
                                                  {Settings::ResizeHeight, 1},
                                                  {Settings::ResizeFit, 2},
                                                  {Settings::ResizeFill, 3},
                                                  {Settings::ResizePixels, 4},
                                                  {Settings::ResizeKeep, 5}}},
                                                Settings::ResizeWidth,
                                                0};

constexpr auto c_zoomToExtentBehaviours = sameNumbers<2>();

} // namespace

int cppSceneGraphNodeTypeToJava(SceneGraphNode::NodeType type)
{
    return c_nodeTypes.toJava(type);
}

int cppSceneGraphObjectTypeToJava(SceneGraphObject::ObjectType type)
{
    return c_objectTypes.toJava(type);
}

int cppPartTypeToJava(PartType type)
{
    return c_partTypes.toJava(type);
}

int cppPickedObjectTypeToJava(PickedObject::ObjectType type)
{
    return c_pickedObjectTypes.toJava(type);
}

SceneGraphObject::MarkingType javaMarkingTypeToCpp(int type)
{
    return static_cast<SceneGraphObject::MarkingType>(c_markingTypes.toCpp(type));
}

ObjectPartType javaObjectPartTypeToCpp(int part)
{
    return static_cast<ObjectPartType>(c_objectPartTypes.toCpp(part));
}

MarkingType javaMarkingRowToCpp(int row)
{
    return static_cast<MarkingType>(c_markingRows.toCpp(row));
}

MarkingSetups::MarkingMode javaMarkingModeToCpp(int mode)
{
    return static_cast<MarkingSetups::MarkingMode>(c_markingModes.toCpp(mode));
}

int cppLightSourceTypeToJava(LightSource::Type type)
{
    return c_lightSourceTypes.toJava(type);
}

int cppRenderModeToJava(Canvas3dSettings::RenderMode mode)
{
    return c_renderModes.toJava(mode);
}

Canvas3dSettings::RenderMode javaRenderModeToCpp(int mode)
{
    return static_cast<Canvas3dSettings::RenderMode>(c_renderModes.toCpp(mode));
}

TextFormat javaTextFormatToCpp(int format)
{
    return static_cast<TextFormat>(c_textFormats.toCpp(format));
}

int cppPlotTypeToJava(SceneGraphPlot::PlotType type)
{
    return c_plotTypes.toJava(static_cast<int>(type));
}

RenderSymbol javaRenderSymbolToCpp(int symbol)
{
    return symbol >= 0 && symbol <= c_largestSymbol ? static_cast<RenderSymbol>(symbol) : RenderSymbol::none;
}

LineStyle javaLineStyleToCpp(int style)
{
    return style >= 0 && style <= c_largestStyle ? static_cast<LineStyle>(style) : LineStyle::none;
}

ArrowDescription::AnchorPoint javaAnchorPointToCpp(int anchorPoint)
{
    return static_cast<ArrowDescription::AnchorPoint>(c_anchorPoints.toCpp(anchorPoint));
}

ArrowDescription::ScalingType javaScalingTypeToCpp(int type)
{
    return static_cast<ArrowDescription::ScalingType>(c_scalingTypes.toCpp(type));
}

int cppAntialiasingTypeToJava(int type)
{
    return c_antialiasingTypes.toJava(type);
}

int javaMouseKeyMaskToCpp(int mask)
{
    return mask & (Settings::c_numKeyMasks - 1);
}

Settings::CameraMouseAction javaCameraMouseActionToCpp(int action)
{
    return static_cast<Settings::CameraMouseAction>(c_cameraMouseActions.toCpp(action));
}

int cppCameraMouseActionToJava(Settings::CameraMouseAction action)
{
    return action;
}

int cppPostMouseActionToJava(MouseActionHandler::PostMouseActions actions)
{
    return c_postMouseActions.toJava(actions);
}

int cppRenderQualityToJava(RenderQuality quality)
{
    return c_renderQualities.toJava(quality);
}

RenderQuality javaRenderQualityToCpp(int quality)
{
    return static_cast<RenderQuality>(c_renderQualities.toCpp(quality));
}

int cppResizeBehaviourToJava(Settings::ResizeBehaviour behaviour)
{
    return c_resizeBehaviours.toJava(behaviour);
}

Settings::ResizeBehaviour javaResizeBehaviourToCpp(int behaviour)
{
    return static_cast<Settings::ResizeBehaviour>(c_resizeBehaviours.toCpp(behaviour));
}

int cppZoomToExtentBehaviourToJava(Settings::ZoomToExtentBehaviour behaviour)
{
    return c_zoomToExtentBehaviours.toJava(behaviour);
}

Settings::ZoomToExtentBehaviour javaZoomToExtentBehaviourToCpp(int behaviour)
{
    return static_cast<Settings::ZoomToExtentBehaviour>(c_zoomToExtentBehaviours.toCpp(behaviour));
}

} // namespace vxgraphics3d
