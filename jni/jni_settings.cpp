#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/canvasbackgroundimage.h"
#include "graphics3d/canvas/irenderercanvas.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include <string>
#include <utility>

#include "com_vexane_graphics3d_Canvas3dSettings.h"

using namespace vxgraphics3d;

namespace {

/// The kinds of items that Java can switch on and off.
constexpr unsigned c_javaRenderMask = 0x021fffff;

/// A number from 0 to the last one; anything else is reported and becomes 0.
int knownOrZero(int number, int last, vxbase::LogText<> message)
{
    if (number >= 0 && number <= last) {
        return number;
    }
    logNativeError(message);
    return 0;
}

int knownMouseMode(int mode)
{
    return knownOrZero(mode, 6, "Unknown mousemode.");
}

Canvas3dBackgroundSettings& backgroundOf(JNIEnv* env, jobject self, jint mode)
{
    return peer<Canvas3dSettings>(env, self).background(javaRenderModeToCpp(mode));
}

FontSetting& fontOf(JNIEnv* env, jobject self, jint item)
{
    return peer<Canvas3dSettings>(env, self).font(static_cast<Canvas3dSettings::TextItem>(item));
}

unsigned javaRenderMask(jint mask)
{
    return static_cast<unsigned>(mask) & c_javaRenderMask;
}

} // namespace

VX_NATIVE(void, Canvas3dSettings, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<Canvas3dSettings>()); });
}

VX_NATIVE(void, Canvas3dSettings, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, Canvas3dSettings, connectNative)(JNIEnv* env, jclass, jobject self, jobject renderer)
{
    native(env, "connectNative",
           [&] { attach(env, self, anyPeer<IRendererCanvas>(env, renderer, "renderer").getCanvas3dSettings()); });
}

VX_NATIVE(void, Canvas3dSettings, cloneNative)(JNIEnv* env, jclass, jobject self, jobject source)
{
    native(env, "cloneNative", [&] {
        attach(env, self, boost::make_shared<Canvas3dSettings>(peer<Canvas3dSettings>(env, source, "source")));
    });
}

VX_NATIVE(jint, Canvas3dSettings, getRenderMode)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRenderMode",
                  [&] { return cppRenderModeToJava(peer<Canvas3dSettings>(env, self).getRenderMode()); });
}

VX_NATIVE(void, Canvas3dSettings, setRenderMode)(JNIEnv* env, jclass, jobject self, jint mode)
{
    native(env, "setRenderMode", [&] { peer<Canvas3dSettings>(env, self).setRenderMode(javaRenderModeToCpp(mode)); });
}

VX_NATIVE(jint, Canvas3dSettings, getRenderMask)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRenderMask", [&] {
        return static_cast<jint>(peer<Canvas3dSettings>(env, self).getRenderMask() & c_javaRenderMask);
    });
}

VX_NATIVE(void, Canvas3dSettings, setRenderMask)(JNIEnv* env, jclass, jobject self, jint mask)
{
    native(env, "setRenderMask", [&] { peer<Canvas3dSettings>(env, self).setRenderMask(javaRenderMask(mask)); });
}

VX_NATIVE(void, Canvas3dSettings, addRenderMask)(JNIEnv* env, jclass, jobject self, jint mask)
{
    native(env, "addRenderMask", [&] { peer<Canvas3dSettings>(env, self).addRenderMask(javaRenderMask(mask)); });
}

VX_NATIVE(void, Canvas3dSettings, removeRenderMask)(JNIEnv* env, jclass, jobject self, jint mask)
{
    native(env, "removeRenderMask", [&] { peer<Canvas3dSettings>(env, self).removeRenderMask(javaRenderMask(mask)); });
}

VX_NATIVE(jint, Canvas3dSettings, getMouseMode)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getMouseMode",
                  [&] { return knownMouseMode(peer<Canvas3dSettings>(env, self).getMouseMode()); });
}

VX_NATIVE(void, Canvas3dSettings, setMouseMode)(JNIEnv* env, jclass, jobject self, jint mode)
{
    native(env, "setMouseMode", [&] {
        peer<Canvas3dSettings>(env, self).setMouseMode(static_cast<Canvas3dSettings::MouseMode>(knownMouseMode(mode)));
    });
}

VX_NATIVE(jboolean, Canvas3dSettings, getSnap)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getSnap", [&] { return toJava(peer<Canvas3dSettings>(env, self).isSnap()); });
}

VX_NATIVE(void, Canvas3dSettings, setSnap)(JNIEnv* env, jclass, jobject self, jboolean snap)
{
    native(env, "setSnap", [&] { peer<Canvas3dSettings>(env, self).setSnap(snap); });
}

