#include "renderer/jni/javabytes.h"

#include "base/java/jnierror.h"

#include <stdexcept>

namespace vxrenderer {

JavaBytes directBytes(JNIEnv* env, jobject buffer)
{
    void* data = buffer == nullptr ? nullptr : env->GetDirectBufferAddress(buffer);
    if (data == nullptr) {
        throw std::invalid_argument("The buffer is not a direct one.");
    }
    return {static_cast<std::uint8_t*>(data), static_cast<std::size_t>(env->GetDirectBufferCapacity(buffer))};
}

jbyteArray toJavaNew(JNIEnv* env, const std::vector<std::uint8_t>& bytes)
{
    const auto size = static_cast<jsize>(bytes.size());
    const jbyteArray array = env->NewByteArray(size);
    if (array == nullptr) {
        throw vxbase::JavaExceptionPending();
    }
    const void* data = bytes.data();
    env->SetByteArrayRegion(array, 0, size, static_cast<const jbyte*>(data));
    return array;
}

} // namespace vxrenderer
