#pragma once

#include "base/export.h"

#include <cmath>
#include <iosfwd>
#include <limits>
#include <utility>

namespace vxgraphics3d {

class Matrixf;

/// A point or direction of three floats: a plain value whose arithmetic is component-wise in float.
class VX_API Vector3f {
public:
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;

    Vector3f() = default;
    Vector3f(float ax, float ay, float az) : x(ax), y(ay), z(az) {}
    /// Narrows each component to float.
    Vector3f(double ax, double ay, double az)
        : x(static_cast<float>(ax)), y(static_cast<float>(ay)), z(static_cast<float>(az))
    {}

    void init(float ax, float ay, float az)
    {
        x = ax;
        y = ay;
        z = az;
    }

    Vector3f& operator+=(const Vector3f& other)
    {
        x += other.x;
        y += other.y;
        z += other.z;
        return *this;
    }
    Vector3f& operator-=(const Vector3f& other)
    {
        x -= other.x;
        y -= other.y;
        z -= other.z;
        return *this;
    }
    Vector3f& operator*=(float factor)
    {
        x *= factor;
        y *= factor;
        z *= factor;
        return *this;
    }
    Vector3f& operator/=(float divisor)
    {
        x /= divisor;
        y /= divisor;
        z /= divisor;
        return *this;
    }
    Vector3f operator+(const Vector3f& other) const { return {x + other.x, y + other.y, z + other.z}; }
    Vector3f operator-(const Vector3f& other) const { return {x - other.x, y - other.y, z - other.z}; }
    Vector3f operator-() const { return {-x, -y, -z}; }
    Vector3f operator*(float factor) const { return {x * factor, y * factor, z * factor}; }
    Vector3f operator/(float divisor) const { return {x / divisor, y / divisor, z / divisor}; }
    friend Vector3f operator*(float factor, const Vector3f& v) { return v * factor; }
    friend bool operator==(const Vector3f&, const Vector3f&) = default;

    float dot(const Vector3f& other) const { return x * other.x + y * other.y + z * other.z; }
    /// This vector times the other.
    Vector3f cross(const Vector3f& other) const
    {
        return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
    }

    float lengthSquared() const { return x * x + y * y + z * z; }
    float length() const { return std::sqrt(lengthSquared()); }

    /// Scales the vector to length 1 in place. A vector whose length is 0 or not finite stays as it is.
    Vector3f& normalize()
    {
        const float l = length();
        if (l > 0.0f && l <= std::numeric_limits<float>::max()) {
            *this /= l;
        }
        return *this;
    }
    /// A copy of length 1; (0, 0, 0) for a vector of length 0. A copy is unchanged if the length is not finite.
    Vector3f normalized() const { return length() == 0.0f ? Vector3f() : Vector3f(*this).normalize(); }

    /// A unit vector perpendicular to this one: the longest of the cross products with the x, y and z axis, or the
    /// first of them if several are equally long.
    Vector3f orthogonal() const;
    /// Azimuth and polar angle in radians: (atan2(y, x), acos(z)) of the unit vector, (0, 0) for a vector of length 0.
    std::pair<float, float> toSpherical() const;

    Vector3f& translate(float dx, float dy, float dz) { return *this += Vector3f(dx, dy, dz); }
    Vector3f translated(float dx, float dy, float dz) const { return *this + Vector3f(dx, dy, dz); }
    /// Multiplies component-wise.
    Vector3f& scale(float sx, float sy, float sz)
    {
        x *= sx;
        y *= sy;
        z *= sz;
        return *this;
    }
    Vector3f scaled(float sx, float sy, float sz) const { return {x * sx, y * sy, z * sz}; }
    /// Transforms the point by the full matrix and divides by the resulting w.
    Vector3f& transform(const Matrixf& matrix) { return *this = transformed(matrix); }
    /// A transformed copy. A w of 0 follows float arithmetic.
    Vector3f transformed(const Matrixf& matrix) const;

    /// Writes "{x, y, z}" and a line end to standard output.
    void print() const;
};

/// Writes "[x y z]".
VX_API std::ostream& operator<<(std::ostream& stream, const Vector3f& v);

} // namespace vxgraphics3d
