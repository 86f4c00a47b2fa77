#pragma once

#include "base/java/jniarray.h"
#include "graphics3d/foundation/vector3f.h"

#include <jni.h>

namespace vxgraphics3d {

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

} // namespace vxgraphics3d
