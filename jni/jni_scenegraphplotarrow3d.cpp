#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"
#include "graphics3d/readers/sceneplotfilereader.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "com_vexane_graphics3d_SceneGraphPlotArrow3d.h"

using namespace vxgraphics3d;

namespace {

using Rows = std::vector<std::vector<float>>;

/// x, y and z of one or more points.
/// @param count the number of points
/// @throws std::invalid_argument if there are not three arrays with a value per point
void requireRows(const Rows& rows, std::size_t count, const char* name)
{
    if (rows.size() < 3) {
        throw std::invalid_argument(std::string(name) + " has " + std::to_string(rows.size()) +
                                    " arrays, 3 are needed.");
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (rows[axis].size() != count) {
            throw std::invalid_argument("Array " + std::to_string(axis) + " of " + name + " has " +
                                        std::to_string(rows[axis].size()) + " values for " + std::to_string(count) +
                                        " points.");
        }
    }
}

} // namespace

VX_NATIVE(void, SceneGraphPlotArrow3d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotArrow3d>(id)); });
}

VX_NATIVE(void, SceneGraphPlotArrow3d, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint plotId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphPlotArrow3d>(peer<SceneGraphPlotGroup>(env, owner, "owner").plotPtr(plotId), "plotId"));
    });
}

VX_NATIVE(jboolean, SceneGraphPlotArrow3d, readFile)(JNIEnv* env, jclass, jobject self, jstring path)
{
    return native(env, "readFile", [&] {
        return toJava(ScenePlotFileReader::readArrowPlot3d(peer<SceneGraphPlotArrow3d>(env, self),
                                                           fromJava<std::string>(env, path)));
    });
}

VX_NATIVE(jboolean, SceneGraphPlotArrow3d, update)
(JNIEnv* env, jclass, jobject self, jobjectArray positions, jobjectArray vectors, jfloatArray values)
{
    return native(env, "update", [&] {
        auto& plot = peer<SceneGraphPlotArrow3d>(env, self);
        const auto points = fromJava<Rows>(env, positions);
        const auto directions = fromJava<Rows>(env, vectors);
        const auto colors = values != nullptr ? fromJava<std::vector<float>>(env, values) : std::vector<float>();
        const std::size_t count = points.empty() ? 0 : points.front().size();
        requireRows(points, count, "positions");
        requireRows(directions, count, "vectors");
        if (values != nullptr && colors.size() < count) {
            throw std::out_of_range("values has " + std::to_string(colors.size()) + " values for " +
                                    std::to_string(count) + " points.");
        }
        plot.allocate(static_cast<int>(count));
        for (std::size_t i = 0; i < count; ++i) {
            plot.appendArrow(points[0][i], points[1][i], points[2][i], directions[0][i], directions[1][i],
                             directions[2][i], values != nullptr ? colors[i] : 0.0f);
        }
        return toJava(true);
    });
}
