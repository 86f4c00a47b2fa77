#pragma once

#include "base/java/jniarray.h"
#include "base/java/jnistring.h"

#include <jni.h>

namespace vxbase {

/// The value of a Java string or array: `fromJava<std::string>(env, name)`.
template <class Value, class JavaType>
Value fromJava(JNIEnv* env, const JavaType& source)
{
    Value result;
    toCpp(env, source, result);
    return result;
}

/// A Java boolean.
constexpr jboolean toJava(bool value)
{
    return value ? JNI_TRUE : JNI_FALSE;
}

} // namespace vxbase
