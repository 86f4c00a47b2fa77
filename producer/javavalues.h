#pragma once

#include "base/java/jnierror.h"

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

namespace vxproducer {

// Values that Java gives as arrays or direct buffers, copied once into vectors of the same element, and back.

/// The values of a Java array or of a direct buffer of the same element in native byte order.
template <class Value>
std::vector<Value> copyValues(JNIEnv* env, jobject source)
{
    std::vector<Value> result;
    const jlong capacity = env->GetDirectBufferCapacity(source);
    if (capacity >= 0) {
        const void* values = env->GetDirectBufferAddress(source);
        if (reinterpret_cast<std::uintptr_t>(values) % alignof(Value) == 0) {
            const auto* first = static_cast<const Value*>(values);
            result.assign(first, first + capacity);
        } else {
            // A view of a byte buffer may start anywhere.
            result.resize(static_cast<std::size_t>(capacity));
            std::memcpy(result.data(), values, result.size() * sizeof(Value));
        }
        return result;
    }
    auto* array = static_cast<jarray>(source);
    const jsize length = env->GetArrayLength(array);
    // Nothing is allocated while the array is held.
    result.reserve(static_cast<std::size_t>(length));
    void* values = env->GetPrimitiveArrayCritical(array, nullptr);
    if (values == nullptr) {
        throw std::bad_alloc();
    }
    const auto* first = static_cast<const Value*>(values);
    result.assign(first, first + length);
    env->ReleasePrimitiveArrayCritical(array, values, JNI_ABORT);
    return result;
}

/// The rows of a Java array of arrays or direct buffers.
template <class Value>
std::vector<std::vector<Value>> copyRows(JNIEnv* env, jobjectArray sources)
{
    std::vector<std::vector<Value>> rows(static_cast<std::size_t>(env->GetArrayLength(sources)));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const jobject source = env->GetObjectArrayElement(sources, static_cast<jsize>(i));
        vxbase::throwIfPending(env);
        rows[i] = copyValues<Value>(env, source);
        env->DeleteLocalRef(source);
    }
    return rows;
}

/// A new Java array of arrays.
jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<double>>& rows);
jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<float>>& rows);
jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<int>>& rows);

} // namespace vxproducer
