#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "datacarrier/postdataobject.h"
#include "producer/javavalues.h"
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

/// Lets each vector take one more entry.
template <class... Vectors>
void makeSpace(Vectors&... vectors)
{
    (vectors.reserve(std::max(vectors.capacity(), vectors.size() == vectors.capacity() ? 2 * vectors.size() + 1 : 0)),
     ...);
}

/// Copies a group and tests its indices before the record is touched.
void addGroup(JNIEnv* env, PostDataObject& record, jobjectArray coordinates, jobjectArray elements, jobjectArray data,
              const std::vector<double>& limits, jobjectArray normals, jobjectArray lineElements)
{
    const std::size_t group = record.m_coordinates.size();
    const auto points = shared(copyRows<double>(env, coordinates, "coordinates"));
    if (points->empty()) {
        throw std::invalid_argument("coordinates has no rows.");
    }
    const auto corners = shared(copyRows<int>(env, elements, "elements"));
    const auto ends = shared(copyRows<int>(env, lineElements, "lineElements"));
    const std::size_t numPoints = points->front().size();
    requireInside(*corners, numPoints, "elements", group);
    requireInside(*ends, numPoints, "lineElements", group);
    const auto values = shared(copyRows<double>(env, data, "data"));
    if (limits.size() != 2 * values->size()) {
        throw std::invalid_argument("limits has " + std::to_string(limits.size()) + " entries for " +
                                    std::to_string(values->size()) + " data arrays.");
    }
    const auto minima = shared(std::vector<double>(values->size()));
    const auto maxima = shared(std::vector<double>(values->size()));
    for (std::size_t i = 0; i < values->size(); ++i) {
        const ValueRange given = {limits[2 * i], limits[2 * i + 1]};
        const ValueRange range = std::isnan(given.min) ? finiteRange((*values)[i]) : given;
        (*minima)[i] = range.min;
        (*maxima)[i] = range.max;
    }
    const auto directions = shared(copyRows<float>(env, normals, "normals"));
    // From here on nothing can fail, so the record gets all of the group or nothing.
    makeSpace(record.m_coordinates, record.m_elements, record.m_data, record.m_dataMax, record.m_dataMin,
              record.m_normals, record.m_lineElements);
    record.m_coordinates.push_back(points);
    record.m_elements.push_back(corners);
    record.m_data.push_back(values);
    record.m_dataMax.push_back(maxima);
    record.m_dataMin.push_back(minima);
    record.m_normals.push_back(directions);
    record.m_lineElements.push_back(ends);
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
 jdoubleArray limits, jobjectArray normals, jobjectArray lineElements)
{
    guarded(env, [&] {
        auto& record = peer<PostDataObject>(env, self);
        addGroup(env, record, coordinates, elements, data, fromJava<std::vector<double>>(env, limits), normals,
                 lineElements);
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
