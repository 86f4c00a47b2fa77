#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "jni/support/native.h"

#include <stdexcept>
#include <string>

#include "com_vexane_graphics3d_SceneGraphPlotIso.h"

using namespace vxgraphics3d;

namespace {

void requireLevel(const SceneGraphPlotIso& plot, int index)
{
    if (index < 0 || index >= plot.getNumberOfLevels()) {
        throw std::out_of_range("There is no level with the index " + std::to_string(index) + " among " +
                                std::to_string(plot.getNumberOfLevels()) + ".");
    }
}

} // namespace

VX_NATIVE(void, SceneGraphPlotIso, setLabelColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setLabelColor", [&] { peer<SceneGraphPlotIso>(env, self).setLabelColor(Color::fromRgb(color)); });
}

VX_NATIVE(void, SceneGraphPlotIso, setShowLabels)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowLabels", [&] { peer<SceneGraphPlotIso>(env, self).setShowLabels(show); });
}

VX_NATIVE(void, SceneGraphPlotIso, setLabels)(JNIEnv* env, jclass, jobject self, jobjectArray labels)
{
    native(env, "setLabels",
           [&] { peer<SceneGraphPlotIso>(env, self).setLabels(fromJava<std::vector<std::string>>(env, labels)); });
}

VX_NATIVE(void, SceneGraphPlotIso, setLegendLevels)(JNIEnv* env, jclass, jobject self, jdoubleArray levels)
{
    native(env, "setLegendLevels",
           [&] { peer<SceneGraphPlotIso>(env, self).setLegendLevels(fromJava<std::vector<double>>(env, levels)); });
}

VX_NATIVE(void, SceneGraphPlotIso, setSurfaceShownForAll)(JNIEnv* env, jclass, jobject self, jboolean shown)
{
    native(env, "setSurfaceShownForAll", [&] { peer<SceneGraphPlotIso>(env, self).setSurfaceShownForAll(shown); });
}

VX_NATIVE(jboolean, SceneGraphPlotIso, isSurfaceShown)(JNIEnv* env, jclass, jobject self, jint index)
{
    return native(env, "isSurfaceShown", [&] {
        const SceneGraphPlotIso& plot = peer<SceneGraphPlotIso>(env, self);
        requireLevel(plot, index);
        return toJava(plot.isSurfaceShown(index));
    });
}

VX_NATIVE(void, SceneGraphPlotIso, setSurfaceShown)(JNIEnv* env, jclass, jobject self, jint index, jboolean shown)
{
    native(env, "setSurfaceShown", [&] {
        SceneGraphPlotIso& plot = peer<SceneGraphPlotIso>(env, self);
        requireLevel(plot, index);
        plot.setSurfaceShown(index, shown);
    });
}

VX_NATIVE(jint, SceneGraphPlotIso, getNumberOfSurfaces)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfSurfaces", [&] { return peer<SceneGraphPlotIso>(env, self).getNumberOfLevels(); });
}
