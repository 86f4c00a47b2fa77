#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphnode.h"
#include "renderer/canvas/glrendererinfo.h"
#include "renderer/canvas/offscreencanvas.h"
#include "renderer/jni/javabytes.h"

#include <boost/make_shared.hpp>

#include "com_vexane_renderer_OffscreenRenderer.h"

using namespace vxbase;
using namespace vxrenderer;
using vxgraphics3d::HardcopySettings;
using vxgraphics3d::IRendererCanvas;
using vxgraphics3d::MarkingSetups;
using vxgraphics3d::Overlay;
using vxgraphics3d::PickedObjectCollection;
using vxgraphics3d::Scene;
using vxgraphics3d::SceneGraphNode;

namespace {

OffscreenCanvas& canvas(JNIEnv* env, jobject self)
{
    return peer<OffscreenCanvas>(env, self);
}

template <class T>
boost::shared_ptr<T> shareOrNull(JNIEnv* env, jobject object, const char* argument)
{
    return object == nullptr ? nullptr : share<T>(env, object, argument);
}

template <class Change>
void setStyle(JNIEnv* env, jobject self, Change change)
{
    guarded(env, [&] {
        OffscreenCanvas& its = canvas(env, self);
        RenderStyle style = its.getStyle();
        change(style);
        its.setStyle(style);
    });
}

} // namespace

VX_NATIVE(void, OffscreenRenderer, createNative)
(JNIEnv* env, jclass, jobject self, jint width, jint height, jint samples)
{
    guarded(env, [&] {
        const boost::shared_ptr<IRendererCanvas> canvas = boost::make_shared<OffscreenCanvas>(width, height, samples);
        attach(env, self, canvas);
    });
}

VX_NATIVE(void, OffscreenRenderer, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] {
        if (const auto open = detach<OffscreenCanvas>(env, self)) {
            open->setScene(nullptr);
        }
    });
}

VX_NATIVE(void, OffscreenRenderer, setScene)(JNIEnv* env, jclass, jobject self, jobject scene)
{
    guarded(env, [&] { canvas(env, self).setScene(shareOrNull<Scene>(env, scene, "scene")); });
}

VX_NATIVE(void, OffscreenRenderer, setOverlay)(JNIEnv* env, jclass, jobject self, jobject overlay)
{
    guarded(env, [&] { canvas(env, self).setOverlay(shareOrNull<Overlay>(env, overlay, "overlay")); });
}

VX_NATIVE(void, OffscreenRenderer, setScreenOverlay)(JNIEnv* env, jclass, jobject self, jobject overlay)
{
    guarded(env, [&] { canvas(env, self).setScreenOverlay(shareOrNull<Overlay>(env, overlay, "overlay")); });
}

VX_NATIVE(void, OffscreenRenderer, setFramedNode)(JNIEnv* env, jclass, jobject self, jobject node)
{
    guarded(env, [&] { canvas(env, self).setFramedNode(shareOrNull<SceneGraphNode>(env, node, "node")); });
}

VX_NATIVE(void, OffscreenRenderer, zoomExtents)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { canvas(env, self).zoomExtents(); });
}

VX_NATIVE(void, OffscreenRenderer, setMarkingMode)(JNIEnv* env, jclass, jobject self, jint mode)
{
    const jint number = mode > 0 ? mode - 1 : -1;
    guarded(env, [&] { canvas(env, self).setMarkingMode(static_cast<MarkingSetups::MarkingMode>(number)); });
}

VX_NATIVE(void, OffscreenRenderer, setStudioLight)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    setStyle(env, self, [&](RenderStyle& style) { style.isStudio = on != JNI_FALSE; });
}

VX_NATIVE(jboolean, OffscreenRenderer, isStudioLight)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJava(canvas(env, self).getStyle().isStudio); });
}

