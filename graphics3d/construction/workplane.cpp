#include "graphics3d/construction/workplane.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {
namespace {

/// Cells along a side of a square plane.
constexpr float c_cellsOfSquare = 9.0f;
/// Length of the axis marks, in sizes of the plane.
constexpr float c_markLength = 0.2f;
constexpr float c_symbolScale = 0.0075f;
/// The greatest extent of the symbol, in sizes of the plane.
constexpr float c_largestSymbol = 0.05f;
/// Radius of the disc for each unit of the height that sizes it.
constexpr float c_discScale = 0.03f;
/// A full turn divided by the number of vertices of the disc.
constexpr float c_discStep = 0.28559935f;
/// Positions along an axis of revolution that no rectangle reaches.
constexpr float c_farAlongAxis = 9e7f;
constexpr int c_numDashes = 4;
/// Dashes and gaps: what comes before the dashes, and before their positions.
constexpr int c_numAxisOffsets = 4;

Vector3f vectorAt(const float* values)
{
    return {values[0], values[1], values[2]};
}

/// The cells of a grid.
struct GridCells {
    int columns = 0;
    int rows = 0;
};

/// Computed in single precision, in which a square of any size has equal numbers of rows and columns.
GridCells cellsOf(float width, float height)
{
    const float step = std::sqrt(width * height) / c_cellsOfSquare;
    const float columns = std::ceil(width / step);
    const float rows = std::ceil(height / step);
    // Neither holds for a rectangle without area or with limits that are not finite.
    if (!(step > 0.0f && columns >= 1.0f && rows >= 1.0f)) {
        return {};
    }
    if (!(columns + rows + 2.0f <= static_cast<float>(WorkPlane::c_maxGridLines))) {
        throw std::invalid_argument("WorkPlane: the rectangle is too narrow, its grid would have more than " +
                                    std::to_string(WorkPlane::c_maxGridLines) + " lines.");
    }
    return {static_cast<int>(columns), static_cast<int>(rows)};
}

} // namespace

void WorkPlane::setup(const float* data)
{
    const float x0 = data[9];
    const float x1 = data[10];
    const float y0 = data[11];
    const float y1 = data[12];
    const float width = x1 - x0;
    const float height = y1 - y0;
    const GridCells cells = cellsOf(width, height);
    const int numLines = cells.columns > 0 ? cells.columns + cells.rows + 2 : 0;
    m_numGridLines = 0;
    m_numGridVertices = 0;
    if (numLines > 0) {
        m_grid.allocate(2 * numLines, numLines);
    } else {
        m_grid.deallocate();
    }

    m_origin = vectorAt(data);
    m_xAxis = (vectorAt(data + 3) - m_origin).normalized();
    m_zAxis = m_xAxis.cross(vectorAt(data + 6) - m_origin).normalized();
    m_yAxis = m_zAxis.cross(m_xAxis).normalized();
    m_planeCorners = {{{x0, y0}, {x1, y0}, {x0, y1}, {x1, y1}}};
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        m_corners[i] = toSpace(m_planeCorners[i].first, m_planeCorners[i].second);
    }
    Vector3f low = m_corners[0];
    Vector3f high = m_corners[0];
    for (const Vector3f& corner : m_corners) {
        low = {std::min(low.x, corner.x), std::min(low.y, corner.y), std::min(low.z, corner.z)};
        high = {std::max(high.x, corner.x), std::max(high.y, corner.y), std::max(high.z, corner.z)};
    }
    m_box.init(low.x, high.x, low.y, high.y, low.z, high.z);
    m_size = std::sqrt(width * height);
    const float mark = c_markLength * m_size;
    m_triad = {m_origin, m_origin + m_xAxis * mark, m_origin + m_yAxis * mark, m_origin + m_zAxis * mark};
    if (numLines > 0) {
        buildGrid(width, height, cells.columns, cells.rows);
    }
    m_symbolScale = c_symbolScale;
}

