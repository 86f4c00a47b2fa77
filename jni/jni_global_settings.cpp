#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_Canvas3dGlobalSettings.h"

using namespace vxgraphics3d;

namespace {

Canvas3dGlobalSettings& settings()
{
    return *Canvas3dGlobalSettings::getInstance();
}

} // namespace

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetOnScreenResolution)(JNIEnv* env, jclass)
{
    return native(env, "nGetOnScreenResolution", [&] { return settings().getOnScreenResolution(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetOnScreenResolution)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetOnScreenResolution", [&] { settings().setOnScreenResolution(value); });
}

VX_NATIVE(jboolean, Canvas3dGlobalSettings, nIsOpenGlDisplayListsUsed)(JNIEnv* env, jclass)
{
    return native(env, "nIsOpenGlDisplayListsUsed", [&] { return toJava(settings().isOpenGlDisplayListsUsed()); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetUseOpenGlDisplayLists)(JNIEnv* env, jclass, jboolean use)
{
    native(env, "nSetUseOpenGlDisplayLists", [&] { settings().setUseOpenGlDisplayLists(use); });
}

VX_NATIVE(jboolean, Canvas3dGlobalSettings, nIsPBufferUsedForPicking)(JNIEnv* env, jclass)
{
    return native(env, "nIsPBufferUsedForPicking", [&] { return toJava(settings().isPBufferUsedForPicking()); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetUsePBufferForPicking)(JNIEnv* env, jclass, jboolean use)
{
    native(env, "nSetUsePBufferForPicking", [&] { settings().setUsePBufferForPicking(use); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetMultisampleSetting)(JNIEnv* env, jclass)
{
    return native(env, "nGetMultisampleSetting", [&] { return settings().getMultisampleSetting(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetMultisampleSetting)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetMultisampleSetting", [&] { settings().setMultisampleSetting(value); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetUseShaders)(JNIEnv* env, jclass, jboolean use)
{
    native(env, "nSetUseShaders", [&] { settings().setUseShaders(use); });
}

VX_NATIVE(jboolean, Canvas3dGlobalSettings, nIsAntiAliasing)(JNIEnv* env, jclass)
{
    return native(env, "nIsAntiAliasing", [&] { return toJava(settings().isAntiAliasing()); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetAntiAliasing)(JNIEnv* env, jclass, jboolean on)
{
    native(env, "nSetAntiAliasing", [&] { settings().setAntiAliasing(on); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetPickingTolerance)(JNIEnv* env, jclass)
{
    return native(env, "nGetPickingTolerance", [&] { return settings().getPickingTolerance(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetPickingTolerance)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetPickingTolerance", [&] { settings().setPickingTolerance(value); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetResizeBehaviour)(JNIEnv* env, jclass)
{
    return native(env, "nGetResizeBehaviour",
                  [&] { return cppResizeBehaviourToJava(settings().getResizeBehaviour()); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetResizeBehaviour)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetResizeBehaviour", [&] { settings().setResizeBehaviour(javaResizeBehaviourToCpp(value)); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetZoomToExtentBehaviour)(JNIEnv* env, jclass)
{
    return native(env, "nGetZoomToExtentBehaviour",
                  [&] { return cppZoomToExtentBehaviourToJava(settings().getZoomToExtentBehaviour()); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetZoomToExtentBehaviour)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetZoomToExtentBehaviour",
           [&] { settings().setZoomToExtentBehaviour(javaZoomToExtentBehaviourToCpp(value)); });
}

VX_NATIVE(jfloat, Canvas3dGlobalSettings, nGetZoomToExtentMargin)(JNIEnv* env, jclass)
{
    return native(env, "nGetZoomToExtentMargin", [&] { return settings().getZoomToExtentMargin(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetZoomToExtentMargin)(JNIEnv* env, jclass, jfloat value)
{
    native(env, "nSetZoomToExtentMargin", [&] { settings().setZoomToExtentMargin(value); });
}

VX_NATIVE(jfloat, Canvas3dGlobalSettings, nGetCameraMouseOrbitSpeed)(JNIEnv* env, jclass)
{
    return native(env, "nGetCameraMouseOrbitSpeed", [&] { return settings().getCameraMouseOrbitSpeed(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetCameraMouseOrbitSpeed)(JNIEnv* env, jclass, jfloat value)
{
    native(env, "nSetCameraMouseOrbitSpeed", [&] { settings().setCameraMouseOrbitSpeed(value); });
}

VX_NATIVE(jfloat, Canvas3dGlobalSettings, nGetCameraMouseDollySpeed)(JNIEnv* env, jclass)
{
    return native(env, "nGetCameraMouseDollySpeed", [&] { return settings().getCameraMouseDollySpeed(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetCameraMouseDollySpeed)(JNIEnv* env, jclass, jfloat value)
{
    native(env, "nSetCameraMouseDollySpeed", [&] { settings().setCameraMouseDollySpeed(value); });
}

VX_NATIVE(jfloat, Canvas3dGlobalSettings, nGetCameraMouseZoomSpeed)(JNIEnv* env, jclass)
{
    return native(env, "nGetCameraMouseZoomSpeed", [&] { return settings().getCameraMouseZoomSpeed(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetCameraMouseZoomSpeed)(JNIEnv* env, jclass, jfloat value)
{
    native(env, "nSetCameraMouseZoomSpeed", [&] { settings().setCameraMouseZoomSpeed(value); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetCameraMouseAction)(JNIEnv* env, jclass, jint button, jint mask)
{
    return native(env, "nGetCameraMouseAction",
                  [&] { return jint{settings().getCameraMouseAction(button, javaMouseKeyMaskToCpp(mask))}; });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetCameraMouseAction)(JNIEnv* env, jclass, jint button, jint mask, jint action)
{
    native(env, "nSetCameraMouseAction", [&] {
        settings().setCameraMouseAction(button, javaMouseKeyMaskToCpp(mask), javaCameraMouseActionToCpp(action));
    });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nResetCameraMouseActions)(JNIEnv* env, jclass)
{
    native(env, "nResetCameraMouseActions", [&] { settings().resetCameraMouseActions(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetDefaultCameraMouseActions)(JNIEnv* env, jclass)
{
    native(env, "nSetDefaultCameraMouseActions", [&] { settings().setDefaultCameraMouseActions(); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetOnScreenRenderQuality)(JNIEnv* env, jclass)
{
    return native(env, "nGetOnScreenRenderQuality",
                  [&] { return cppRenderQualityToJava(settings().getOnScreenRenderQuality()); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetOnScreenRenderQuality)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetOnScreenRenderQuality",
           [&] { settings().setOnScreenRenderQuality(javaRenderQualityToCpp(value)); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetOffScreenRenderQuality)(JNIEnv* env, jclass)
{
    return native(env, "nGetOffScreenRenderQuality",
                  [&] { return cppRenderQualityToJava(settings().getOffScreenRenderQuality()); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetOffScreenRenderQuality)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetOffScreenRenderQuality",
           [&] { settings().setOffScreenRenderQuality(javaRenderQualityToCpp(value)); });
}

VX_NATIVE(jstring, Canvas3dGlobalSettings, nGetFontName)(JNIEnv* env, jclass, jint item)
{
    return native(env, "nGetFontName",
                  [&] { return toJavaNew(env, settings().getFont(static_cast<TextItem>(item)).getName()); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetFontSize)(JNIEnv* env, jclass, jint item)
{
    return native(env, "nGetFontSize", [&] { return settings().getFont(static_cast<TextItem>(item)).getSize(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetFont)(JNIEnv* env, jclass, jint item, jstring name, jint size)
{
    native(env, "nSetFont",
           [&] { settings().font(static_cast<TextItem>(item)).setFont(fromJava<std::string>(env, name), size); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetLegendTickPrecision)(JNIEnv* env, jclass)
{
    return native(env, "nGetLegendTickPrecision", [&] { return settings().getLegendTickPrecision(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetLegendTickPrecision)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetLegendTickPrecision", [&] { settings().setLegendTickPrecision(value); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetLegendMinMaxPrecision)(JNIEnv* env, jclass)
{
    return native(env, "nGetLegendMinMaxPrecision", [&] { return settings().getLegendMinMaxPrecision(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetLegendMinMaxPrecision)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetLegendMinMaxPrecision", [&] { settings().setLegendMinMaxPrecision(value); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetGridbox2dTickPrecision)(JNIEnv* env, jclass)
{
    return native(env, "nGetGridbox2dTickPrecision", [&] { return settings().getGridbox2dTickPrecision(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetGridbox2dTickPrecision)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetGridbox2dTickPrecision", [&] { settings().setGridbox2dTickPrecision(value); });
}

VX_NATIVE(jint, Canvas3dGlobalSettings, nGetGridbox3dTickPrecision)(JNIEnv* env, jclass)
{
    return native(env, "nGetGridbox3dTickPrecision", [&] { return settings().getGridbox3dTickPrecision(); });
}

VX_NATIVE(void, Canvas3dGlobalSettings, nSetGridbox3dTickPrecision)(JNIEnv* env, jclass, jint value)
{
    native(env, "nSetGridbox3dTickPrecision", [&] { settings().setGridbox3dTickPrecision(value); });
}
