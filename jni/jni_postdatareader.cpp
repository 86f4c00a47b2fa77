#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/postdatareader.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_PostDataReader.h"

using namespace vxgraphics3d;
using vxdatacarrier::PostDataObject;

VX_NATIVE(jboolean, PostDataReader, readPostData)(JNIEnv* env, jclass, jobject record, jstring file)
{
    return native(env, "readPostData", [&] {
        return toJava(readPostData(anyPeer<PostDataObject>(env, record, "record"), fromJava<std::string>(env, file)));
    });
}
