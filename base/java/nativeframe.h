#pragma once

#include "base/java/jnierror.h"
#include "base/logtext.h"

#include <jni.h>

#include <type_traits>
#include <utility>

/// Spells the exported name of a native of a peer class: `VX_NATIVE(jint, SceneGraphNode, getType)(JNIEnv*, ...)`.
/// The Java package below `com.vexane` is what the build defines `VX_JAVA_PACKAGE` to be. The header that javac makes
/// declares the same name, so a signature that differs from the Java method's does not compile.
#define VX_NATIVE(result, Class, method)                                                                               \
    extern "C" JNIEXPORT result JNICALL VX_NATIVE_NAME(VX_JAVA_PACKAGE, Class, method)
#define VX_NATIVE_NAME(package, Class, method) VX_NATIVE_NAME_OF(package, Class, method)
#define VX_NATIVE_NAME_OF(package, Class, method) Java_com_vexane_##package##_##Class##_##method

namespace vxbase {

/// Runs the body of a native. No C++ exception leaves it: each becomes a Java exception, and the native then returns
/// the zero of its type, as does a body without a result.
/// @param path,line the source location of the native
template <class Operation>
auto guarded(JNIEnv* env, Operation&& operation, const char* path = __builtin_FILE(), int line = __builtin_LINE())
    -> std::invoke_result_t<Operation>
{
    using Result = std::invoke_result_t<Operation>;
    try {
        return std::forward<Operation>(operation)();
    } catch (...) {
        raiseCaught(env, fileNameOf(path), line);
    }
    return Result();
}

} // namespace vxbase