VX_NATIVE(jstring, Canvas3dSettings, getFontName)(JNIEnv* env, jclass, jobject self, jint item)
{
    return native(env, "getFontName", [&] { return toJavaNew(env, fontOf(env, self, item).getName()); });
}

VX_NATIVE(jint, Canvas3dSettings, getFontSize)(JNIEnv* env, jclass, jobject self, jint item)
{
    return native(env, "getFontSize", [&] { return fontOf(env, self, item).getSize(); });
}

VX_NATIVE(void, Canvas3dSettings, setFont)(JNIEnv* env, jclass, jobject self, jint item, jstring name, jint size)
{
    native(env, "setFont", [&] { fontOf(env, self, item).setFont(fromJava<std::string>(env, name), size); });
}

VX_NATIVE(void, Canvas3dSettings, setBackgroundColor)(JNIEnv* env, jclass, jobject self, jint mode, jint color)
{
    native(env, "setBackgroundColor", [&] { backgroundOf(env, self, mode).setBackgroundColor(Color::fromRgb(color)); });
}

VX_NATIVE(void, Canvas3dSettings, setShadedBackground)
(JNIEnv* env, jclass, jobject self, jint mode, jint topColor, jint bottomColor)
{
    native(env, "setShadedBackground", [&] {
        backgroundOf(env, self, mode).setShadedBackground(Color::fromRgb(topColor), Color::fromRgb(bottomColor));
    });
}

VX_NATIVE(jboolean, Canvas3dSettings, isBackgroundShaded)(JNIEnv* env, jclass, jobject self, jint mode)
{
    return native(env, "isBackgroundShaded",
                  [&] { return toJava(backgroundOf(env, self, mode).isBackgroundShaded()); });
}

VX_NATIVE(jint, Canvas3dSettings, getTopBackgroundColor)(JNIEnv* env, jclass, jobject self, jint mode)
{
    return native(env, "getTopBackgroundColor",
                  [&] { return backgroundOf(env, self, mode).getTopBackgroundColor().toRgb(); });
}

VX_NATIVE(jint, Canvas3dSettings, getBottomBackgroundColor)(JNIEnv* env, jclass, jobject self, jint mode)
{
    return native(env, "getBottomBackgroundColor",
                  [&] { return backgroundOf(env, self, mode).getBottomBackgroundColor().toRgb(); });
}

VX_NATIVE(void, Canvas3dSettings, setBackgroundImage)
(JNIEnv* env, jclass, jobject self, jint mode, jobject image, jint horizontal, jint vertical)
{
    native(env, "setBackgroundImage", [&] {
        using Background = Canvas3dBackgroundSettings;
        auto& background = backgroundOf(env, self, mode);
        auto shared = image != nullptr ? share<CanvasBackgroundImage>(env, image, "image") : nullptr;
        const int h = knownOrZero(horizontal, Background::HorizontalRight, "Unknown horizontal position.");
        const int v = knownOrZero(vertical, Background::VerticalBottom, "Unknown vertical position.");
        background.setBackgroungImage(std::move(shared), static_cast<Background::HorizontalPosition>(h),
                                      static_cast<Background::VerticalPosition>(v));
    });
}

VX_NATIVE(jboolean, Canvas3dSettings, isAxisOrientationIndicatorShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isAxisOrientationIndicatorShown", [&] {
        return toJava(peer<Canvas3dSettings>(env, self).getAxisOrientationIndicatorPtr()->isShown());
    });
}

VX_NATIVE(void, Canvas3dSettings, setShowAxisOrientationIndicator)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowAxisOrientationIndicator",
           [&] { peer<Canvas3dSettings>(env, self).getAxisOrientationIndicatorPtr()->show(show); });
}

VX_NATIVE(void, Canvas3dSettings, setAxisOrientationIndicator)
(JNIEnv* env, jclass, jobject self, jfloat length, jstring labelX, jint colorX, jstring labelY, jint colorY,
 jstring labelZ, jint colorZ)
{
    native(env, "setAxisOrientationIndicator", [&] {
        using Indicator = AxisOrientationIndicator;
        Indicator& indicator = *peer<Canvas3dSettings>(env, self).getAxisOrientationIndicatorPtr();
        // All labels are read before anything changes, because one of them may be refused.
        const std::string labels[] = {fromJava<std::string>(env, labelX), fromJava<std::string>(env, labelY),
                                      fromJava<std::string>(env, labelZ)};
        const jint colors[] = {colorX, colorY, colorZ};
        indicator.setAxisLength(length);
        for (const auto axis : {Indicator::AxisX, Indicator::AxisY, Indicator::AxisZ}) {
            indicator.setLabel(axis, labels[axis]);
            indicator.setColor(axis, Color::fromRgb(colors[axis]));
        }
    });
}
