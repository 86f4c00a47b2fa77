#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vxrenderer {

/// The memory of a direct buffer of Java. It lives as long as Java holds the buffer.
struct JavaBytes {
    std::uint8_t* data;
    std::size_t size;
};

/// @throws std::invalid_argument if there is no buffer, or it is not a direct one
JavaBytes directBytes(JNIEnv* env, jobject buffer);

/// A Java array of these bytes.
/// @throws vxbase::JavaExceptionPending if the virtual machine does not have the memory
jbyteArray toJavaNew(JNIEnv* env, const std::vector<std::uint8_t>& bytes);

} // namespace vxrenderer
