#pragma once

#include "base/exception.h"

#include <jni.h>

#include <exception>

namespace vxbase {

/// Says that a Java exception is pending in the environment: a JNI call has failed, and the native has to end so that
/// Java sees what happened.
class VX_API JavaExceptionPending : public std::exception {
public:
    ~JavaExceptionPending() override;
    const char* what() const noexcept override;
};

/// Throws `JavaExceptionPending` if the last JNI call left a Java exception behind.
VX_API void throwIfPending(JNIEnv* env);

/// Arms a Java exception with key, detail, file and line, which Java sees when the native returns. A Java exception
/// that is pending already stays.
VX_API void throwException(JNIEnv* env, Exception exception);

/// Turns the C++ exception that is being handled into a Java exception. To be called in a `catch (...)` block; lets
/// nothing out, whatever happens.
/// @param file,line the native that failed, for exceptions that carry no place of their own
VX_API void raiseCaught(JNIEnv* env, const char* file, int line) noexcept;

} // namespace vxbase
