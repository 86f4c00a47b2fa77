#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/postdatareader.h"
#include "graphics3d/readers/sceneobjectfilereader.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_PostDataReader.h"

using namespace vxgraphics3d;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::RenderDraw3D;

VX_NATIVE(jboolean, PostDataReader, readPostData)(JNIEnv* env, jclass, jobject record, jstring file)
{
    return native(env, "readPostData", [&] {
        return toJava(readPostData(anyPeer<PostDataObject>(env, record, "record"), fromJava<std::string>(env, file)));
    });
}

VX_NATIVE(jboolean, PostDataReader, readDrawObjectSolid)
(JNIEnv* env, jclass, jobject record, jstring path, jfloat x, jfloat y, jfloat z)
{
    return native(env, "readDrawObjectSolid", [&] {
        return toJava(SceneObjectFileReader::readDrawObjectSolid(anyPeer<RenderDraw3D>(env, record, "record"),
                                                                 fromJava<std::string>(env, path), {x, y, z}));
    });
}
