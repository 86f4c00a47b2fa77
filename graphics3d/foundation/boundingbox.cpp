#include "graphics3d/foundation/boundingbox.h"

#include <algorithm>
#include <cmath>

namespace vxgraphics3d {

namespace {

/// The signs of (x, y, z) around the centre, by corner.
constexpr float c_cornerSigns[8][3] = {{-1, -1, -1}, {1, -1, -1}, {1, 1, -1}, {-1, 1, -1},
                                       {1, -1, 1},   {-1, -1, 1}, {1, 1, 1},  {-1, 1, 1}};

/// Clips the range of the segment's parameter to the part between two parallel planes.
/// @return whether anything is left
bool clipToSlab(double from, double to, double low, double high, double& begin, double& end)
{
    const double step = to - from;
    if (step == 0.0) {
        return low <= from && from <= high;
    }
    const auto [enter, leave] = std::minmax({(low - from) / step, (high - from) / step});
    begin = std::max(begin, enter);
    end = std::min(end, leave);
    return begin <= end;
}

double square(float value)
{
    return static_cast<double>(value) * static_cast<double>(value);
}

} // namespace

BoundingBox::BoundingBox(double xmin, double xmax, double ymin, double ymax, double zmin, double zmax)
    : BoundingBox(static_cast<float>(xmin), static_cast<float>(xmax), static_cast<float>(ymin),
                  static_cast<float>(ymax), static_cast<float>(zmin), static_cast<float>(zmax))
{}

BoundingBox::BoundingBox(const std::vector<std::vector<double>>& limits)
    : BoundingBox(limits.at(0).at(0), limits.at(0).at(1), limits.at(1).at(0), limits.at(1).at(1), limits.at(2).at(0),
                  limits.at(2).at(1))
{}

Vector3f BoundingBox::getVertex(int i) const
{
    if (i < 0 || i > 7) {
        return {};
    }
    const float* sign = c_cornerSigns[i];
    return getCenter() + getHalfSize().scaled(sign[0], sign[1], sign[2]);
}

float BoundingBox::getBoundingRadius() const
{
    return static_cast<float>(std::sqrt(square(getHalfSizeX()) + square(getHalfSizeY()) + square(getHalfSizeZ())));
}

bool BoundingBox::doesLineIntersect(const Vector3f& a, const Vector3f& b) const
{
    const Vector3f min = getMin();
    const Vector3f max = getMax();
    double begin = 0.0;
    double end = 1.0;
    const auto clip = [&](float from, float to, float low, float high) {
        return clipToSlab(static_cast<double>(from), static_cast<double>(to), static_cast<double>(low),
                          static_cast<double>(high), begin, end);
    };
    return isValid() && clip(a.x, b.x, min.x, max.x) && clip(a.y, b.y, min.y, max.y) && clip(a.z, b.z, min.z, max.z);
}

} // namespace vxgraphics3d
