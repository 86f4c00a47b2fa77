#pragma once

#include "datacarrier/geometryvalues.h"
#include "producer/geometryparts.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace vxproducer {

// The arrays of a builder, checked and converted to those of a record. Messages begin with the name of the part.

/// The number of axes of a kind of coordinates.
template <class Coords>
inline constexpr std::size_t c_numAxes = sizeof(Coords) / sizeof(float);

[[noreturn]] inline void refuse(const std::string& text)
{
    throw std::invalid_argument(text);
}

/// Refuses another number of arrays, arrays of different lengths, and lengths that an int does not hold.
/// @return the length
template <class Arrays>
int requireArrays(const Arrays& arrays, std::size_t number, const std::string& name)
{
    if (arrays.size() != number) {
        refuse(name + ": " + std::to_string(arrays.size()) + " arrays, not " + std::to_string(number));
    }
    for (std::size_t i = 1; i < number; ++i) {
        if (arrays[i].size() != arrays[0].size()) {
            refuse(name + "[" + std::to_string(i) + "] has " + std::to_string(arrays[i].size()) + " entries, " + name +
                   "[0] has " + std::to_string(arrays[0].size()));
        }
    }
    if (arrays[0].size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        refuse(name + "[0] has " + std::to_string(arrays[0].size()) + " entries");
    }
    return static_cast<int>(arrays[0].size());
}

/// The number of parts of a kind, as the records count them.
template <class Parts>
int countOf(const Parts& parts, const char* name)
{
    if (parts.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        refuse(std::to_string(parts.size()) + " " + name);
    }
    return static_cast<int>(parts.size());
}

/// A coordinate in single precision, which must be finite.
inline float narrowed(const std::vector<std::vector<double>>& axes, std::size_t axis, std::size_t i,
                      const std::string& name)
{
    const auto value = static_cast<float>(axes[axis][i]);
    if (!std::isfinite(value)) {
        refuse(name + "[" + std::to_string(axis) + "][" + std::to_string(i) + "] is not finite in single precision");
    }
    return value;
}

template <class Coords>
Coords coordsAt(const std::vector<std::vector<double>>& axes, std::size_t i, const std::string& name)
{
    if constexpr (std::is_same_v<Coords, float>) {
        return narrowed(axes, 0, i, name);
    } else if constexpr (std::is_same_v<Coords, vxdatacarrier::Coords2D>) {
        return {narrowed(axes, 0, i, name), narrowed(axes, 1, i, name)};
    } else {
        return {narrowed(axes, 0, i, name), narrowed(axes, 1, i, name), narrowed(axes, 2, i, name)};
    }
}

/// The coordinates of points or vertices.
/// @param count receives their number
template <class Coords>
std::unique_ptr<Coords[]> toCoords(const std::vector<std::vector<double>>& axes, const std::string& name, int& count)
{
    const int length = requireArrays(axes, c_numAxes<Coords>, name);
    auto coords = std::make_unique<Coords[]>(static_cast<std::size_t>(length));
    for (std::size_t i = 0; i < static_cast<std::size_t>(length); ++i) {
        coords[i] = coordsAt<Coords>(axes, i, name);
    }
    count = length;
    return coords;
}

/// An index that must be one of `count` parts or vertices.
inline int indexAt(const std::vector<std::vector<int>>& arrays, std::size_t row, std::size_t i, int count,
                   const std::string& name, const char* kind)
{
    const int index = arrays[row][i];
    if (index < 0 || index >= count) {
        throw std::out_of_range(name + "[" + std::to_string(row) + "][" + std::to_string(i) + "] is " + kind + " " +
                                std::to_string(index) + ", but there " + (count == 1 ? "is " : "are ") +
                                std::to_string(count));
    }
    return index;
}

/// The corners of triangles or quadrilaterals, whose indices must be vertices.
/// @param count receives the number of elements
template <class Element>
std::unique_ptr<Element[]> toElements(const std::vector<std::vector<int>>& corners, int numVertices,
                                      const std::string& name, int& count)
{
    constexpr std::size_t numCorners = sizeof(Element) / sizeof(int);
    const int length = requireArrays(corners, numCorners, name);
    auto elements = std::make_unique<Element[]>(static_cast<std::size_t>(length));
    for (std::size_t i = 0; i < static_cast<std::size_t>(length); ++i) {
        const auto corner = [&](std::size_t number) {
            return indexAt(corners, number, i, numVertices, name, "vertex");
        };
        if constexpr (numCorners == 3) {
            elements[i] = {corner(0), corner(1), corner(2)};
        } else {
            elements[i] = {corner(0), corner(1), corner(2), corner(3)};
        }
    }
    count = length;
    return elements;
}

/// Fills the curves of a record. One without arrays has no geometry.
template <class Record>
void fillCurves(Record& record, const std::vector<std::vector<std::vector<double>>>& curves)
{
    using Curve = typename decltype(record.m_curves)::element_type;
    using Coords = typename decltype(Curve::m_vertices)::element_type;
    record.m_numCurves = countOf(curves, "curves");
    record.m_curves = std::make_unique<Curve[]>(curves.size());
    for (std::size_t i = 0; i < curves.size(); ++i) {
        if (!curves[i].empty()) {
            Curve& curve = record.m_curves[i];
            const std::string name = "curve " + std::to_string(i);
            curve.m_vertices = toCoords<Coords>(curves[i], name + ": coordinates", curve.m_numVertices);
            if (curve.m_numVertices == 0) {
                refuse(name + " has no vertices");
            }
            curve.m_isValid = true;
        }
    }
}

} // namespace vxproducer
