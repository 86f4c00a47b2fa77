#pragma once

#include "base/export.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/foundation/rendersymbol.h"
#include "graphics3d/foundation/textformat.h"
#include "graphics3d/geometry/objectparttype.h"
#include "graphics3d/lights/lightsource.h"
#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/picking/pickedobject.h"
#include "graphics3d/plots/graph/linestyle.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "graphics3d/plots/vector/arrowdescription.h"
#include "graphics3d/scenegraph/scenegraphnode.h"
#include "graphics3d/scenegraph/scenegraphobject.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/settings/mouseactionhandler.h"

namespace vxgraphics3d {

// The Java numbers of the library's enumerations. Java numbers without a meaning silently become the fallback of their
// table.

/// Groups 1, objects 2, plot groups 3; the root and anything else 0.
int cppSceneGraphNodeTypeToJava(SceneGraphNode::NodeType type);
/// Solid 1, face 2, curve 3, point 4, physics 5; anything else 0.
int cppSceneGraphObjectTypeToJava(SceneGraphObject::ObjectType type);
/// Subdomain 1, sheet 2, line 3, point 4, and 5 to 7 for the parts that renderers add; anything else 0.
int cppPartTypeToJava(PartType type);
/// The kinds of hit 1 to 7; anything else 0.
int cppPickedObjectTypeToJava(PickedObject::ObjectType type);

/// Java 1 to 4 are the actions 0 to 3; anything else 0.
SceneGraphObject::MarkingType javaMarkingTypeToCpp(int type);
/// Java 1 to 5 are the kinds 0 to 4, of which the last is all; anything else 0.
ObjectPartType javaObjectPartTypeToCpp(int part);
/// Java 0 to 8 are the rows of the same number; anything else 0.
MarkingType javaMarkingRowToCpp(int row);
/// Java 1 to 3 are the modes 0 to 2; anything else 0.
MarkingSetups::MarkingMode javaMarkingModeToCpp(int mode);

/// Direction 1, point 2, spot 3; anything else 0.
int cppLightSourceTypeToJava(LightSource::Type type);
/// 0 and 1 are the same on both sides; to Java anything else is -1, from Java it is 0.
int cppRenderModeToJava(Canvas3dSettings::RenderMode mode);
Canvas3dSettings::RenderMode javaRenderModeToCpp(int mode);
/// Java 1 is plain text, Java 2 is markup; anything else is plain text.
TextFormat javaTextFormatToCpp(int format);
/// The kinds of plots that Java distinguishes: surface 2, arrows 3, edges 4, iso surfaces 5, slices 6, tubes 7 and
/// spheres 10, all in 3D, and the surface in 2D 8; any other -1.
int cppPlotTypeToJava(SceneGraphPlot::PlotType type);
/// The symbols -1 to 7 are the same on both sides; anything else is no symbol, -1.
RenderSymbol javaRenderSymbolToCpp(int symbol);
/// The styles -1 to 3 are the same on both sides; anything else is no line, -1.
LineStyle javaLineStyleToCpp(int style);

/// Java 1 to 3 are the points 0 to 2; anything else 0.
ArrowDescription::AnchorPoint javaAnchorPointToCpp(int anchorPoint);
/// Java 1 to 5 are the types 0 to 4; anything else 0.
ArrowDescription::ScalingType javaScalingTypeToCpp(int type);

/// 0 to 2 are the same on both sides; anything else 0.
int cppAntialiasingTypeToJava(int type);

/// The low three bits.
int javaMouseKeyMaskToCpp(int mask);
/// Java 0 and 10 mean no action, which is 10, as does anything else. Java numbers the other actions in another order,
/// which has no number for orbiting: 1 orbit roll, 2 turn, 3 roll, 4 and 6 move and dolly the scene, 5 and 7 the
/// camera, 8 pan, 9 zoom.
Canvas3dGlobalSettings::CameraMouseAction javaCameraMouseActionToCpp(int action);
/// Java reads the native number, which differs from the one that it sets.
VX_API int cppCameraMouseActionToJava(Canvas3dGlobalSettings::CameraMouseAction action);
/// 0 to 7 are the same on both sides; anything else 0.
VX_API int cppPostMouseActionToJava(MouseActionHandler::PostMouseActions actions);

/// 0 to 2 are the same on both sides; anything else 0.
int cppRenderQualityToJava(RenderQuality quality);
RenderQuality javaRenderQualityToCpp(int quality);
/// Java has 2 and 3 exchanged: 2 fits and 3 fills; anything other than 0 to 5 becomes 0.
int cppResizeBehaviourToJava(Canvas3dGlobalSettings::ResizeBehaviour behaviour);
Canvas3dGlobalSettings::ResizeBehaviour javaResizeBehaviourToCpp(int behaviour);
/// 0 and 1 are the same on both sides; anything else 0.
int cppZoomToExtentBehaviourToJava(Canvas3dGlobalSettings::ZoomToExtentBehaviour behaviour);
Canvas3dGlobalSettings::ZoomToExtentBehaviour javaZoomToExtentBehaviourToCpp(int behaviour);

} // namespace vxgraphics3d
