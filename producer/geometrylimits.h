#pragma once

#include "datacarrier/boundingbox1d.h"
#include "datacarrier/boundingbox2d.h"
#include "datacarrier/boundingbox3d.h"
#include "datacarrier/geometryvalues.h"

#include <algorithm>
#include <limits>

namespace vxproducer {

/// The limits of geometry while it is added up.
class GeometryLimits {
public:
    void widen(float x) { m_x.widen(x); }
    void widen(const vxdatacarrier::Coords2D& at)
    {
        m_x.widen(at.x);
        m_y.widen(at.y);
    }
    /// For coordinates in space, with or without a normal.
    template <class Coords>
    void widen(const Coords& at)
    {
        m_x.widen(at.x);
        m_y.widen(at.y);
        m_z.widen(at.z);
    }
    void widen(const vxdatacarrier::BoundingBox1D& box)
    {
        m_x.widen(box.m_xMin);
        m_x.widen(box.m_xMax);
    }
    void widen(const vxdatacarrier::BoundingBox2D& box)
    {
        widen(vxdatacarrier::Coords2D{box.m_xMin, box.m_yMin});
        widen(vxdatacarrier::Coords2D{box.m_xMax, box.m_yMax});
    }
    void widen(const vxdatacarrier::BoundingBox3D& box)
    {
        widen(vxdatacarrier::Coords3D{box.m_xMin, box.m_yMin, box.m_zMin});
        widen(vxdatacarrier::Coords3D{box.m_xMax, box.m_yMax, box.m_zMax});
    }

    // Store the limits in a box, unless nothing was added, or the box has a size or a position already.

    void fill(vxdatacarrier::BoundingBox1D& box) const
    {
        if (!isEmpty() && box.m_xMin == 0.0f && box.m_xMax == 0.0f) {
            m_x.store(box.m_xMin, box.m_xMax);
        }
    }
    void fill(vxdatacarrier::BoundingBox2D& box) const
    {
        if (!isEmpty() && box.m_xMin == 0.0f && box.m_xMax == 0.0f && box.m_yMin == 0.0f && box.m_yMax == 0.0f) {
            m_x.store(box.m_xMin, box.m_xMax);
            m_y.store(box.m_yMin, box.m_yMax);
        }
    }
    void fill(vxdatacarrier::BoundingBox3D& box) const
    {
        if (!isEmpty() && box.m_xMin == 0.0f && box.m_xMax == 0.0f && box.m_yMin == 0.0f && box.m_yMax == 0.0f &&
            box.m_zMin == 0.0f && box.m_zMax == 0.0f) {
            m_x.store(box.m_xMin, box.m_xMax);
            m_y.store(box.m_yMin, box.m_yMax);
            m_z.store(box.m_zMin, box.m_zMax);
        }
    }

private:
    struct Range {
        float min = std::numeric_limits<float>::infinity();
        float max = -std::numeric_limits<float>::infinity();

        void widen(float value)
        {
            min = std::min(min, value);
            max = std::max(max, value);
        }
        void store(float& low, float& high) const
        {
            low = min;
            high = max;
        }
    };

    bool isEmpty() const { return m_x.min > m_x.max; }

    Range m_x;
    Range m_y;
    Range m_z;
};

/// Completes the box of a sheet or curve and widens that of the whole.
template <class Part>
void addBox(Part& part, GeometryLimits& all)
{
    if (part.m_isValid) {
        GeometryLimits limits;
        std::for_each_n(part.m_vertices.get(), part.m_numVertices, [&](const auto& vertex) { limits.widen(vertex); });
        limits.fill(part.m_box);
        if (part.m_numVertices > 0) {
            all.widen(part.m_box);
        }
    }
}

/// Completes the boxes of a record's sheets and curves, and its own.
template <class Record>
void completeBoxes(Record& record)
{
    GeometryLimits all;
    if constexpr (requires { record.m_sheets; }) {
        std::for_each_n(record.m_sheets.get(), record.m_numSheets, [&](auto& sheet) { addBox(sheet, all); });
    }
    std::for_each_n(record.m_curves.get(), record.m_numCurves, [&](auto& curve) { addBox(curve, all); });
    std::for_each_n(record.m_points.get(), record.m_numPoints, [&](const auto& point) { all.widen(point); });
    all.fill(record.m_box);
}

} // namespace vxproducer
