#pragma once

#include "base/java/jniarray.h"
#include "graphics3d/foundation/vector3f.h"

#include <jni.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {

/// A vector of any number of entries: the first two are x and y, the last of all further ones is z. Missing ones are 0.
inline Vector3f vectorOf(const std::vector<double>& entries)
{
    const std::size_t count = entries.size();
    return {count > 0 ? entries[0] : 0.0, count > 1 ? entries[1] : 0.0, count > 2 ? entries.back() : 0.0};
}

/// Writes the components of a vector to the first three elements of a Java array.
/// @return 1
/// @throws std::out_of_range if the array is shorter; it is then unchanged
inline jint fillArray(JNIEnv* env, jfloatArray out, const Vector3f& vector)
{
    vxbase::jfloatArrayRH::atLeast(env, out, 3);
    const vxbase::jfloatArrayRH elements(env, out);
    elements.get()[0] = vector.x;
    elements.get()[1] = vector.y;
    elements.get()[2] = vector.z;
    return 1;
}

/// Writes all values to the first elements of a Java array.
/// @throws std::out_of_range if the array is shorter; it is then unchanged
inline void fillArray(JNIEnv* env, jdoubleArray out, const std::vector<double>& values)
{
    vxbase::jdoubleArrayRH::atLeast(env, out, static_cast<int>(values.size()));
    std::copy(values.begin(), values.end(), vxbase::jdoubleArrayRH(env, out).get());
}

} // namespace vxgraphics3d
