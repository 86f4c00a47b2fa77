#pragma once

#include "base/export.h"

#include <jni.h>

#include <string>
#include <vector>

namespace vxbase {

class UString;

// Java strings and native texts. Narrow texts are UTF-8. A null string is refused with std::invalid_argument; a JNI
// call that fails becomes JavaExceptionPending.

VX_API void jStr2CppStr(JNIEnv* env, jstring text, std::string& result);
VX_API void jStr2CppUStr(JNIEnv* env, jstring text, UString& result);
VX_API void jVStr2CppVStr(JNIEnv* env, jobjectArray texts, std::vector<std::string>& result);
VX_API void toCpp(JNIEnv* env, const jstring& text, std::string& result);
VX_API void toCpp(JNIEnv* env, const jstring& text, UString& result);
VX_API void toCpp(JNIEnv* env, const jobjectArray& texts, std::vector<std::string>& result);

VX_API jstring toJavaNew(JNIEnv* env, const std::string& text);
VX_API jstring toJavaNew(JNIEnv* env, const UString& text);

} // namespace vxbase