void WorkPlane::buildGrid(float width, float height, int numColumns, int numRows)
{
    const float dx = width / static_cast<float>(numColumns);
    const float dy = height / static_cast<float>(numRows);
    for (int i = 0; i <= numColumns; ++i) {
        const Vector3f along = m_xAxis * (static_cast<float>(i) * dx);
        const int from = m_grid.vertices.appendVertex(m_corners[0] + along);
        const int to = m_grid.vertices.appendVertex(m_corners[2] + along);
        m_grid.indices.appendLine(from, to);
    }
    for (int j = 0; j <= numRows; ++j) {
        const Vector3f along = m_yAxis * (static_cast<float>(j) * dy);
        const int to = m_grid.vertices.appendVertex(m_corners[0] + along);
        const int from = m_grid.vertices.appendVertex(m_corners[1] + along);
        m_grid.indices.appendLine(from, to);
    }
    m_numGridLines = numColumns + numRows + 2;
    m_numGridVertices = 2 * m_numGridLines;
}

void WorkPlane::setExtrude(const float* values, int count)
{
    if (count < 1) {
        return;
    }
    auto offsets = std::make_unique<Vector3f[]>(static_cast<std::size_t>(count));
    m_symbol.allocate(c_numDiscVertices, c_numDiscVertices - 2);

    float highest = 0.0f;
    for (int i = 1; i < count; ++i) {
        Vector3f& offset = offsets[static_cast<std::size_t>(i)];
        offset = m_zAxis * values[i] * values[0];
        m_box.expandWithPoint(m_origin + offset);
        highest = std::max(highest, values[i]);
    }
    float radius = highest;
    if (radius * m_symbolScale > c_largestSymbol * m_size) {
        radius = c_largestSymbol * m_size / m_symbolScale;
    }
    offsets[0] = {values[0] * highest, radius, m_size};
    m_operation = OperationExtrude;
    m_numOffsets = count;
    m_offsets = std::move(offsets);
    buildDisc(radius);
}

void WorkPlane::buildDisc(float radius)
{
    const Vector3f u = m_xAxis * radius * c_discScale;
    const Vector3f v = m_yAxis * radius * c_discScale;
    for (int k = 0; k < c_numDiscVertices; ++k) {
        const float angle = static_cast<float>(k) * c_discStep;
        m_symbol.vertices.appendVertex(m_origin + u * std::sin(angle) + v * std::cos(angle), m_zAxis);
    }
    for (int k = 2; k < c_numDiscVertices; ++k) {
        m_symbol.indices.appendTriangle(0, k - 1, k);
    }
}

void WorkPlane::setRevolve(const float* data)
{
    const float a = data[0];
    const float b = data[1];
    // The direction as it is between two points of the axis, rounded to single precision.
    const float c = (a + data[2]) - a;
    const float d = (b + data[3]) - b;
    const float lengthSquared = c * c + d * d;
    if (!(lengthSquared > 0.0f)) {
        throw std::invalid_argument("WorkPlane: the direction of the axis of revolution has no length.");
    }
    auto offsets = std::make_unique<Vector3f[]>(c_numAxisOffsets + c_numDashes);

    float low = c_farAlongAxis;
    float high = -c_farAlongAxis;
    for (const auto& [u, v] : m_planeCorners) {
        const float f = ((u - a) * c + (v - b) * d) / lengthSquared;
        low = std::min(low, f);
        high = std::max(high, f);
    }
    const Vector3f start = toSpace(a + c * low, b + d * low);
    const Vector3f end = toSpace(a + c * high, b + d * high);
    m_box.expandWithPoint(start);
    m_box.expandWithPoint(end);

    offsets[0] = (end - start).normalized();
    offsets[1] = offsets[0].cross(m_zAxis).normalized();
    offsets[2] = offsets[1].cross(offsets[0]).normalized();
    offsets[3] = start;
    const float length = (end - start).length();
    const float bar = length / 3.0f / 4.0f;
    const float gap = (length - 3.0f * bar) / 4.0f;
    float t = 0.0f;
    for (std::size_t i = 0; i < c_numDashes; ++i) {
        const float s = t + gap;
        offsets[c_numAxisOffsets + i] = {s, gap, 0.0f};
        t = s + bar;
    }
    m_operation = OperationRevolve;
    m_numOffsets = c_numAxisOffsets + c_numDashes;
    m_offsets = std::move(offsets);
}

} // namespace vxgraphics3d
