#pragma once

#include <jni.h>

namespace vxbase {

/// The Java classes and members that native code reaches, looked up once when the virtual machine loads the library.
struct JavaClasses {
    jclass peer = nullptr;             ///< com.vexane.base.NativePeer
    jfieldID peerShare = nullptr;      ///< its field `Share share`
    jfieldID shareHandle = nullptr;    ///< the field `long handle` of that
    jclass exception = nullptr;        ///< com.vexane.base.NativeException
    jmethodID exceptionInit = nullptr; ///< its constructor (key, detail, file, line)
    jclass doubleArray = nullptr;      ///< double[]
};

const JavaClasses& javaClasses();

} // namespace vxbase
