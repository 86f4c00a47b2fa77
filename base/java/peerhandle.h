#pragma once

#include "base/export.h"
#include "base/wrongclass.h"

#include <jni.h>

#include <boost/shared_ptr.hpp>

#include <bit>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace vxbase {

/// What the number in a Java peer points to: a reference to one native object, kept as the root class of its family.
///
/// A native of a base peer class works on every derived peer because the pointer is cast back to the root only, and
/// from there down by ordinary C++ casts; a peer of another family is recognised by `family` and refused. A handle
/// belongs to one peer: `attach` creates it, `release` destroys it.
struct PeerHandle {
    const std::type_info& family;
    /// The class of the object itself.
    const std::type_info& type;
    boost::shared_ptr<void> object;
    /// The class that the last check found the object to be, so that repeated checks need only one comparison.
    mutable const std::type_info* knownAs = &family;
};

/// The name that messages use for the peer a native works on; other arguments have the names of the Java parameters.
inline constexpr const char* c_selfArgument = "peer";

namespace detail {

/// The field of a Java peer that holds the address of its handle, known once the virtual machine has loaded the
/// library.
extern VX_API jfieldID g_peerHandleField;

[[noreturn]] VX_API void throwNoHandle(bool isNull, const char* argument = c_selfArgument);

} // namespace detail

/// The handle in a peer, or null if the peer is null or closed. Inline because every native begins with it.
inline void* getWsPtrOrNull(JNIEnv* env, jobject peer)
{
    static_assert(sizeof(jlong) >= sizeof(void*));
    return peer == nullptr
               ? nullptr
               : std::bit_cast<void*>(static_cast<std::uintptr_t>(env->GetLongField(peer, detail::g_peerHandleField)));
}

/// The handle in a peer.
/// @param argument the name of the argument, for the message
/// @throws Exception if the peer is null or closed
inline void* getWsPtr(JNIEnv* env, jobject peer, const char* argument = c_selfArgument)
{
    void* handle = getWsPtrOrNull(env, peer);
    if (handle == nullptr) [[unlikely]] {
        detail::throwNoHandle(peer == nullptr, argument);
    }
    return handle;
}

/// Stores a handle in a peer; it is released if Java loses the peer. Calls no Java code, so it cannot fail halfway, not
/// even when the Java stack is exhausted.
/// @throws Exception if the peer is null or was closed
VX_API void setWsPtr(JNIEnv* env, jobject peer, void* handle);
VX_API void setNullWsPtr(JNIEnv* env, jobject peer);

/// A class that names the root of its family: `using PeerRoot = SceneGraphNode;`.
template <class T>
concept HasPeerRoot = requires
{
    typename T::PeerRoot;
};

namespace detail {

template <class T>
struct PeerRootOf {
    using Type = T;
};

template <HasPeerRoot T>
struct PeerRootOf<T> {
    using Type = typename T::PeerRoot;
};

/// @throws Exception if the object is null
/// @throws std::invalid_argument if it is not a peer
VX_API void requirePeer(JNIEnv* env, jobject object, const char* argument);
VX_API void attachHandle(JNIEnv* env, jobject self, std::unique_ptr<PeerHandle> handle);
/// Takes the handle out of a peer, which closes the peer; null if it has none.
VX_API std::unique_ptr<PeerHandle> takeHandle(JNIEnv* env, jobject self);

/// Checks that the object of a handle is of class T, and records this in the handle.
/// @throws WrongClass if it is not
template <class T>
[[gnu::noinline]] void requireClass(const PeerHandle& handle, const char* argument)
{
    using Root = typename PeerRootOf<T>::Type;
    if (handle.family != typeid(Root)) {
        throw WrongClass(argument, typeid(T), handle.type);
    }
    if constexpr (!std::is_same_v<T, Root>) {
        static_cast<void>(castTo<T>(*static_cast<Root*>(handle.object.get()), argument));
    }
    handle.knownAs = &typeid(T);
}

template <class T>
const PeerHandle& handleOf(JNIEnv* env, jobject peer, const char* argument)
{
    using Root = typename PeerRootOf<T>::Type;
    const auto* handle = static_cast<const PeerHandle*>(getWsPtr(env, peer, argument));
    // A class normally has one type_info per process; one with two would only take the slow path each time.
    const std::type_info* known = std::is_same_v<T, Root> ? &handle->family : handle->knownAs;
    if (known != &typeid(T)) [[unlikely]] {
        requireClass<T>(*handle, argument);
    }
    return *handle;
}

/// The object of a handle that has been checked to be of class T.
template <class T>
T& objectOf(const PeerHandle& handle)
{
    return static_cast<T&>(*static_cast<typename PeerRootOf<T>::Type*>(handle.object.get()));
}

template <class T>
boost::shared_ptr<T> shareOf(const PeerHandle& handle)
{
    return boost::shared_ptr<T>(handle.object, &objectOf<T>(handle));
}

} // namespace detail

/// The native object of a peer.
/// @param argument the name of the argument, for the message
/// @throws Exception if the peer is null or closed
/// @throws WrongClass if the peer refers to an object of another class
template <class T>
T& peer(JNIEnv* env, jobject object, const char* argument = c_selfArgument)
{
    return detail::objectOf<T>(detail::handleOf<T>(env, object, argument));
}

/// A shared pointer to the native object of a peer.
template <class T>
boost::shared_ptr<T> share(JNIEnv* env, jobject object, const char* argument = c_selfArgument)
{
    return detail::shareOf<T>(detail::handleOf<T>(env, object, argument));
}

/// The same as `peer` for an argument of any Java type.
template <class T>
T& anyPeer(JNIEnv* env, jobject object, const char* argument)
{
    detail::requirePeer(env, object, argument);
    return peer<T>(env, object, argument);
}

/// Gives a new peer its handle.
/// @throws std::invalid_argument if the object is null
/// @throws std::logic_error if the peer holds a handle already
/// @throws Exception if the peer is null or was closed
template <class T>
void attach(JNIEnv* env, jobject self, boost::shared_ptr<T> object)
{
    using Root = typename detail::PeerRootOf<T>::Type;
    boost::shared_ptr<Root> root = std::move(object);
    const std::type_info& type = root ? typeid(*root) : typeid(T);
    detail::attachHandle(env, self, std::unique_ptr<PeerHandle>(new PeerHandle{typeid(Root), type, std::move(root)}));
}

/// Takes the handle out of a peer and releases its reference to the object. Does nothing for a peer without a handle,
/// so it may be called twice.
VX_API void release(JNIEnv* env, jobject self);

/// The same for an object that has work to do when its peer is closed, but not when the peer is lost: returns the
/// reference instead of releasing it, or null for a peer without a handle.
/// @throws WrongClass if the peer refers to an object of another class; it is released nevertheless
template <class T>
boost::shared_ptr<T> detach(JNIEnv* env, jobject self)
{
    const std::unique_ptr<PeerHandle> handle = detail::takeHandle(env, self);
    if (handle == nullptr) {
        return nullptr;
    }
    detail::requireClass<T>(*handle, c_selfArgument);
    return detail::shareOf<T>(*handle);
}

} // namespace vxbase
