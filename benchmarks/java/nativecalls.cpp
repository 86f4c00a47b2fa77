#include <jni.h>

/// The minimum that a native with a peer does: the reference for measuring all other natives.
extern "C" JNIEXPORT jint JNICALL Java_com_vexane_benchmarks_NativeCalls_empty(JNIEnv*, jclass, jobject)
{
    return 1;
}