VX_NATIVE(void, OffscreenRenderer, setCreaseAngle)(JNIEnv* env, jclass, jobject self, jfloat degrees)
{
    setStyle(env, self, [&](RenderStyle& style) { style.creaseAngle = degrees; });
}

VX_NATIVE(jfloat, OffscreenRenderer, getCreaseAngle)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getStyle().creaseAngle; });
}

VX_NATIVE(void, OffscreenRenderer, setFeatureEdges)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    setStyle(env, self, [&](RenderStyle& style) { style.showFeatureEdges = on != JNI_FALSE; });
}

VX_NATIVE(jboolean, OffscreenRenderer, isFeatureEdges)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJava(canvas(env, self).getStyle().showFeatureEdges); });
}

VX_NATIVE(void, OffscreenRenderer, setSupersampling)(JNIEnv* env, jclass, jobject self, jint factor)
{
    setStyle(env, self, [&](RenderStyle& style) { style.supersampling = factor; });
}

VX_NATIVE(jint, OffscreenRenderer, getSupersampling)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getStyle().supersampling; });
}

VX_NATIVE(void, OffscreenRenderer, resize)(JNIEnv* env, jclass, jobject self, jint width, jint height)
{
    guarded(env, [&] { canvas(env, self).resize(width, height); });
}

VX_NATIVE(jint, OffscreenRenderer, keepVisible)(JNIEnv* env, jclass, jobject self, jobject picked)
{
    return guarded(env, [&] {
        auto& results = peer<PickedObjectCollection>(env, picked, "picked");
        canvas(env, self).keepVisible(results);
        return results.getNumberOfPickedObjects();
    });
}

VX_NATIVE(jint, OffscreenRenderer, getWidth)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getWidth(); });
}

VX_NATIVE(jint, OffscreenRenderer, getHeight)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getHeight(); });
}

VX_NATIVE(jint, OffscreenRenderer, getSamples)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return canvas(env, self).getSamples(); });
}

VX_NATIVE(void, OffscreenRenderer, draw)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { canvas(env, self).draw(); });
}

VX_NATIVE(void, OffscreenRenderer, drawDraft)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { canvas(env, self).draw(Quality::draft); });
}

VX_NATIVE(void, OffscreenRenderer, readImage)(JNIEnv* env, jclass, jobject self, jobject out)
{
    guarded(env, [&] {
        const JavaBytes bytes = directBytes(env, out);
        canvas(env, self).readImage(bytes.data, bytes.size);
    });
}

VX_NATIVE(jbyteArray, OffscreenRenderer, encodePng)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJavaNew(env, canvas(env, self).encodePng()); });
}

VX_NATIVE(jbyteArray, OffscreenRenderer, encodeHardcopy)
(JNIEnv* env, jclass, jobject self, jobject settings, jint width, jint height, jint format)
{
    return guarded(env, [&] {
        return toJavaNew(env, canvas(env, self).encodeHardcopy(peer<HardcopySettings>(env, settings, "settings"), width,
                                                               height, static_cast<HardcopyFormat>(format)));
    });
}

VX_NATIVE(void, OffscreenRenderer, connectInfo)(JNIEnv* env, jclass, jobject info)
{
    guarded(env, [&] { attach(env, info, GlRendererInfo::ofProcess()); });
}

VX_NATIVE(jstring, OffscreenRenderer, describeDriver)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return vxbase::toJavaNew(env, canvas(env, self).getDriver()); });
}

VX_NATIVE(void, OffscreenRenderer, getUploadCounts)(JNIEnv* env, jclass, jobject self, jintArray out)
{
    guarded(env, [&] {
        jintArrayRH::atLeast(env, out, 5);
        const UploadCounts& counts = canvas(env, self).getUploadCounts();
        const jintArrayRH holder(env, out);
        holder.get()[0] = counts.meshes;
        holder.get()[1] = counts.colorTables;
        holder.get()[2] = counts.glyphPictures;
        holder.get()[3] = counts.partTables;
        holder.get()[4] = counts.images;
    });
}
