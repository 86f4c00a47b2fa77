#include "base/java/peerhandle.h"

#include "base/java/javaclasses.h"
#include "base/java/nativeframe.h"
#include "base/logtext.h"

#include <bit>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

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

void throwNoHandle(bool isNull, const char* argument)
{
    const std::string name = argument == std::string_view(c_selfArgument) ? "" : " \"" + std::string(argument) + "\"";
    throw Exception(fileNameOf(__FILE__), __LINE__, c_internalError,
                    "The peer" + name + (isNull ? " is null." : " is closed."));
}

} // namespace detail

namespace {

/// Writes the number of a handle into a peer and into its registration, which remains when Java loses the peer.
void storeHandle(JNIEnv* env, jobject peer, jobject registration, jlong number)
{
    const JavaClasses& java = javaClasses();
    env->SetLongField(registration, java.registrationHandle, number);
    env->SetLongField(peer, detail::g_peerHandleField, number);
}

} // namespace

void setWsPtr(JNIEnv* env, jobject peer, void* handle)
{
    if (peer == nullptr) {
        detail::throwNoHandle(true);
    }
    const jobject registration = env->GetObjectField(peer, javaClasses().peerRegistration);
    if (registration != nullptr) {
        storeHandle(env, peer, registration, toNumber(handle));
        env->DeleteLocalRef(registration);
    } else if (handle != nullptr) {
        detail::throwNoHandle(false);
    }
}

void setNullWsPtr(JNIEnv* env, jobject peer)
{
    setWsPtr(env, peer, nullptr);
}

namespace detail {

void requirePeer(JNIEnv* env, jobject object, const char* argument)
{
    if (object == nullptr) {
        throwNoHandle(true, argument);
    }
    if (env->IsInstanceOf(object, javaClasses().peer) == JNI_FALSE) {
        throw std::invalid_argument(std::string("Argument \"") + argument + "\" is not a peer.");
    }
}

void attachHandle(JNIEnv* env, jobject self, std::unique_ptr<PeerHandle> handle)
{
    if (!handle->object) {
        throw std::invalid_argument("There is no object to connect the peer to.");
    }
    if (getWsPtrOrNull(env, self) != nullptr) {
        throw std::logic_error("The peer is already connected.");
    }
    if (self != nullptr) {
        env->SetLongField(self, javaClasses().peerObject, toNumber(handle->object.get()));
    }
    setWsPtr(env, self, handle.get());
    static_cast<void>(handle.release());
}

std::unique_ptr<PeerHandle> takeHandle(JNIEnv* env, jobject self)
{
    std::unique_ptr<PeerHandle> handle(static_cast<PeerHandle*>(getWsPtrOrNull(env, self)));
    if (handle != nullptr) {
        setNullWsPtr(env, self);
    }
    return handle;
}

} // namespace detail

void release(JNIEnv* env, jobject self)
{
    static_cast<void>(detail::takeHandle(env, self));
}

} // namespace vxbase

/// Releases a peer that Java lost. Java calls it with the peer's registration, on the thread that makes the next peer:
/// destructors of native objects access only what nothing else owns, so any thread will do.
extern "C" JNIEXPORT void JNICALL Java_com_vexane_base_NativePeer_releaseLost(JNIEnv* env, jclass, jobject registration)
{
    vxbase::guarded(env, [&] {
        if (registration == nullptr) {
            throw std::invalid_argument("The registration is null.");
        }
        const jfieldID field = vxbase::javaClasses().registrationHandle;
        const std::unique_ptr<vxbase::PeerHandle> handle(
            static_cast<vxbase::PeerHandle*>(vxbase::toPointer(env->GetLongField(registration, field))));
        env->SetLongField(registration, field, 0);
    });
}
