#include <jni.h>

/// The least that a native with a peer can do: what every other native is measured beside.
extern "C" JNIEXPORT jint JNICALL Java_com_vexane_benchmarks_NativeCalls_empty(JNIEnv*, jclass, jobject)
{
    return 1;
}
