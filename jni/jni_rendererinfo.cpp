#include "graphics3d/settings/rendererinfo.h"
#include "jni/support/native.h"

#include <iterator>
#include <set>
#include <string>

#include "com_vexane_graphics3d_RendererInfo.h"
#include "com_vexane_graphics3d_RendererInfo_MonitorInfo.h"

using namespace vxgraphics3d;

namespace {

using MonitorInfo = RendererInfo::MonitorInfo;

/// The names of a sorted set with commas between them; null for an empty set.
jstring joinedOrNull(JNIEnv* env, const std::set<std::string>& names)
{
    if (names.empty()) {
        return nullptr;
    }
    std::string joined = *names.begin();
    for (auto name = std::next(names.begin()); name != names.end(); ++name) {
        joined += ',' + *name;
    }
    return toJavaNew(env, joined);
}

} // namespace

VX_NATIVE(void, RendererInfo, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, RendererInfo, getNumberOfMissingRequirements)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfMissingRequirements",
                  [&] { return peer<RendererInfo>(env, self).getNumberOfMissingRequirements(); });
}

VX_NATIVE(jstring, RendererInfo, getMissingRequirement)(JNIEnv* env, jclass, jobject self, jint index)
{
    return native(env, "getMissingRequirement",
                  [&] { return toJavaNew(env, peer<RendererInfo>(env, self).getMissingRequirement(index)); });
}

VX_NATIVE(jstring, RendererInfo, getRendererType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRendererType",
                  [&] { return toJavaNew(env, peer<RendererInfo>(env, self).getRendererType()); });
}

VX_NATIVE(jint, RendererInfo, getNumberOfMonitors)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfMonitors", [&] { return peer<RendererInfo>(env, self).getNumberOfMonitors(); });
}

VX_NATIVE(jboolean, RendererInfo, hasDoubleBuffering)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "hasDoubleBuffering",
                  [&] { return toJava(peer<RendererInfo>(env, self).hasDoubleBuffering()); });
}

VX_NATIVE(jint, RendererInfo, getNumberOfMultisampleSettings)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfMultisampleSettings",
                  [&] { return peer<RendererInfo>(env, self).getNumberOfMultisampleSettings(); });
}

VX_NATIVE(jint, RendererInfo, getMultisampleSetting)(JNIEnv* env, jclass, jobject self, jint index)
{
    return native(env, "getMultisampleSetting",
                  [&] { return peer<RendererInfo>(env, self).getMultisampleSetting(index); });
}

VX_NATIVE(jint, RendererInfo, getNumberOfLights)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfLights",
                  [&] { return peer<RendererInfo>(env, self).getMaxNumberOfAvailableLights(); });
}

VX_NATIVE(jint, RendererInfo, getMaxTextureSize)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getMaxTextureSize", [&] { return peer<RendererInfo>(env, self).getMaxTextureSize(); });
}

VX_NATIVE(jint, RendererInfo, getMaxVertexArraySize)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getMaxVertexArraySize", [&] { return peer<RendererInfo>(env, self).getMaxVertexArraySize(); });
}

VX_NATIVE(jint, RendererInfo, getMaxIndexArraySize)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getMaxIndexArraySize", [&] { return peer<RendererInfo>(env, self).getMaxIndexArraySize(); });
}

VX_NATIVE(void, RendererInfo_00024MonitorInfo, connectNative)
(JNIEnv* env, jclass, jobject self, jobject owner, jint monitor)
{
    native(env, "00024MonitorInfo_connectNative",
           [&] { attach(env, self, peer<RendererInfo>(env, owner, "owner").getMonitorInfoPtr(monitor)); });
}

VX_NATIVE(void, RendererInfo_00024MonitorInfo, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "00024MonitorInfo_cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jstring, RendererInfo_00024MonitorInfo, getDeviceID)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getDeviceID",
                  [&] { return toJavaNew(env, peer<MonitorInfo>(env, self).getDeviceID()); });
}

VX_NATIVE(jstring, RendererInfo_00024MonitorInfo, getRendererVendor)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getRendererVendor",
                  [&] { return toJavaNew(env, peer<MonitorInfo>(env, self).getVideoCardVendor()); });
}

VX_NATIVE(jstring, RendererInfo_00024MonitorInfo, getRendererName)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getRendererName",
                  [&] { return toJavaNew(env, peer<MonitorInfo>(env, self).getVideoCardName()); });
}

VX_NATIVE(jstring, RendererInfo_00024MonitorInfo, getRendererVersion)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getRendererVersion",
                  [&] { return toJavaNew(env, peer<MonitorInfo>(env, self).getVideoCardVersion()); });
}

VX_NATIVE(jstring, RendererInfo_00024MonitorInfo, getOpenGlExtensions)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getOpenGlExtensions",
                  [&] { return joinedOrNull(env, peer<MonitorInfo>(env, self).getOpenGlExtensions()); });
}

VX_NATIVE(jint, RendererInfo_00024MonitorInfo, getMaxNumberOfLights)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getMaxNumberOfLights",
                  [&] { return peer<MonitorInfo>(env, self).getMaxNumberOfLights(); });
}

VX_NATIVE(jint, RendererInfo_00024MonitorInfo, getMaxTextureSize)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getMaxTextureSize",
                  [&] { return peer<MonitorInfo>(env, self).getMaxTextureSize(); });
}

VX_NATIVE(jint, RendererInfo_00024MonitorInfo, getMaxVertexArraySize)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getMaxVertexArraySize",
                  [&] { return peer<MonitorInfo>(env, self).getMaxVertexArraySize(); });
}

VX_NATIVE(jint, RendererInfo_00024MonitorInfo, getMaxIndexArraySize)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "00024MonitorInfo_getMaxIndexArraySize",
                  [&] { return peer<MonitorInfo>(env, self).getMaxIndexArraySize(); });
}
