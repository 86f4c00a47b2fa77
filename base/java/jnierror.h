#pragma once

#include "base/exception.h"

#include <jni.h>

#include <exception>

namespace vxbase {

/// Reports that a Java exception is pending in the environment: a JNI call has failed, and the native has to return so
/// that Java sees the exception.
class VX_API JavaExceptionPending : public std::exception {
public:
    ~JavaExceptionPending() override;
    const char* what() const noexcept override;
};

/// Throws `JavaExceptionPending` if the last JNI call left a Java exception pending.
VX_API void throwIfPending(JNIEnv* env);

/// Raises a Java exception with key, detail, file and line; Java sees it when the native returns. A Java exception that
/// is already pending is kept.
VX_API void throwException(JNIEnv* env, Exception exception);

/// Turns the C++ exception that is being handled into a Java exception. Call it in a `catch (...)` block; it never
/// throws.
/// @param file,line the native that failed, for exceptions that carry no location of their own
VX_API void raiseCaught(JNIEnv* env, const char* file, int line) noexcept;

} // namespace vxbase
