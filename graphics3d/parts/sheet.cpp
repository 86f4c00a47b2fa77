#include "graphics3d/parts/sheet.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vxgraphics3d {

/// What the position of a label depends on in a triangle.
struct Sheet::Facet {
    Vector3f a;
    Vector3f b;
    Vector3f c;
    float area;
    /// Of length 1, or 0 for a triangle without area.
    Vector3f normal;

    Vector3f center() const { return (a + b + c) / 3.0f; }
};

namespace {

/// Triangles that face away from the mean normal by more than this angle end the search along it.
constexpr float c_widestAngle = 2.0943952f;

struct Vector3d {
    double x, y, z;

    explicit Vector3d(const Vector3f& v)
        : x(static_cast<double>(v.x)), y(static_cast<double>(v.y)), z(static_cast<double>(v.z))
    {}
    Vector3d(double ax, double ay, double az) : x(ax), y(ay), z(az) {}
    Vector3d operator-(const Vector3d& other) const { return {x - other.x, y - other.y, z - other.z}; }
    double dot(const Vector3d& other) const { return x * other.x + y * other.y + z * other.z; }
    Vector3d cross(const Vector3d& other) const
    {
        return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
    }
};

/// Where a line through a point meets a triangle.
std::optional<Vector3f> intersect(const Vector3f& point, const Vector3f& direction, const Vector3f& a,
                                  const Vector3f& b, const Vector3f& c)
{
    // u (b - a) + v (c - a) + w direction = point - a, by the inverse of the matrix of these columns.
    const Vector3d start(a);
    const Vector3d first = Vector3d(b) - start;
    const Vector3d second = Vector3d(c) - start;
    const Vector3d third(direction);
    const Vector3d difference = Vector3d(point) - start;
    const Vector3d normal = second.cross(third);
    const double determinant = first.dot(normal);
    const double u = normal.dot(difference) / determinant;
    const double v = third.cross(first).dot(difference) / determinant;
    if (!(u >= 0.0 && u <= 1.0 && v >= 0.0 && u + v <= 1.0)) {
        return std::nullopt;
    }
    return Vector3f(start.x + u * first.x + v * second.x, start.y + u * first.y + v * second.y,
                    start.z + u * first.z + v * second.z);
}

} // namespace

Sheet::Sheet(int numVertices, int numTriangles) : SelectablePart(2)
{
    m_mesh.allocate(numVertices, numTriangles);
}

Sheet::~Sheet() = default;

Sheet::Facet Sheet::facet(int triangle) const
{
    int a = 0;
    int b = 0;
    int c = 0;
    m_mesh.indices.getTriangle(triangle, a, b, c);
    Facet facet;
    facet.a = m_mesh.vertices.getCoord(a);
    facet.b = m_mesh.vertices.getCoord(b);
    facet.c = m_mesh.vertices.getCoord(c);
    facet.normal = (facet.b - facet.a).cross(facet.c - facet.a);
    facet.area = 0.5f * facet.normal.length();
    facet.normal.normalize();
    return facet;
}

float Sheet::getArea() const
{
    float area = 0.0f;
    for (int i = 0; i < m_mesh.indices.getNumElements(0); ++i) {
        area += facet(i).area;
    }
    return area;
}

bool Sheet::computeLabelPosition(Vector3f& position) const
{
    Vector3f normal;
    return computeLabelPosition(position, normal);
}

bool Sheet::computeLabelPosition(Vector3f& position, Vector3f& normal) const
{
    if (!hasGeometry()) {
        return false;
    }
    const int numTriangles = m_mesh.indices.getNumElements(0);
    float total = 0.0f;
    float largest = -1.0f;
    Vector3f center;
    Vector3f meanNormal;
    int best = -1;
    for (int i = 0; i < numTriangles; ++i) {
        const Facet triangle = facet(i);
        total += triangle.area;
        center += triangle.center() * triangle.area;
        meanNormal += triangle.normal * triangle.area;
        if (triangle.area > largest) {
            largest = triangle.area;
            best = i;
        }
    }
    if (best < 0) {
        return false;
    }
    std::optional<Vector3f> hit;
    if (total > 0.0f && meanNormal.length() > 0.0f) {
        float highest = 0.0f;
        for (int i = 0; i < numTriangles; ++i) {
            const Facet triangle = facet(i);
            const float score = triangle.area * triangle.normal.dot(meanNormal);
            if (score > highest) {
                highest = score;
                best = i;
            }
        }
        center /= total;
        meanNormal.normalize();
        const float limit = std::cos(c_widestAngle);
        float lowest = 1.0f;
        for (int i = 0; i < numTriangles && lowest > limit; ++i) {
            const Facet triangle = facet(i);
            if (!(triangle.normal.length() > 0.0f)) {
                continue;
            }
            lowest = std::min(lowest, meanNormal.dot(triangle.normal));
            if (const auto point = intersect(center, meanNormal, triangle.a, triangle.b, triangle.c)) {
                hit = point;
                best = i;
            }
        }
    }
    const Facet triangle = facet(best);
    position = hit ? *hit : triangle.center();
    normal = triangle.normal;
    return true;
}

bool Sheet::setLabel(const vxbase::UString& text)
{
    Vector3f position;
    const bool hasPosition = computeLabelPosition(position);
    if (hasPosition) {
        m_label.set(text, position);
    } else {
        m_label.remove();
    }
    return hasPosition;
}

} // namespace vxgraphics3d
