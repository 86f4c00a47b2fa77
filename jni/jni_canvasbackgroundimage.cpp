#include "graphics3d/canvas/canvasbackgroundimage.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstdint>

#include "com_vexane_graphics3d_CanvasBackgroundImage.h"

using namespace vxgraphics3d;

VX_NATIVE(void, CanvasBackgroundImage, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<CanvasBackgroundImage>()); });
}

VX_NATIVE(void, CanvasBackgroundImage, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, CanvasBackgroundImage, setImage)
(JNIEnv* env, jclass, jobject self, jintArray pixels, jint width, jint height, jfloat scale)
{
    return native(env, "setImage", [&] {
        auto& background = peer<CanvasBackgroundImage>(env, self);
        const vxbase::jintArrayRH source(env, pixels);
        if (width < 0 || height < 0 || static_cast<std::int64_t>(width) * height != source.length()) {
            return -1;
        }
        // A picture without pixels becomes one transparent pixel; its width and height are ignored.
        const bool empty = source.length() == 0;
        Image image(empty ? 1 : width, empty ? 1 : height, Image::Rgba, scale);
        std::transform(source.get(), source.get() + source.length(), image.data(), Image::wordFromArgb);
        return background.setImage(image);
    });
}

VX_NATIVE(jint, CanvasBackgroundImage, resetImage)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "resetImage", [&] { return peer<CanvasBackgroundImage>(env, self).resetImage(); });
}
