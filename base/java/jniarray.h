#pragma once

#include "base/java/jnierror.h"

#include <jni.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace vxbase {

// Java arrays and native vectors. A null array, or a null row of an array of arrays, is refused with
// std::invalid_argument; a JNI call that fails becomes JavaExceptionPending.

VX_API void toCpp(JNIEnv* env, const jintArray& array, std::vector<int>& result);
VX_API void toCpp(JNIEnv* env, const jfloatArray& array, std::vector<float>& result);
VX_API void toCpp(JNIEnv* env, const jdoubleArray& array, std::vector<double>& result);
VX_API void toCpp(JNIEnv* env, const jobjectArray& rows, std::vector<std::vector<double>>& result);

/// Refuses rows that are not float[] as well.
VX_API void toCpp(JNIEnv* env, const jobjectArray& rows, std::vector<std::vector<float>>& result);

VX_API jfloatArray toJavaNew(JNIEnv* env, const std::vector<float>& values);
VX_API jdoubleArray toJavaNew(JNIEnv* env, const std::vector<double>& values);
VX_API jobjectArray toJavaNew(JNIEnv* env, const std::vector<std::vector<double>>& rows);

namespace detail {

template <class JavaArray>
struct ArrayElements;

#define VX_ARRAY_ELEMENTS(JavaArray, JavaElement, CppElement, Name)                                                    \
    template <>                                                                                                        \
    struct ArrayElements<JavaArray> {                                                                                  \
        static_assert(sizeof(JavaElement) == sizeof(CppElement));                                                      \
        using Element = CppElement;                                                                                    \
        static JavaElement* get(JNIEnv* env, JavaArray array)                                                          \
        {                                                                                                              \
            return env->Get##Name##ArrayElements(array, nullptr);                                                      \
        }                                                                                                              \
        static void put(JNIEnv* env, JavaArray array, JavaElement* data)                                               \
        {                                                                                                              \
            env->Release##Name##ArrayElements(array, data, 0);                                                         \
        }                                                                                                              \
    }

VX_ARRAY_ELEMENTS(jintArray, jint, int, Int);
VX_ARRAY_ELEMENTS(jfloatArray, jfloat, float, Float);
VX_ARRAY_ELEMENTS(jdoubleArray, jdouble, double, Double);
#undef VX_ARRAY_ELEMENTS

} // namespace detail

/// Access to the elements of a Java array within a scope. Changes are written back to Java when the holder is
/// destroyed.
///
/// Natives that read or fill a fixed number of elements check it with `atLeast`, which refuses an array that is too
/// short before anything is accessed.
template <class JavaArray>
class ArrayHolder {
public:
    using Element = typename detail::ArrayElements<JavaArray>::Element;

    ArrayHolder(JNIEnv* env, JavaArray array, std::nullptr_t = nullptr, int = 0) : m_env(env), m_array(array)
    {
        if (array == nullptr) {
            throw std::invalid_argument("The array is null.");
        }
        m_length = env->GetArrayLength(array);
        m_data = detail::ArrayElements<JavaArray>::get(env, array);
        if (m_data == nullptr) {
            throw JavaExceptionPending();
        }
    }
    /// The same, and returns elements and length in the arguments.
    ArrayHolder(JNIEnv* env, JavaArray array, std::nullptr_t, int, Element*& data, int& length)
        : ArrayHolder(env, array)
    {
        data = m_data;
        length = m_length;
    }
    ~ArrayHolder() { detail::ArrayElements<JavaArray>::put(m_env, m_array, m_data); }
    ArrayHolder(const ArrayHolder&) = delete;
    ArrayHolder& operator=(const ArrayHolder&) = delete;

    /// @throws std::out_of_range if the array has fewer than `count` elements
    static void atLeast(JNIEnv* env, JavaArray array, int count)
    {
        if (array == nullptr) {
            throw std::invalid_argument("The array is null.");
        }
        const int length = env->GetArrayLength(array);
        if (length < count) {
            throw std::out_of_range("The array has " + std::to_string(length) + " elements, " + std::to_string(count) +
                                    " are needed.");
        }
    }

    Element* get() const { return m_data; }
    int length() const { return m_length; }

private:
    JNIEnv* m_env;
    JavaArray m_array;
    Element* m_data = nullptr;
    int m_length = 0;
};

using jintArrayRH = ArrayHolder<jintArray>;
using jfloatArrayRH = ArrayHolder<jfloatArray>;
using jdoubleArrayRH = ArrayHolder<jdoubleArray>;
using jintArray1RH = ArrayHolder<jintArray>;

} // namespace vxbase
