#include "renderer/canvas/offscreencanvas.h"
#include "renderer/jni/javabytes.h"

#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"

#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"

#include <boost/make_shared.hpp>

#include "com_vexane_renderer_OffscreenRenderer.h"

using namespace vxbase;
using namespace vxrenderer;
using vxgraphics3d::Scene;
using vxgraphics3d::SceneGraphRoot;

#define VX_NATIVE(result, method)                                                                                      \
    extern "C" JNIEXPORT result JNICALL Java_com_vexane_renderer_OffscreenRenderer_##method

namespace {

OffscreenCanvas& canvas(JNIEnv* env, jobject self)
{
    return peer<OffscreenCanvas>(env, self);
}

/// Changes some of the settings of a canvas.
template <class Change>
void changeSettings(JNIEnv* env, jobject self, Change&& change)
{
    guarded(env, [&] {
        PictureSettings settings = canvas(env, self).getSettings();
        change(settings);
        canvas(env, self).setSettings(settings);
    });
}

} // namespace

VX_NATIVE(void, createNative)(JNIEnv* env, jclass, jobject self, jint width, jint height, jint samples)
{
    guarded(env, [&] { attach(env, self, boost::make_shared<OffscreenCanvas>(width, height, samples)); });
}

VX_NATIVE(void, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(void, setScene)(JNIEnv* env, jclass, jobject self, jobject scene)
{
    guarded(env, [&] { canvas(env, self).setScene(scene == nullptr ? nullptr : share<Scene>(env, scene)); });
}

VX_NATIVE(void, setRoot)(JNIEnv* env, jclass, jobject self, jobject root)
{
    guarded(env, [&] { canvas(env, self).setRoot(root == nullptr ? nullptr : share<SceneGraphRoot>(env, root)); });
}

VX_NATIVE(void, resize)(JNIEnv* env, jclass, jobject self, jint width, jint height)
{
    guarded(env, [&] { canvas(env, self).resize(width, height); });
}

VX_NATIVE(jint, getWidth)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getWidth(); });
}

VX_NATIVE(jint, getHeight)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getHeight(); });
}

VX_NATIVE(jint, getSamples)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getSamples(); });
}

VX_NATIVE(void, setViewDirection)(JNIEnv* env, jclass, jobject self, jdouble azimuth, jdouble elevation)
{
    changeSettings(env, self, [&](PictureSettings& settings) { settings.direction = {azimuth, elevation}; });
}

VX_NATIVE(void, setLit)(JNIEnv* env, jclass, jobject self, jboolean lit)
{
    changeSettings(env, self, [&](PictureSettings& settings) { settings.isLit = lit; });
}

VX_NATIVE(void, setDecoration)(JNIEnv* env, jclass, jobject self, jboolean title, jboolean legends, jboolean box)
{
    changeSettings(env, self, [&](PictureSettings& settings) {
        settings.showTitle = title;
        settings.showLegends = legends;
        settings.showBox = box;
    });
}

VX_NATIVE(void, setBackground)(JNIEnv* env, jclass, jobject self, jint rgb)
{
    changeSettings(env, self,
                   [&](PictureSettings& settings) { settings.background = vxgraphics3d::Color::fromRgb(rgb); });
}

VX_NATIVE(void, setFont)(JNIEnv* env, jclass, jobject self, jstring name, jint size)
{
    changeSettings(env, self, [&](PictureSettings& settings) {
        settings.fontName = fromJava<std::string>(env, name);
        settings.fontSize = size;
    });
}

VX_NATIVE(void, draw)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { canvas(env, self).draw(); });
}

VX_NATIVE(void, readImage)(JNIEnv* env, jclass, jobject self, jobject out)
{
    guarded(env, [&] {
        const JavaBytes bytes = directBytes(env, out);
        canvas(env, self).readImage(bytes.data, bytes.size);
    });
}

VX_NATIVE(jbyteArray, encodePng)(JNIEnv* env, jclass, jobject self, jint dpi, jstring title, jstring creator)
{
    return guarded(env, [&] {
        const PngSettings settings = {.dpi = dpi,
                                      .hasAlpha = false,
                                      .title = fromJava<std::string>(env, title),
                                      .creator = fromJava<std::string>(env, creator)};
        return toJavaNew(env, canvas(env, self).encodePng(settings));
    });
}

VX_NATIVE(jstring, describeDriver)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return vxbase::toJavaNew(env, canvas(env, self).getDriver()); });
}

VX_NATIVE(void, getUploadCounts)(JNIEnv* env, jclass, jobject self, jintArray out)
{
    guarded(env, [&] {
        jintArrayRH::atLeast(env, out, 3);
        const UploadCounts& counts = canvas(env, self).getUploadCounts();
        const jintArrayRH holder(env, out);
        holder.get()[0] = counts.meshes;
        holder.get()[1] = counts.colorTables;
        holder.get()[2] = counts.glyphPictures;
    });
}
