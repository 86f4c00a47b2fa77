#include "renderer/plots/graphmarkers.h"

#include "graphics3d/foundation/boundingbox.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::GraphLine;
using vxgraphics3d::Vector3f;

/// More symbols than any picture can show.
constexpr int c_mostMarkers = 100000;

/// A straight piece, with its distance from the start of the line.
struct Piece {
    Vector3f from;
    Vector3f to;
    double start;
    double length;
};

std::vector<Piece> piecesOf(const GraphLine::Version& version, const BoundingBox& box)
{
    const auto scaleOf = [](float halfSize) { return halfSize > 0.0f ? 1.0 / static_cast<double>(halfSize) : 0.0; };
    const double scaleX = scaleOf(box.getHalfSizeX());
    const double scaleY = scaleOf(box.getHalfSizeY());
    std::vector<Piece> pieces;
    const std::vector<int>& starts = version.strips.getSegmentStarts();
    double distance = 0.0;
    for (std::size_t strip = 0; strip + 1 < starts.size(); ++strip) {
        for (int i = 0; i + 1 < starts[strip + 1] - starts[strip]; ++i) {
            const Vector3f from = version.strips.getVertex(static_cast<int>(strip), i);
            const Vector3f to = version.strips.getVertex(static_cast<int>(strip), i + 1);
            const double length = std::hypot((static_cast<double>(to.x) - static_cast<double>(from.x)) * scaleX,
                                             (static_cast<double>(to.y) - static_cast<double>(from.y)) * scaleY);
            pieces.push_back({from, to, distance, length});
            distance += length;
        }
    }
    return pieces;
}

std::vector<Vector3f> pointsOf(const GraphLine::Version& version)
{
    std::vector<Vector3f> points;
    for (int i = 0; i < version.vertices.getNumberOfVertices(); ++i) {
        points.push_back(version.vertices.getCoord(i));
    }
    return points;
}

} // namespace

std::vector<Vector3f> markersOf(const GraphLine::Version& version, const BoundingBox& box, bool interpolates, int count)
{
    if (!interpolates) {
        return pointsOf(version);
    }
    const std::vector<Piece> pieces = piecesOf(version, box);
    count = std::clamp(count, 0, c_mostMarkers);
    if (pieces.empty()) {
        return count > 0 ? pointsOf(version) : std::vector<Vector3f>();
    }
    const double length = pieces.back().start + pieces.back().length;
    const bool isRing =
        version.strips.getSegmentStarts().size() == 2 && pieces.front().from == pieces.back().to && count > 0;
    const int gaps = isRing ? count : count - 1;
    std::vector<Vector3f> markers;
    markers.reserve(static_cast<std::size_t>(count));
    auto piece = pieces.begin();
    for (int i = 0; i < count; ++i) {
        const double distance = gaps > 0 ? length * i / gaps : 0.5 * length;
        while (piece + 1 != pieces.end() && piece->start + piece->length < distance) {
            ++piece;
        }
        const double part = piece->length > 0.0 ? std::min((distance - piece->start) / piece->length, 1.0) : 0.0;
        markers.push_back(piece->from + (piece->to - piece->from) * static_cast<float>(part));
    }
    return markers;
}

} // namespace vxrenderer
