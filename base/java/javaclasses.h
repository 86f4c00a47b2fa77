#pragma once

#include <jni.h>

namespace vxbase {

/// The Java classes and members that native code reaches, looked up once when the virtual machine loads the library.
struct JavaClasses {
    jclass peer = nullptr;                 ///< com.vexane.base.NativePeer
    jfieldID peerObject = nullptr;         ///< its field `long object`
    jfieldID peerRegistration = nullptr;   ///< its field `Registration registration`
    jfieldID registrationHandle = nullptr; ///< the field `long handle` of that class
    jclass exception = nullptr;            ///< com.vexane.base.NativeException
    jmethodID exceptionInit = nullptr;     ///< its constructor (key, detail, file, line)
    jclass doubleArray = nullptr;          ///< double[]
    jclass floatArray = nullptr;           ///< float[]
};

const JavaClasses& javaClasses();

} // namespace vxbase
