#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <string_view>
#include <vector>

namespace vxgraphics3d {

/// The sections of a plot file in their fixed order.
enum class PlotSection : std::size_t {
    coordinates,
    triangles,
    quads,
    lines,
    tetrahedra,
    data,
    vectors,
    tetrahedralData
};

/// The tags of the sections, in the order of the sections.
inline constexpr std::array<std::string_view, 8> c_plotTags = {
    "Coordinates", "Elements (triangular)", "Elements (rectangular)", "Elements (lines)", "Elements (tetrahedral)",
    "Data",        "Vector data",           "Tetrahedral Data"};

/// A range of points, both ends inclusive, and the number of elements between them.
struct PointGroup {
    int first = 0;
    int last = -1;
    int numLines = 0;
    int numTriangles = 0;
    int numQuads = 0;
    int numTetrahedra = 0;

    bool contains(const int* points, int count) const
    {
        return std::all_of(points, points + count, [this](int point) { return first <= point && point <= last; });
    }
    int numPoints() const { return last - first + 1; }
};

/// The smallest and the largest of the numbers seen so far. NaN is ignored.
struct FloatLimits {
    float max = std::numeric_limits<float>::lowest();
    float min = std::numeric_limits<float>::max();

    void widen(float value)
    {
        if (value > max) {
            max = value;
        }
        if (value < min) {
            min = value;
        }
    }
};

/// The rows of a data section. Their limits are those of the numbers themselves, or of the lengths of vectors.
template <class T>
struct PlotRows {
    std::vector<T> values;
    FloatLimits limits;

    bool isFull(int count) const { return values.size() >= static_cast<std::size_t>(count); }
    /// Adds a row.
    /// @param size the number that the limits include
    /// @param count the maximum number of rows
    void append(const T& value, float size, int count)
    {
        if (values.empty()) {
            values.reserve(static_cast<std::size_t>(count));
        }
        values.push_back(value);
        limits.widen(size);
    }
};

/// What a scan finds in a plot file: the size of each section, the groups of points, and all data.
struct PlotFileContents {
    std::array<int, c_plotTags.size()> rowCounts{};
    std::vector<PointGroup> groups;
    PlotRows<float> data; ///< scaled to 0 to 1 at the end of the scan, but not its limits
    PlotRows<Vector3f> vectors;
    PlotRows<float> tetrahedralData; ///< scaled like `data`

    int& count(PlotSection section) { return rowCounts[static_cast<std::size_t>(section)]; }
    int count(PlotSection section) const { return rowCounts[static_cast<std::size_t>(section)]; }
    int numPoints() const { return count(PlotSection::coordinates); }
};

} // namespace vxgraphics3d
