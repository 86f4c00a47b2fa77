#include "producer/javavalues.h"

#include "base/java/conversions.h"

namespace vxproducer {

namespace {

jintArray toJavaArray(JNIEnv* env, const std::vector<int>& values)
{
    const jintArray made = env->NewIntArray(static_cast<jsize>(values.size()));
    vxbase::throwIfPending(env);
    env->SetIntArrayRegion(made, 0, static_cast<jsize>(values.size()), values.data());
    return made;
}

template <class Values>
jarray toJavaArray(JNIEnv* env, const Values& values)
{
    return vxbase::toJavaNew(env, values);
}

template <class Value>
jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<Value>>& rows, const char* rowClass)
{
    const jclass type = env->FindClass(rowClass);
    vxbase::throwIfPending(env);
    const jobjectArray made = env->NewObjectArray(static_cast<jsize>(rows.size()), type, nullptr);
    vxbase::throwIfPending(env);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const jarray row = toJavaArray(env, rows[i]);
        env->SetObjectArrayElement(made, static_cast<jsize>(i), row);
        env->DeleteLocalRef(row);
    }
    return made;
}

} // namespace

bool isA(JNIEnv* env, jobject object, const char* className)
{
    if (object == nullptr) {
        return false;
    }
    const jclass type = env->FindClass(className);
    vxbase::throwIfPending(env);
    const bool is = env->IsInstanceOf(object, type) != JNI_FALSE;
    env->DeleteLocalRef(type);
    return is;
}

jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<double>>& rows)
{
    return toJavaRows(env, rows, "[D");
}

jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<float>>& rows)
{
    return toJavaRows(env, rows, "[F");
}

jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<int>>& rows)
{
    return toJavaRows(env, rows, "[I");
}

} // namespace vxproducer
