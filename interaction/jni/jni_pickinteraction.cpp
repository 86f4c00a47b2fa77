#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/canvas/irenderercanvas.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/scene/scene.h"
#include "interaction/pickinteraction.h"
#include "interaction/pickmarking.h"

#include <boost/make_shared.hpp>

#include <stdexcept>
#include <string>

#include "com_vexane_interaction_PickInteraction.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::IRendererCanvas;
using vxgraphics3d::PickedObjectCollection;
using vxgraphics3d::Scene;
using vxgraphics3d::SceneGraphObject;

namespace {

const PickInteraction& interaction(JNIEnv* env, jobject self)
{
    return peer<PickInteraction>(env, self);
}

const Scene& sceneOf(JNIEnv* env, jobject scene)
{
    return peer<Scene>(env, scene, "scene");
}

PickedObjectCollection& resultOf(JNIEnv* env, jobject result)
{
    return peer<PickedObjectCollection>(env, result, "result");
}

} // namespace

VX_NATIVE(void, PickInteraction, connectNative)
(JNIEnv* env, jclass, jobject self, jobject renderer, jint canvasHeight)
{
    guarded(env, [&] {
        auto& canvas = peer<IRendererCanvas>(env, renderer, "renderer");
        attach(env, self,
               boost::make_shared<PickInteraction>(canvas.getCanvas3dSettings(), canvas.getCanvasPickSettings(),
                                                   canvasHeight));
    });
}

VX_NATIVE(void, PickInteraction, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(void, PickInteraction, setCanvasHeight)(JNIEnv* env, jclass, jobject self, jint canvasHeight)
{
    guarded(env, [&] { peer<PickInteraction>(env, self).setCanvasHeight(canvasHeight); });
}

VX_NATIVE(jint, PickInteraction, click)
(JNIEnv* env, jclass, jobject self, jobject scene, jobject result, jint x, jint y)
{
    return guarded(env, [&] { return interaction(env, self).click(sceneOf(env, scene), resultOf(env, result), x, y); });
}

VX_NATIVE(jint, PickInteraction, rectangle)
(JNIEnv* env, jclass, jobject self, jobject scene, jobject result, jint x0, jint y0, jint x1, jint y1)
{
    return guarded(env, [&] {
        return interaction(env, self).rectangle(sceneOf(env, scene), resultOf(env, result), x0, y0, x1, y1);
    });
}

VX_NATIVE(jint, PickInteraction, drag)
(JNIEnv* env, jclass, jobject self, jobject scene, jobject result, jint pressX, jint pressY, jint releaseX,
 jint releaseY)
{
    return guarded(env, [&] {
        return interaction(env, self).drag(sceneOf(env, scene), resultOf(env, result), pressX, pressY, releaseX,
                                           releaseY);
    });
}

VX_NATIVE(jint, PickInteraction, mark)
(JNIEnv* env, jclass, jobject scene, jobject picked, jint action, jboolean on)
{
    return guarded(env, [&] {
        if (action < SceneGraphObject::MarkingPrimary || action > SceneGraphObject::MarkingUnpickable) {
            throw std::invalid_argument("There is no marking action " + std::to_string(action) + ".");
        }
        return markPicked(peer<Scene>(env, scene), resultOf(env, picked),
                          static_cast<SceneGraphObject::MarkingType>(action), on != JNI_FALSE);
    });
}
