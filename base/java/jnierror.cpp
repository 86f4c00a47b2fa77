#include "base/java/jnierror.h"

#include "base/java/javaclasses.h"
#include "base/java/jnistring.h"

#include <new>

namespace vxbase {

namespace {

constexpr const char* c_outOfMemory = "Out_of_memory_graphics3d";
constexpr const char* c_internalError = "Internal_error_graphics3d";

void throwJava(JNIEnv* env, const char* className, const char* message)
{
    const jclass type = env->FindClass(className);
    if (type != nullptr) {
        env->ThrowNew(type, message);
        env->DeleteLocalRef(type);
    }
}

} // namespace

JavaExceptionPending::~JavaExceptionPending() = default;

const char* JavaExceptionPending::what() const noexcept
{
    return "a Java exception is pending";
}

void throwIfPending(JNIEnv* env)
{
    if (env->ExceptionCheck() != JNI_FALSE) {
        throw JavaExceptionPending();
    }
}

void throwException(JNIEnv* env, Exception exception)
{
    if (env->ExceptionCheck() != JNI_FALSE) {
        return;
    }
    const JavaClasses& java = javaClasses();
    if (java.exception == nullptr) {
        const std::string text = exception.getKey() + ": " + exception.getDetail();
        throwJava(env, "java/lang/RuntimeException", text.c_str());
        return;
    }
    const jstring key = toJavaNew(env, exception.getKey());
    const jstring detail = toJavaNew(env, exception.getDetail());
    const jstring file = toJavaNew(env, exception.getFile());
    const jobject made = env->NewObject(java.exception, java.exceptionInit, key, detail, file, exception.getLine());
    if (made != nullptr) {
        env->Throw(static_cast<jthrowable>(made));
    }
}

void raiseCaught(JNIEnv* env, const char* file, int line) noexcept
{
    try {
        try {
            throw;
        } catch (const Exception& caught) {
            throwException(env, caught);
        } catch (const std::bad_alloc&) {
            throwException(env, Exception(file, line, c_outOfMemory));
        } catch (const std::exception& caught) {
            throwException(env, Exception(file, line, c_internalError, caught.what()));
        } catch (...) {
            throwException(env, Exception(file, line, c_internalError));
        }
    } catch (...) {
        // Not even the report could be built, but Java must still see a failure.
        if (env->ExceptionCheck() == JNI_FALSE) {
            throwJava(env, "java/lang/OutOfMemoryError", c_outOfMemory);
        }
    }
}

} // namespace vxbase
