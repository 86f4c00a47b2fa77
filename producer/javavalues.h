#pragma once

#include "base/java/jnierror.h"

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxproducer {

// Values that Java gives as arrays or direct buffers, copied once into vectors of the same element, and back. Anything
// else in their place is refused with std::invalid_argument.

/// The Java classes that hold values of a kind.
template <class Value>
struct JavaHolders;

template <>
struct JavaHolders<double> {
    static constexpr const char* array = "[D";
    static constexpr const char* buffer = "java/nio/DoubleBuffer";
};

template <>
struct JavaHolders<float> {
    static constexpr const char* array = "[F";
    static constexpr const char* buffer = "java/nio/FloatBuffer";
};

template <>
struct JavaHolders<int> {
    static constexpr const char* array = "[I";
    static constexpr const char* buffer = "java/nio/IntBuffer";
};

/// Whether an object is of a class; null is of none.
bool isA(JNIEnv* env, jobject object, const char* className);

/// The values of a Java array.
template <class Value>
std::vector<Value> copyArray(JNIEnv* env, jarray array)
{
    std::vector<Value> result;
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

/// The values of a direct buffer in native byte order.
template <class Value>
std::vector<Value> copyBuffer(const void* values, std::size_t count)
{
    if (reinterpret_cast<std::uintptr_t>(values) % alignof(Value) == 0) {
        const auto* first = static_cast<const Value*>(values);
        return {first, first + count};
    }
    // A view of a byte buffer may start anywhere.
    std::vector<Value> result(count);
    std::memcpy(result.data(), values, count * sizeof(Value));
    return result;
}

/// The values of a row: a Java array or a direct buffer.
/// @param name what the row is called in messages
template <class Value>
std::vector<Value> copyRow(JNIEnv* env, jobject row, const std::string& name)
{
    if (isA(env, row, JavaHolders<Value>::array)) {
        return copyArray<Value>(env, static_cast<jarray>(row));
    }
    const bool isBuffer = isA(env, row, JavaHolders<Value>::buffer);
    const jlong capacity = isBuffer ? env->GetDirectBufferCapacity(row) : -1;
    const void* values = isBuffer ? env->GetDirectBufferAddress(row) : nullptr;
    if (capacity < 0 || values == nullptr) {
        throw std::invalid_argument(name +
                                    (row == nullptr ? " is null." : " is no array or direct buffer of its type."));
    }
    return copyBuffer<Value>(values, static_cast<std::size_t>(capacity));
}

/// The rows of a Java array of arrays or direct buffers.
/// @param field what the array is called in messages
template <class Value>
std::vector<std::vector<Value>> copyRows(JNIEnv* env, jobjectArray sources, const char* field)
{
    if (sources == nullptr) {
        throw std::invalid_argument(std::string(field) + " is null.");
    }
    std::vector<std::vector<Value>> rows(static_cast<std::size_t>(env->GetArrayLength(sources)));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const jobject source = env->GetObjectArrayElement(sources, static_cast<jsize>(i));
        vxbase::throwIfPending(env);
        rows[i] = copyRow<Value>(env, source, field + ('[' + std::to_string(i)) + ']');
        env->DeleteLocalRef(source);
    }
    return rows;
}

/// The arrays of each part; none for a part that is null.
/// @param kind the name of a part in messages
template <class Value>
std::vector<std::vector<std::vector<Value>>> copyParts(JNIEnv* env, jobjectArray sources, const char* kind)
{
    if (sources == nullptr) {
        throw std::invalid_argument(std::string("The array of each ") + kind + " is null.");
    }
    std::vector<std::vector<std::vector<Value>>> parts(static_cast<std::size_t>(env->GetArrayLength(sources)));
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto arrays = static_cast<jobjectArray>(env->GetObjectArrayElement(sources, static_cast<jsize>(i)));
        vxbase::throwIfPending(env);
        if (arrays != nullptr) {
            parts[i] = copyRows<Value>(env, arrays, (kind + (' ' + std::to_string(i))).c_str());
            env->DeleteLocalRef(arrays);
        }
    }
    return parts;
}

/// A new Java array of arrays.
jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<double>>& rows);
jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<float>>& rows);
jobjectArray toJavaRows(JNIEnv* env, const std::vector<std::vector<int>>& rows);

} // namespace vxproducer
