#include "datacarrier/rendergeom1d.h"
#include "datacarrier/rendergeom2d.h"
#include "datacarrier/rendergeom3d.h"
#include "datacarrier/rendermeshcollection.h"
#include "graphics3d/foundation/image.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/scenegraph/scenegraphparent.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"
#include "jni/support/vectors.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "com_vexane_graphics3d_SceneGraphPhysicsObject.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPhysicsObject, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphPhysicsObject::create(id)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, connectNative)
(JNIEnv* env, jclass, jobject self, jobject owner, jint childId)
{
    native(env, "connectNative", [&] {
        attach(
            env, self,
            castTo<SceneGraphPhysicsObject>(peer<SceneGraphParent>(env, owner, "owner").childPtr(childId), "childId"));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, fillObject1D)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject1D", [&] {
        peer<SceneGraphPhysicsObject>(env, self).fillData(anyPeer<vxdatacarrier::RenderGeom1D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, fillObject2D)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject2D", [&] {
        peer<SceneGraphPhysicsObject>(env, self).fillData(anyPeer<vxdatacarrier::RenderGeom2D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, fillObject)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject", [&] {
        peer<SceneGraphPhysicsObject>(env, self).fillData(anyPeer<vxdatacarrier::RenderGeom3D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, resetObject)(JNIEnv* env, jclass, jobject self)
{
    native(env, "resetObject", [&] { peer<SceneGraphPhysicsObject>(env, self).resetObject(); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, addMeshCollection)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "addMeshCollection", [&] {
        peer<SceneGraphPhysicsObject>(env, self).addMeshCollection(
            anyPeer<vxdatacarrier::RenderMeshCollection>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, deleteAllMeshes)(JNIEnv* env, jclass, jobject self)
{
    native(env, "deleteAllMeshes", [&] { peer<SceneGraphPhysicsObject>(env, self).deleteAllMeshes(); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setMaterial)
(JNIEnv* env, jclass, jobject self, jint level, jint index, jstring name)
{
    native(env, "setMaterial", [&] {
        peer<SceneGraphPhysicsObject>(env, self).setMaterial(level, index, fromJava<std::string>(env, name));
    });
}

VX_NATIVE(jboolean, SceneGraphPhysicsObject, hasImage)(JNIEnv* env, jclass, jobject self, jstring name)
{
    return native(env, "hasImage", [&] {
        return toJava(peer<SceneGraphPhysicsObject>(env, self).getImages().contains(fromJava<std::string>(env, name)));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setImage)
(JNIEnv* env, jclass, jobject self, jstring name, jintArray pixels, jint width, jint height, jfloat resolution)
{
    native(env, "setImage", [&] {
        auto& object = peer<SceneGraphPhysicsObject>(env, self);
        const auto key = fromJava<std::string>(env, name);
        const vxbase::jintArrayRH source(env, pixels);
        if (width < 0 || height < 0 || static_cast<std::int64_t>(width) * height != source.length()) {
            throw std::invalid_argument("There are " + std::to_string(source.length()) + " pixels for an image of " +
                                        std::to_string(width) + " by " + std::to_string(height) + ".");
        }
        // An image without pixels becomes one transparent pixel.
        const bool isEmpty = source.length() == 0;
        const auto image =
            boost::make_shared<Image>(isEmpty ? 1 : width, isEmpty ? 1 : height, Image::Rgba, resolution);
        std::transform(source.get(), source.get() + source.length(), image->data(), Image::wordFromArgb);
        object.setImage(image, key);
    });
}

// --- markers and connectors ------------------------------------------------------------------------------------------

VX_NATIVE(void, SceneGraphPhysicsObject, setPhysicsMarker)
(JNIEnv* env, jclass, jobject self, jstring icon, jint level, jint index)
{
    native(env, "setPhysicsMarker", [&] {
        peer<SceneGraphPhysicsObject>(env, self).setPhysicsMarker(level, index, fromJava<std::string>(env, icon));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setPhysicsMarkerNormal)
(JNIEnv* env, jclass, jobject self, jstring icon, jint level, jint index, jboolean flip)
{
    native(env, "setPhysicsMarkerNormal", [&] {
        peer<SceneGraphPhysicsObject>(env, self).setPhysicsMarkerNormal(level, index, fromJava<std::string>(env, icon),
                                                                        flip);
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setPhysicsMarkerSys)
(JNIEnv* env, jclass, jobject self, jstring icon, jint level, jint index, jobjectArray sys)
{
    native(env, "setPhysicsMarkerSys", [&] {
        auto& object = peer<SceneGraphPhysicsObject>(env, self);
        std::vector<Vector3f> directions;
        for (const std::vector<double>& row : fromJava<std::vector<std::vector<double>>>(env, sys)) {
            directions.push_back(vectorOf(row).normalize());
        }
        object.setPhysicsMarkerSys(level, index, fromJava<std::string>(env, icon), directions);
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setPhysicsMarkerBoundSys)
(JNIEnv* env, jclass, jobject self, jstring icon, jint level, jint index, jboolean flip, jboolean normalLast,
 jint dimension, jint axis)
{
    native(env, "setPhysicsMarkerBoundSys", [&] {
        peer<SceneGraphPhysicsObject>(env, self).setPhysicsMarkerBoundSys(
            level, index, fromJava<std::string>(env, icon), flip, normalLast, dimension, axis);
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setPhysicsConnectorPos)
(JNIEnv* env, jclass, jobject self, jstring icon, jint level, jintArray parts, jdoubleArray position)
{
    native(env, "setPhysicsConnectorPos", [&] {
        auto& object = peer<SceneGraphPhysicsObject>(env, self);
        const auto point = vectorOf(fromJava<std::vector<double>>(env, position));
        object.setPhysicsConnector(level, fromJava<std::vector<int>>(env, parts), fromJava<std::string>(env, icon),
                                   point);
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setPhysicsConnectorAuto)
(JNIEnv* env, jclass, jobject self, jstring icon, jint level, jintArray parts)
{
    native(env, "setPhysicsConnectorAuto", [&] {
        peer<SceneGraphPhysicsObject>(env, self).setPhysicsConnector(level, fromJava<std::vector<int>>(env, parts),
                                                                     fromJava<std::string>(env, icon));
    });
}

VX_NATIVE(void, SceneGraphPhysicsObject, clearPhysicsMarkers)(JNIEnv* env, jclass, jobject self)
{
    native(env, "clearPhysicsMarkers", [&] { peer<SceneGraphPhysicsObject>(env, self).clearPhysicsMarkers(); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, setShowPhysicsMarkers)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowPhysicsMarkers", [&] { peer<SceneGraphPhysicsObject>(env, self).setShowPhysicsMarkers(show); });
}

// --- marks -----------------------------------------------------------------------------------------------------------

VX_NATIVE(void, SceneGraphPhysicsObject, markSubdomain)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "markSubdomain",
           [&] { peer<SceneGraphPhysicsObject>(env, self).markSubdomain(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, unmarkSubdomain)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "unmarkSubdomain",
           [&] { peer<SceneGraphPhysicsObject>(env, self).unmarkSubdomain(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, markBoundary)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "markBoundary",
           [&] { peer<SceneGraphPhysicsObject>(env, self).markBoundary(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, unmarkBoundary)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "unmarkBoundary",
           [&] { peer<SceneGraphPhysicsObject>(env, self).unmarkBoundary(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, markEdge)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "markEdge",
           [&] { peer<SceneGraphPhysicsObject>(env, self).markEdge(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, unmarkEdge)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "unmarkEdge",
           [&] { peer<SceneGraphPhysicsObject>(env, self).unmarkEdge(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, markPoint)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "markPoint",
           [&] { peer<SceneGraphPhysicsObject>(env, self).markPoint(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, unmarkPoint)(JNIEnv* env, jclass, jobject self, jint index, jint marking)
{
    native(env, "unmarkPoint",
           [&] { peer<SceneGraphPhysicsObject>(env, self).unmarkPoint(index, javaMarkingTypeToCpp(marking)); });
}

VX_NATIVE(void, SceneGraphPhysicsObject, unmarkAll)(JNIEnv* env, jclass, jobject self, jint partType, jint marking)
{
    native(env, "unmarkAll", [&] {
        peer<SceneGraphPhysicsObject>(env, self).unmarkAll(javaObjectPartTypeToCpp(partType),
                                                           javaMarkingTypeToCpp(marking));
    });
}
