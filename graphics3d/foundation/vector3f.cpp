#include "graphics3d/foundation/vector3f.h"

#include "graphics3d/foundation/matrixf.h"

#include <algorithm>
#include <cstdio>
#include <ostream>

namespace vxgraphics3d {

Vector3f Vector3f::orthogonal() const
{
    Vector3f best = cross(Vector3f(1.0f, 0.0f, 0.0f));
    for (const Vector3f& axis : {Vector3f(0.0f, 1.0f, 0.0f), Vector3f(0.0f, 0.0f, 1.0f)}) {
        const Vector3f candidate = cross(axis);
        if (candidate.length() > best.length()) {
            best = candidate;
        }
    }
    return best.normalize();
}

std::pair<float, float> Vector3f::toSpherical() const
{
    const float size = length();
    if (size == 0.0f) {
        return {0.0f, 0.0f};
    }
    // The same as normalized(), with the length computed once.
    const Vector3f unit = size <= std::numeric_limits<float>::max() ? *this / size : *this;
    // A length that underflows can leave the quotient slightly above 1, where the arc cosine is undefined.
    return {std::atan2(unit.y, unit.x), std::acos(std::clamp(unit.z, -1.0f, 1.0f))};
}

Vector3f Vector3f::transformed(const Matrixf& matrix) const
{
    const float* m = matrix.data();
    const float inverseW = 1.0f / (m[3] * x + m[7] * y + m[11] * z + m[15]);
    return {(m[0] * x + m[4] * y + m[8] * z + m[12]) * inverseW, (m[1] * x + m[5] * y + m[9] * z + m[13]) * inverseW,
            (m[2] * x + m[6] * y + m[10] * z + m[14]) * inverseW};
}

void Vector3f::print() const
{
    std::printf("{%f, %f, %f}\n", static_cast<double>(x), static_cast<double>(y), static_cast<double>(z));
}

std::ostream& operator<<(std::ostream& stream, const Vector3f& v)
{
    return stream << '[' << v.x << ' ' << v.y << ' ' << v.z << ']';
}

} // namespace vxgraphics3d
