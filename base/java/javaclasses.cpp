#include "base/java/javaclasses.h"

#include "base/java/peerhandle.h"

namespace vxbase {

namespace {

JavaClasses g_classes;

/// A global reference on a class, or null with the Java exception cleared.
jclass findClass(JNIEnv* env, const char* name)
{
    const jclass local = env->FindClass(name);
    if (local == nullptr) {
        env->ExceptionClear();
        return nullptr;
    }
    const auto global = static_cast<jclass>(env->NewGlobalRef(local));
    env->DeleteLocalRef(local);
    return global;
}

/// Whether everything that peers need was found. The exception class may be missing: a standard one then replaces it.
bool load(JNIEnv* env, JavaClasses& java)
{
    java.exception = findClass(env, "com/vexane/base/NativeException");
    if (java.exception != nullptr) {
        java.exceptionInit =
            env->GetMethodID(java.exception, "<init>", "(Ljava/lang/String;Ljava/lang/String;Ljava/lang/String;I)V");
        if (java.exceptionInit == nullptr) {
            return false;
        }
    }
    java.peer = findClass(env, "com/vexane/base/NativePeer");
    const jclass registration = findClass(env, "com/vexane/base/NativePeer$Registration");
    java.doubleArray = findClass(env, "[D");
    java.floatArray = findClass(env, "[F");
    if (java.peer == nullptr || registration == nullptr || java.doubleArray == nullptr || java.floatArray == nullptr) {
        return false;
    }
    detail::g_peerHandleField = env->GetFieldID(java.peer, "handle", "J");
    java.peerObject = env->GetFieldID(java.peer, "object", "J");
    java.peerRegistration = env->GetFieldID(java.peer, "registration", "Lcom/vexane/base/NativePeer$Registration;");
    java.registrationHandle = env->GetFieldID(registration, "handle", "J");
    return detail::g_peerHandleField != nullptr && java.peerObject != nullptr && java.peerRegistration != nullptr &&
           java.registrationHandle != nullptr;
}

} // namespace

const JavaClasses& javaClasses()
{
    return g_classes;
}

} // namespace vxbase

extern "C" JNIEXPORT jint JNICALL JNI_OnLoad(JavaVM* vm, void*)
{
    constexpr jint version = JNI_VERSION_10;
    void* env = nullptr;
    if (vm->GetEnv(&env, version) != JNI_OK || !vxbase::load(static_cast<JNIEnv*>(env), vxbase::g_classes)) {
        return JNI_ERR;
    }
    return version;
}
