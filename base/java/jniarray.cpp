#include "base/java/jniarray.h"

#include "base/java/javaclasses.h"

namespace vxbase {

namespace {

jsize lengthOf(JNIEnv* env, jarray array)
{
    if (array == nullptr) {
        throw std::invalid_argument("The array is null.");
    }
    return env->GetArrayLength(array);
}

/// @param rowClass the class that each row must have; null if Java has ensured it
template <class JavaRow, class Element>
void rowsToCpp(JNIEnv* env, jobjectArray rows, std::vector<std::vector<Element>>& result, jclass rowClass = nullptr)
{
    result.resize(static_cast<std::size_t>(lengthOf(env, rows)));
    for (std::size_t i = 0; i < result.size(); ++i) {
        const jobject row = env->GetObjectArrayElement(rows, static_cast<jsize>(i));
        throwIfPending(env);
        if (row == nullptr) {
            throw std::invalid_argument("Row " + std::to_string(i) + " of the array is null.");
        }
        if (rowClass != nullptr && env->IsInstanceOf(row, rowClass) == JNI_FALSE) {
            throw std::invalid_argument("Row " + std::to_string(i) + " of the array is of another class.");
        }
        toCpp(env, static_cast<JavaRow>(row), result[i]);
        env->DeleteLocalRef(row);
    }
}

} // namespace

void toCpp(JNIEnv* env, const jintArray& array, std::vector<int>& result)
{
    result.resize(static_cast<std::size_t>(lengthOf(env, array)));
    env->GetIntArrayRegion(array, 0, static_cast<jsize>(result.size()), result.data());
    throwIfPending(env);
}

void toCpp(JNIEnv* env, const jfloatArray& array, std::vector<float>& result)
{
    result.resize(static_cast<std::size_t>(lengthOf(env, array)));
    env->GetFloatArrayRegion(array, 0, static_cast<jsize>(result.size()), result.data());
    throwIfPending(env);
}

void toCpp(JNIEnv* env, const jdoubleArray& array, std::vector<double>& result)
{
    result.resize(static_cast<std::size_t>(lengthOf(env, array)));
    env->GetDoubleArrayRegion(array, 0, static_cast<jsize>(result.size()), result.data());
    throwIfPending(env);
}

void toCpp(JNIEnv* env, const jobjectArray& rows, std::vector<std::vector<double>>& result)
{
    rowsToCpp<jdoubleArray>(env, rows, result);
}

void toCpp(JNIEnv* env, const jobjectArray& rows, std::vector<std::vector<float>>& result)
{
    rowsToCpp<jfloatArray>(env, rows, result, javaClasses().floatArray);
}

jfloatArray toJavaNew(JNIEnv* env, const std::vector<float>& values)
{
    const jfloatArray made = env->NewFloatArray(static_cast<jsize>(values.size()));
    throwIfPending(env);
    env->SetFloatArrayRegion(made, 0, static_cast<jsize>(values.size()), values.data());
    return made;
}

jdoubleArray toJavaNew(JNIEnv* env, const std::vector<double>& values)
{
    const jdoubleArray made = env->NewDoubleArray(static_cast<jsize>(values.size()));
    throwIfPending(env);
    env->SetDoubleArrayRegion(made, 0, static_cast<jsize>(values.size()), values.data());
    return made;
}

jobjectArray toJavaNew(JNIEnv* env, const std::vector<std::vector<double>>& rows)
{
    const jobjectArray made = env->NewObjectArray(static_cast<jsize>(rows.size()), javaClasses().doubleArray, nullptr);
    throwIfPending(env);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const jdoubleArray row = toJavaNew(env, rows[i]);
        env->SetObjectArrayElement(made, static_cast<jsize>(i), row);
        env->DeleteLocalRef(row);
    }
    return made;
}

} // namespace vxbase
