#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "datacarrier/renderdraw1d.h"
#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"
#include "datacarrier/rendergeom1d.h"
#include "datacarrier/rendergeom2d.h"
#include "datacarrier/rendergeom3d.h"
#include "producer/geometrybuilding.h"
#include "producer/geometryvalues.h"
#include "producer/javavalues.h"

#include <boost/make_shared.hpp>

#include <array>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "com_vexane_producer_GeometryRecord.h"

using namespace vxbase;
using namespace vxdatacarrier;
using namespace vxproducer;

namespace {

/// The parts of the sheets, which Java has in one array per field.
void takeSheets(GeometryParts& parts, JNIEnv* env, jobjectArray coordinates, jobjectArray triangles,
                jobjectArray normals, jintArray upDomains, jintArray downDomains)
{
    auto sheetCoordinates = copyParts<double>(env, coordinates, "sheet");
    auto sheetTriangles = copyParts<int>(env, triangles, "triangles of sheet");
    auto sheetNormals = copyParts<float>(env, normals, "normals of sheet");
    const auto up = fromJava<std::vector<int>>(env, upDomains);
    const auto down = fromJava<std::vector<int>>(env, downDomains);
    const std::size_t numSheets = sheetCoordinates.size();
    if (sheetTriangles.size() != numSheets || sheetNormals.size() != numSheets || up.size() != numSheets ||
        down.size() != numSheets) {
        throw std::invalid_argument("The arrays of the sheets differ in length.");
    }
    for (std::size_t i = 0; i < numSheets; ++i) {
        parts.sheets.push_back(
            {std::move(sheetCoordinates[i]), std::move(sheetTriangles[i]), std::move(sheetNormals[i]), up[i], down[i]});
    }
}

/// The relations that are not null, in the order in which Java has them.
void takeRelations(GeometryParts& parts, JNIEnv* env, jobjectArray relations)
{
    struct Field {
        const char* name;
        std::optional<GeometryParts::IntArrays> GeometryParts::*rows;
    };
    static constexpr std::array<Field, 6> c_fields = {{{"lineToPoint", &GeometryParts::lineToPoint},
                                                       {"sheetToLine", &GeometryParts::sheetToLine},
                                                       {"sheetToPoint", &GeometryParts::sheetToPoint},
                                                       {"subdomainToSheet", &GeometryParts::subdomainToSheet},
                                                       {"subdomainToLine", &GeometryParts::subdomainToLine},
                                                       {"subdomainToPoint", &GeometryParts::subdomainToPoint}}};
    if (relations == nullptr || env->GetArrayLength(relations) != static_cast<jsize>(c_fields.size())) {
        throw std::invalid_argument("There are " + std::to_string(c_fields.size()) + " relations.");
    }
    for (std::size_t i = 0; i < c_fields.size(); ++i) {
        const auto rows = static_cast<jobjectArray>(env->GetObjectArrayElement(relations, static_cast<jsize>(i)));
        throwIfPending(env);
        if (rows != nullptr) {
            parts.*c_fields[i].rows = copyRows<int>(env, rows, c_fields[i].name);
            env->DeleteLocalRef(rows);
        }
    }
}

template <class Record>
void attachRecord(JNIEnv* env, jobject self, const GeometryParts& parts)
{
    const auto record = boost::make_shared<Record>();
    fillGeometry(*record, parts);
    attach(env, self, record);
}

/// Makes a record of one dimension for a draw object or a physics object.
template <class Draw, class Geom>
void attachEither(JNIEnv* env, jobject self, bool isModel, const GeometryParts& parts)
{
    if (isModel) {
        attachRecord<Geom>(env, self, parts);
    } else {
        attachRecord<Draw>(env, self, parts);
    }
}

GeometryValues valuesOf(JNIEnv* env, jobject self)
{
    return GeometryValues(peer<GeometryRecord>(env, self));
}

} // namespace

VX_NATIVE(void, GeometryRecord, createNative)
(JNIEnv* env, jclass, jobject self, jint dimension, jboolean isModel, jint id, jstring name, jobjectArray points,
 jobjectArray curves, jobjectArray sheets, jobjectArray triangles, jobjectArray normals, jintArray upDomains,
 jintArray downDomains, jobjectArray relations)
{
    guarded(env, [&] {
        GeometryParts parts;
        parts.id = id;
        parts.name = fromJava<std::string>(env, name);
        parts.points = copyRows<double>(env, points, "points");
        parts.curves = copyParts<double>(env, curves, "curve");
        takeSheets(parts, env, sheets, triangles, normals, upDomains, downDomains);
        takeRelations(parts, env, relations);
        switch (dimension) {
        case 1:
            return attachEither<RenderDraw1D, RenderGeom1D>(env, self, isModel != JNI_FALSE, parts);
        case 2:
            return attachEither<RenderDraw2D, RenderGeom2D>(env, self, isModel != JNI_FALSE, parts);
        case 3:
            return attachEither<RenderDraw3D, RenderGeom3D>(env, self, isModel != JNI_FALSE, parts);
        default:
            throw std::invalid_argument("There is no geometry in " + std::to_string(dimension) + " dimensions.");
        }
    });
}

VX_NATIVE(void, GeometryRecord, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(jint, GeometryRecord, getId)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return peer<GeometryRecord>(env, self).m_id; });
}

VX_NATIVE(jstring, GeometryRecord, getName)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJavaNew(env, peer<GeometryRecord>(env, self).m_name); });
}

VX_NATIVE(jfloatArray, GeometryRecord, getBox)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJavaNew(env, valuesOf(env, self).box()); });
}

VX_NATIVE(jint, GeometryRecord, getNumPoints)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return valuesOf(env, self).numPoints(); });
}

VX_NATIVE(jobjectArray, GeometryRecord, getPoints)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJavaRows(env, valuesOf(env, self).points()); });
}

VX_NATIVE(jobjectArray, GeometryRecord, getSnapPoints)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJavaRows(env, valuesOf(env, self).snapPoints()); });
}

VX_NATIVE(jint, GeometryRecord, getNumCurves)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return valuesOf(env, self).numCurves(); });
}

VX_NATIVE(jobjectArray, GeometryRecord, getCurve)(JNIEnv* env, jclass, jobject self, jint curve)
{
    return guarded(env, [&] { return toJavaRows(env, valuesOf(env, self).curve(curve)); });
}

VX_NATIVE(jint, GeometryRecord, getNumSheets)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return valuesOf(env, self).numSheets(); });
}

VX_NATIVE(jobjectArray, GeometryRecord, getSheet)(JNIEnv* env, jclass, jobject self, jint sheet)
{
    return guarded(env, [&] { return toJavaRows(env, valuesOf(env, self).sheet(sheet)); });
}

VX_NATIVE(jobjectArray, GeometryRecord, getTriangles)(JNIEnv* env, jclass, jobject self, jint sheet)
{
    return guarded(env, [&] { return toJavaRows(env, valuesOf(env, self).triangles(sheet)); });
}

VX_NATIVE(jint, GeometryRecord, getNumSubdomains)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return valuesOf(env, self).numSubdomains(); });
}

VX_NATIVE(jobjectArray, GeometryRecord, getRelation)(JNIEnv* env, jclass, jobject self, jint relation)
{
    return guarded(env, [&] { return toJavaRows(env, valuesOf(env, self).relation(relation)); });
}
