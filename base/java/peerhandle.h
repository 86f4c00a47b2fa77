#pragma once

#include "base/export.h"

#include <jni.h>

#include <boost/shared_ptr.hpp>

#include <bit>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace vxbase {

/// What the number in a Java peer points to: a share in one native object, kept as the root class of its family.
///
/// A native of a base peer class works on every derived peer because the pointer is cast back to the root only and
/// from there down by the language's own casts; a peer of another family is told by `family` and refused. One handle
/// belongs to one peer: `attach` makes it, `release` destroys it.
struct PeerHandle {
    const std::type_info& family;
    boost::shared_ptr<void> object;
    /// The class that the object was last found to be: the same question is answered by one comparison.
    mutable const std::type_info* knownAs = &family;
};

namespace detail {

/// The field of a Java peer that holds the address of its handle, known once the virtual machine has loaded the
/// library.
extern VX_API jfieldID g_peerHandleField;

[[noreturn]] VX_API void throwNoHandle(bool isNull);

} // namespace detail

/// The handle in a peer, or null if the peer is null or closed. Every native begins with it, so it is inline.
inline void* getWsPtrOrNull(JNIEnv* env, jobject peer)
{
    static_assert(sizeof(jlong) >= sizeof(void*));
    return peer == nullptr
               ? nullptr
               : std::bit_cast<void*>(static_cast<std::uintptr_t>(env->GetLongField(peer, detail::g_peerHandleField)));
}

/// The handle in a peer.
/// @throws Exception if the peer is null or closed
inline void* getWsPtr(JNIEnv* env, jobject peer)
{
    void* handle = getWsPtrOrNull(env, peer);
    if (handle == nullptr) {
        detail::throwNoHandle(peer == nullptr);
    }
    return handle;
}

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
/// @throws std::invalid_argument if it is not a peer at all
VX_API void requirePeer(JNIEnv* env, jobject object);
VX_API void attachHandle(JNIEnv* env, jobject self, std::unique_ptr<PeerHandle> handle);

/// Finds out whether the object of a handle is one of class T, and notes it in the handle.
/// @throws std::bad_cast if it is not
template <class T>
[[gnu::noinline]] void requireClass(const PeerHandle& handle)
{
    using Root = typename PeerRootOf<T>::Type;
    if (handle.family != typeid(Root)) {
        throw std::bad_cast();
    }
    if constexpr (!std::is_same_v<T, Root>) {
        static_cast<void>(dynamic_cast<T&>(*static_cast<Root*>(handle.object.get())));
    }
    handle.knownAs = &typeid(T);
}

template <class T>
const PeerHandle& handleOf(JNIEnv* env, jobject peer)
{
    using Root = typename PeerRootOf<T>::Type;
    const auto* handle = static_cast<const PeerHandle*>(getWsPtr(env, peer));
    // A class has one type_info in the process; one that had two would only take the slow way each time.
    const std::type_info* known = std::is_same_v<T, Root> ? &handle->family : handle->knownAs;
    if (known != &typeid(T)) [[unlikely]] {
        requireClass<T>(*handle);
    }
    return *handle;
}

/// The object of a handle that handleOf<T>() gave.
template <class T>
T& objectOf(const PeerHandle& handle)
{
    return static_cast<T&>(*static_cast<typename PeerRootOf<T>::Type*>(handle.object.get()));
}

} // namespace detail

/// The native object of a peer.
/// @throws Exception if the peer is null or closed
/// @throws std::bad_cast if the peer stands for an object of another class
template <class T>
T& peer(JNIEnv* env, jobject object)
{
    return detail::objectOf<T>(detail::handleOf<T>(env, object));
}

/// The native object of a peer, with a share in it.
template <class T>
boost::shared_ptr<T> share(JNIEnv* env, jobject object)
{
    const PeerHandle& handle = detail::handleOf<T>(env, object);
    return boost::shared_ptr<T>(handle.object, &detail::objectOf<T>(handle));
}

/// The same as `peer` for an argument whose Java type says nothing: it may be any object.
template <class T>
T& anyPeer(JNIEnv* env, jobject object)
{
    detail::requirePeer(env, object);
    return peer<T>(env, object);
}

/// Gives a new peer its handle.
/// @throws std::invalid_argument if there is no object
/// @throws std::logic_error if the peer holds a handle already
template <class T>
void attach(JNIEnv* env, jobject self, boost::shared_ptr<T> object)
{
    using Root = typename detail::PeerRootOf<T>::Type;
    boost::shared_ptr<Root> root = std::move(object);
    detail::attachHandle(env, self, std::unique_ptr<PeerHandle>(new PeerHandle{typeid(Root), std::move(root)}));
}

/// Takes the handle from a peer and drops its share in the object. A peer without handle stays as it is, so this may
/// be called twice.
VX_API void release(JNIEnv* env, jobject self);

} // namespace vxbase
