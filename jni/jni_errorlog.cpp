#include "jni/support/native.h"

#include "com_vexane_graphics3d_ErrorLog.h"

using namespace vxgraphics3d;

VX_NATIVE(jboolean, ErrorLog, nSetOutputFile)(JNIEnv* env, jclass, jstring path)
{
    return native(env, "nSetOutputFile",
                  [&] { return toJava(ErrorLog::getInstance()->setTargetToFile(fromJava<std::string>(env, path))); });
}

VX_NATIVE(void, ErrorLog, nFlushAfterEachMessage)(JNIEnv* env, jclass, jboolean flush)
{
    native(env, "nFlushAfterEachMessage", [&] { ErrorLog::getInstance()->flushAfterEachMessage(flush); });
}

VX_NATIVE(void, ErrorLog, nSetReportLevel)(JNIEnv* env, jclass, jint level)
{
    native(env, "nSetReportLevel", [&] {
        // Any number that is not a level silences the log.
        const bool isLevel =
            level >= static_cast<int>(ErrorLog::Level::error) && level <= static_cast<int>(ErrorLog::Level::debug);
        ErrorLog::getInstance()->setReportLevel(isLevel ? static_cast<ErrorLog::Level>(level) : ErrorLog::Level::none);
    });
}

VX_NATIVE(void, ErrorLog, nSetActive)(JNIEnv* env, jclass, jboolean active)
{
    native(env, "nSetActive", [&] { ErrorLog::getInstance()->setActive(active); });
}
