#pragma once

#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/foundation/errorlog.h"

#include <jni.h>

#include <type_traits>
#include <utility>

namespace vxgraphics3d {

using vxbase::anyPeer;
using vxbase::attach;
using vxbase::castTo;
using vxbase::detach;
using vxbase::fromJava;
using vxbase::peer;
using vxbase::release;
using vxbase::share;
using vxbase::toJava;
using vxbase::toJavaNew;
using vxbase::trueFalse;

/// The entry line of a native, which is logged on construction, before anything in the native can fail, and the source
/// location for reporting failures. Made from a text, or from a text and its arguments in braces.
class NativeEntry {
public:
    template <class... Args>
    NativeEntry(vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
        : m_file(text.file), m_line(text.line)
    {
        detail::logLine<ErrorLog::Level::jniInfo, c_nativeLogSubId, Args...>(text, args...);
    }

    const char* file() const { return m_file; }
    int line() const { return m_line; }

private:
    const char* m_file;
    int m_line;
};

/// A message about a number from Java that has no meaning and is tolerated.
inline void logNativeError(vxbase::LogText<> text)
{
    detail::logLine<ErrorLog::Level::error, c_nativeLogSubId>(text);
}

/// A message about an unusual call from Java.
inline void logNativeWarning(vxbase::LogText<> text)
{
    detail::logLine<ErrorLog::Level::warning, c_nativeLogSubId>(text);
}

/// The frame of every native: logs the entry, runs the body, and turns any exception into a Java exception.
/// @return what the body returns, or the zero of that type if it threw
template <class Operation>
auto native(JNIEnv* env, const NativeEntry& entry, Operation&& operation)
{
    return vxbase::guarded(env, std::forward<Operation>(operation), entry.file(), entry.line());
}

template <class Operation>
auto native(JNIEnv* env, vxbase::LogText<> text, Operation&& operation)
{
    return native(env, NativeEntry(text), std::forward<Operation>(operation));
}

} // namespace vxgraphics3d
