#include "base/java/peerhandle.h"

#include "base/java/javaclasses.h"
#include "base/java/jnierror.h"
#include "base/logtext.h"

#include <bit>
#include <cstdint>
#include <stdexcept>

namespace vxbase {

namespace {

constexpr const char* c_internalError = "Internal_error_graphics3d";

void* toPointer(jlong number)
{
    return std::bit_cast<void*>(static_cast<std::uintptr_t>(number));
}

jlong toNumber(void* pointer)
{
    return static_cast<jlong>(std::bit_cast<std::uintptr_t>(pointer));
}

} // namespace

namespace detail {

jfieldID g_peerHandleField = nullptr;

void throwNoHandle(bool isNull)
{
    throw Exception(fileNameOf(__FILE__), __LINE__, c_internalError,
                    isNull ? "The peer is null." : "The peer is closed.");
}

} // namespace detail

void setWsPtr(JNIEnv* env, jobject peer, void* handle)
{
    if (peer == nullptr) {
        detail::throwNoHandle(true);
    }
    env->CallVoidMethod(peer, javaClasses().peerSetHandle, toNumber(handle));
    throwIfPending(env);
}

void setNullWsPtr(JNIEnv* env, jobject peer)
{
    setWsPtr(env, peer, nullptr);
}

namespace detail {

void requirePeer(JNIEnv* env, jobject object)
{
    if (object == nullptr) {
        throwNoHandle(true);
    }
    if (env->IsInstanceOf(object, javaClasses().peer) == JNI_FALSE) {
        throw std::invalid_argument("The object is not a peer.");
    }
}

void attachHandle(JNIEnv* env, jobject self, std::unique_ptr<PeerHandle> handle)
{
    if (!handle->object) {
        throw std::invalid_argument("There is no object to connect the peer to.");
    }
    if (getWsPtrOrNull(env, self) != nullptr) {
        throw std::logic_error("The peer is connected already.");
    }
    setWsPtr(env, self, handle.get());
    static_cast<void>(handle.release());
}

} // namespace detail

void release(JNIEnv* env, jobject self)
{
    auto* handle = static_cast<PeerHandle*>(getWsPtrOrNull(env, self));
    if (handle != nullptr) {
        delete handle;
        setNullWsPtr(env, self);
    }
}

} // namespace vxbase

/// Drops the share of a peer that Java forgot to close. Java calls it with the number that the lost peer held, on the
/// thread that makes the next peer, because destructors of native objects take no lock.
extern "C" JNIEXPORT void JNICALL Java_com_vexane_base_NativePeer_releaseLost(JNIEnv* env, jclass, jlong handle)
{
    try {
        delete static_cast<vxbase::PeerHandle*>(vxbase::toPointer(handle));
    } catch (...) {
        vxbase::raiseCaught(env, vxbase::fileNameOf(__FILE__), __LINE__);
    }
}
