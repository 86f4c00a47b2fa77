#include "base/java/jnistring.h"

#include "base/java/jnierror.h"
#include "base/ustring.h"

#include <stdexcept>

namespace vxbase {

void jStr2CppUStr(JNIEnv* env, jstring text, UString& result)
{
    if (text == nullptr) {
        throw std::invalid_argument("The string is null.");
    }
    const jsize length = env->GetStringLength(text);
    std::vector<jchar> units(static_cast<std::size_t>(length));
    env->GetStringRegion(text, 0, length, units.data());
    throwIfPending(env);
    const std::u16string copy(units.begin(), units.end());
    result = UString(copy.data(), copy.size());
}

void jStr2CppStr(JNIEnv* env, jstring text, std::string& result)
{
    UString units;
    jStr2CppUStr(env, text, units);
    result = units.toUtf8();
}

void jVStr2CppVStr(JNIEnv* env, jobjectArray texts, std::vector<std::string>& result)
{
    if (texts == nullptr) {
        throw std::invalid_argument("The array of strings is null.");
    }
    const jsize length = env->GetArrayLength(texts);
    std::vector<std::string> converted(static_cast<std::size_t>(length));
    for (jsize i = 0; i < length; ++i) {
        const auto text = static_cast<jstring>(env->GetObjectArrayElement(texts, i));
        throwIfPending(env);
        jStr2CppStr(env, text, converted[static_cast<std::size_t>(i)]);
        env->DeleteLocalRef(text);
    }
    result.swap(converted);
}

void toCpp(JNIEnv* env, const jstring& text, std::string& result)
{
    jStr2CppStr(env, text, result);
}

void toCpp(JNIEnv* env, const jstring& text, UString& result)
{
    jStr2CppUStr(env, text, result);
}

void toCpp(JNIEnv* env, const jobjectArray& texts, std::vector<std::string>& result)
{
    jVStr2CppVStr(env, texts, result);
}

jstring toJavaNew(JNIEnv* env, const std::string& text)
{
    return toJavaNew(env, UString(text));
}

jstring toJavaNew(JNIEnv* env, const UString& text)
{
    // With the final zero, so that there is an array even for an empty text.
    const std::vector<jchar> units(text.data(), text.data() + text.size() + 1);
    const jstring made = env->NewString(units.data(), static_cast<jsize>(text.size()));
    throwIfPending(env);
    return made;
}

} // namespace vxbase
