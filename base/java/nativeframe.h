#pragma once

#include "base/java/jnierror.h"
#include "base/logtext.h"

#include <jni.h>

#include <type_traits>
#include <utility>

namespace vxbase {

/// Runs the body of a native. No C++ exception leaves it: each becomes a Java exception, and the native then returns
/// the zero of its type, which is also what a body without result gives.
/// @param path,line the place where the native is written
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
