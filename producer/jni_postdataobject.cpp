#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/postdatareader.h"
#include "producer/javavalues.h"
#include "producer/recordgroups.h"
#include "producer/recordlimits.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

#include "com_vexane_producer_PostDataObject.h"

using namespace vxbase;
using vxdatacarrier::PostDataObject;
using namespace vxproducer;

namespace {

template <class Arrays>
boost::shared_ptr<Arrays> shared(Arrays arrays)
{
    return boost::make_shared<Arrays>(std::move(arrays));
}

/// The entry of a group in one of a record's fields; nothing if a reader left the field shorter than the groups.
template <class Arrays>
const Arrays& entry(const std::vector<boost::shared_ptr<Arrays>>& groups, jint group)
{
    static const Arrays none;
    const auto at = static_cast<std::size_t>(group);
    return at < groups.size() && groups[at] ? *groups[at] : none;
}

} // namespace

VX_NATIVE(void, PostDataObject, createNative)(JNIEnv* env, jclass, jobject self, jint plotKind, jintArray dataIndex)
{
    guarded(env, [&] {
        const auto record = boost::make_shared<PostDataObject>();
        record->m_plotKind = plotKind;
        const auto arrays = fromJava<std::vector<int>>(env, dataIndex);
        std::copy_n(arrays.begin(), std::min(arrays.size(), record->m_dataIndex.size()), record->m_dataIndex.begin());
        attach(env, self, record);
    });
}

VX_NATIVE(void, PostDataObject, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(void, PostDataObject, addGroup)
(JNIEnv* env, jclass, jobject self, jobjectArray coordinates, jobjectArray elements, jobjectArray data,
 jdoubleArray limits, jobjectArray normals, jboolean computeNormals, jobjectArray lineElements, jboolean computeOutline)
{
    guarded(env, [&] {
        auto& record = peer<PostDataObject>(env, self);
        PostDataGroup group = {copyRows<double>(env, coordinates, "coordinates"),
                               copyRows<int>(env, elements, "elements"),
                               copyRows<double>(env, data, "data"),
                               copyRows<int>(env, lineElements, "lineElements"),
                               copyRows<float>(env, normals, "normals"),
                               computeNormals != JNI_FALSE,
                               computeOutline != JNI_FALSE};
        const auto ends = fromJava<std::vector<double>>(env, limits);
        if (ends.size() != 2 * group.data.size()) {
            throw std::invalid_argument("limits has " + std::to_string(ends.size()) + " entries for " +
                                        std::to_string(group.data.size()) + " data arrays.");
        }
        for (std::size_t i = 0; i < ends.size(); i += 2) {
            // Java marks limits that are to be computed by NaN, a group by an empty range.
            group.limits.push_back(std::isnan(ends[i]) ? ValueRange() : ValueRange{ends[i], ends[i + 1]});
        }
        append(record, std::move(group));
    });
}

VX_NATIVE(jstring, PostDataObject, read)(JNIEnv* env, jclass, jobject self, jstring file, jintArray row)
{
    return guarded(env, [&]() -> jstring {
        auto& record = peer<PostDataObject>(env, self);
        jintArrayRH::atLeast(env, row, 1);
        vxgraphics3d::ReaderError error;
        if (vxgraphics3d::readPostData(record, fromJava<std::string>(env, file), error)) {
            return nullptr;
        }
        *jintArrayRH(env, row).get() = error.row;
        return toJavaNew(env, error.message);
    });
}

VX_NATIVE(void, PostDataObject, setBounds)(JNIEnv* env, jclass, jobject self, jobjectArray bounds)
{
    guarded(env, [&] {
        auto& record = peer<PostDataObject>(env, self);
        record.m_bounds = shared(fromJava<PostDataObject::DoubleArrays>(env, bounds));
    });
}

VX_NATIVE(void, PostDataObject, computeBounds)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] {
        auto& record = peer<PostDataObject>(env, self);
        record.m_bounds = shared(boundsOf(record));
    });
}

VX_NATIVE(jint, PostDataObject, getPlotKind)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return peer<PostDataObject>(env, self).m_plotKind; });
}

VX_NATIVE(jint, PostDataObject, getDataIndex)(JNIEnv* env, jclass, jobject self, jint role)
{
    return guarded(
        env, [&]() -> jint { return peer<PostDataObject>(env, self).m_dataIndex.at(static_cast<std::size_t>(role)); });
}

VX_NATIVE(jint, PostDataObject, getNumGroups)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return static_cast<jint>(peer<PostDataObject>(env, self).m_coordinates.size()); });
}

VX_NATIVE(jobjectArray, PostDataObject, getCoordinates)(JNIEnv* env, jclass, jobject self, jint group)
{
    return guarded(env, [&] { return toJavaRows(env, entry(peer<PostDataObject>(env, self).m_coordinates, group)); });
}

VX_NATIVE(jobjectArray, PostDataObject, getElements)(JNIEnv* env, jclass, jobject self, jint group)
{
    return guarded(env, [&] { return toJavaRows(env, entry(peer<PostDataObject>(env, self).m_elements, group)); });
}

VX_NATIVE(jobjectArray, PostDataObject, getData)(JNIEnv* env, jclass, jobject self, jint group)
{
    return guarded(env, [&] { return toJavaRows(env, entry(peer<PostDataObject>(env, self).m_data, group)); });
}

VX_NATIVE(jdoubleArray, PostDataObject, getDataMin)(JNIEnv* env, jclass, jobject self, jint group)
{
    return guarded(env, [&] { return toJavaNew(env, entry(peer<PostDataObject>(env, self).m_dataMin, group)); });
}

VX_NATIVE(jdoubleArray, PostDataObject, getDataMax)(JNIEnv* env, jclass, jobject self, jint group)
{
    return guarded(env, [&] { return toJavaNew(env, entry(peer<PostDataObject>(env, self).m_dataMax, group)); });
}

VX_NATIVE(jobjectArray, PostDataObject, getNormals)(JNIEnv* env, jclass, jobject self, jint group)
{
    return guarded(env, [&] { return toJavaRows(env, entry(peer<PostDataObject>(env, self).m_normals, group)); });
}

VX_NATIVE(jobjectArray, PostDataObject, getLineElements)(JNIEnv* env, jclass, jobject self, jint group)
{
    return guarded(env, [&] { return toJavaRows(env, entry(peer<PostDataObject>(env, self).m_lineElements, group)); });
}

VX_NATIVE(jobjectArray, PostDataObject, getBounds)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] {
        const auto& bounds = peer<PostDataObject>(env, self).m_bounds;
        return toJavaRows(env, bounds ? *bounds : PostDataObject::DoubleArrays());
    });
}
