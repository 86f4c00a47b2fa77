#include "graphics3d/plots/vector/scenegraphplottube.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/plots/plotinput.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataRole;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr PostDataRole c_radiusData{PostDataObject::RadiusData, "DataRole.RADIUS"};
constexpr float c_pi = 3.1415927f;
/// The steps of a semicircle in the plane.
constexpr int c_fanSteps = 16;
constexpr float c_fanAngle = 0.19634955f;

Vector3f positionOf(const SceneGraphPlotTube::Point& point)
{
    return {point.x, point.y, point.z};
}

Vector3f positionInPlane(const SceneGraphPlotTube::Point& point)
{
    return {point.x, point.y, 0.0f};
}

int resolutionFor(std::size_t numSegments)
{
    if (numSegments < SceneGraphPlotTube::c_minThreshold) {
        return SceneGraphPlotTube::c_maxResolution;
    }
    if (numSegments > SceneGraphPlotTube::c_maxThreshold) {
        return SceneGraphPlotTube::c_minResolution;
    }
    return SceneGraphPlotTube::c_maxResolution - static_cast<int>((16 * numSegments - 160000) / 90000);
}

/// Three numbers and a fourth without meaning, on which the processor computes in one step, with the same results as on
/// single numbers. Writing the rings of tubes takes half the time that single numbers take.
using Float4 = float __attribute__((vector_size(16)));

Float4 packed(const Vector3f& vector)
{
    return Float4{vector.x, vector.y, vector.z, 0.0f};
}

Float4 repeated(float number)
{
    return Float4{number, number, number, number};
}

/// Vector3f::normalized() for a vector whose length is known.
Vector3f normalized(const Vector3f& vector, float length)
{
    return length == 0.0f ? Vector3f() : length <= std::numeric_limits<float>::max() ? vector / length : vector;
}

Vector3f normalized(const Vector3f& vector)
{
    return normalized(vector, vector.length());
}

/// The same for a vector in the plane, with the third quotient left out.
Vector3f normalizedInPlane(const Vector3f& vector)
{
    const float length = std::sqrt(vector.x * vector.x + vector.y * vector.y);
    if (length == 0.0f) {
        return {};
    }
    return length <= std::numeric_limits<float>::max() ? Vector3f(vector.x / length, vector.y / length, 0.0f) : vector;
}

/// The directions along and across a tube, carried from ring to ring with as little twist as possible.
struct RingFrame {
    explicit RingFrame(const Vector3f& along)
        : direction(normalized(along)), u(direction.orthogonal()), v(normalized(u.cross(direction)))
    {}

    void turnTo(const Vector3f& along)
    {
        const Vector3f previous = direction;
        direction = normalized(along);
        const float p = u.dot(direction);
        u -= p * direction;
        const float length = u.length();
        if (length == 0.0f) {
            u = p < 0.0f ? -previous : previous;
        } else {
            u = normalized(u, length);
        }
        v = normalized(u.cross(direction));
    }

    Vector3f direction;
    Vector3f u;
    Vector3f v;
};

struct Ring {
    Vector3f centre;
    float radius = 0.0f;
    float texCoord = 0.0f;
    Vector3f u;
    Vector3f v;
};

/// Appends the flat band of one chain: a strip of quadrilaterals, each between a left and a right vertex.
class Band {
public:
    explicit Band(SceneGraphPlotTube::Tube& tube) : m_vertices(tube.m_tubeVertices), m_triangles(tube.m_tubeTriangles)
    {}

    /// Starts with a single vertex.
    void start(const Vector3f& point, float texCoord) { m_left = m_right = append(point, texCoord); }
    /// Starts with a semicircle about the point, from the left around the back to the right.
    /// @param across from the point to the left side
    void startRound(const Vector3f& point, Vector3f across, float texCoord)
    {
        m_left = m_vertices.getNumberOfVertices() + 1;
        m_right = appendFan(point, across, c_fanAngle, texCoord);
    }
    /// Continues to two vertices beside a point.
    void extend(const Vector3f& point, const Vector3f& across, float texCoord)
    {
        const int left = append(point + across, texCoord);
        const int right = append(point - across, texCoord);
        connect(left, right);
        m_left = left;
        m_right = right;
    }
    /// Ends with a single vertex.
    void end(const Vector3f& point, float texCoord)
    {
        m_triangles.appendTriangle(m_left, m_right, append(point, texCoord));
    }
    /// Ends with a semicircle about the point, from the left around the front to the right.
    void endRound(const Vector3f& point, Vector3f across, float texCoord)
    {
        const int left = m_vertices.getNumberOfVertices() + 1;
        connect(left, appendFan(point, across, -c_fanAngle, texCoord));
    }

private:
    int append(const Vector3f& point, float texCoord)
    {
        return m_vertices.appendVertex(point, Vector3f(0.0f, 0.0f, 1.0f), texCoord);
    }
    void connect(int left, int right)
    {
        m_triangles.appendTriangle(m_left, m_right, right);
        m_triangles.appendTriangle(m_left, right, left);
    }
    /// @return the last vertex on the rim; the first follows the centre
    int appendFan(const Vector3f& point, Vector3f across, float angle, float texCoord)
    {
        const Matrixf rotation = Matrixf(Matrixf::MatrixIdentity).rotateZ(angle);
        const int centre = append(point, texCoord);
        int rim = append(point + across, texCoord);
        for (int step = 0; step < c_fanSteps; ++step) {
            const int next = append(point + across.transform(rotation), texCoord);
            m_triangles.appendTriangle(centre, rim, next);
            rim = next;
        }
        return rim;
    }

    VertexBufferNormalTex& m_vertices;
    IndexBufferTriangles& m_triangles;
    int m_left = 0;
    int m_right = 0;
};

} // namespace

struct SceneGraphPlotTube::Input {
    explicit Input(const PostDataView& record)
        : box(boxOf(record.bounds(1), 3)),
          positions(record, 0, record.plotKind() == PostDataObject::Lines3d ? 3 : 2),
          colors(record, 0, c_colorData, ValueScale::ofGroup(record, 0, c_colorData)),
          radii(record.data(0, c_radiusData).data()),
          lines(LineEnds::ofElements(record, 0))
    {
        if (record.hasRole(vxdatacarrier::c_heightData)) {
            heights.emplace(record);
            box = heights->box;
        }
    }

    BoundingBox box;
    PointPositions positions;
    PointColors colors;
    const double* radii;
    LineEnds lines;
    std::optional<HeightMap> heights;
};

SceneGraphPlotTube::Point::Point(double ax, double ay, double az, double aTexCoord, double aRadius)
    : x(static_cast<float>(ax)),
      y(static_cast<float>(ay)),
      z(static_cast<float>(az)),
      texCoord(static_cast<float>(aTexCoord)),
      radius(static_cast<float>(aRadius))
{}

SceneGraphPlotTube::SceneGraphPlotTube(PlotType type, int id) : SceneGraphSingleTexturePlot(type, id) {}

SceneGraphPlotTube::~SceneGraphPlotTube() = default;

void SceneGraphPlotTube::resetPlotData() {}

bool SceneGraphPlotTube::isValid() const
{
    return !m_points.empty() && !m_segments.empty();
}

SceneGraphPlot::Fill SceneGraphPlotTube::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotTube::fillPlotImpl(const Input& input)
{
    const auto count = static_cast<std::size_t>(input.positions.count);
    const PointPositions& at = input.positions;
    m_tubes.clear();
    m_points.clear();
    m_segments.clear();
    try {
        m_points.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            const double z = input.heights ? (*input.heights)(i) : at.z != nullptr ? at.z[i] : 0.0;
            const double radius = input.radii[i] < 0.0 ? 0.0 : input.radii[i];
            m_points.emplace_back(at.x[i], at.y[i], z, input.colors.scale(input.colors.values[i]), radius);
        }
        assignSegments(m_segments, input.lines);
        if (input.heights) {
            setHasHeightData(true);
        }
        computeTubes();
    } catch (...) {
        m_points.clear();
        m_segments.clear();
        throw;
    }
    setBoundingBox(input.box);
}

void SceneGraphPlotTube::setRadiusScaleFactor(float factor)
{
    if (factor == m_radiusScaleFactor) {
        return;
    }
    const float previous = std::exchange(m_radiusScaleFactor, factor);
    try {
        computeTubes();
    } catch (...) {
        m_radiusScaleFactor = previous;
        markGeometryChanged();
        throw;
    }
    markGeometryChanged();
}

void SceneGraphPlotTube::computeTubes()
{
    m_tubes.clear();
    try {
        if (!hasHeightData() && getType() != PlotType::tube3d) {
            computeTubes2D();
        } else {
            computeTubes3D();
        }
    } catch (...) {
        m_tubes.clear();
        throw;
    }
}

void SceneGraphPlotTube::addRing(VertexBufferNormalTex& vertices, const Vector3f& centre, float radius, float texCoord,
                                 const Vector3f& u, const Vector3f& v) const
{
    const std::size_t count = m_cosTable.size();
    VertexNormalTex* const out = vertices.appendUnwritten(static_cast<int>(count));
    auto* record = reinterpret_cast<std::byte*>(out);
    const float* cosines = m_cosTable.data();
    const float* sines = m_sinTable.data();
    const Float4 middle = packed(centre);
    const Float4 first = packed(u);
    const Float4 second = packed(v);
    const Float4 size = repeated(radius);
    const float texture[2] = {texCoord, 0.0f};
    for (std::size_t i = 0; i < count; ++i, record += sizeof(VertexNormalTex)) {
        const Float4 n = first * repeated(cosines[i]) + second * repeated(sines[i]);
        const Float4 p = middle + n * size;
        // Position, normal and texture follow each other: each overwrites the fourth number of the one before.
        std::memcpy(record, &p, sizeof p);
        std::memcpy(record + offsetof(VertexNormalTex, nx), &n, sizeof n);
        std::memcpy(record + offsetof(VertexNormalTex, u), texture, sizeof texture);
    }
}

void SceneGraphPlotTube::addCylinder(const VertexBufferNormalTex& vertices, IndexBufferTriangles& triangles) const
{
    triangles.appendBands(vertices.getNumberOfVertices() - 2 * m_resolution - 2, m_resolution + 1, 1);
}

void SceneGraphPlotTube::computeTubes3D()
{
    m_resolution = resolutionFor(m_segments.size());
    makeRingTables();
    std::vector<char> isCapped(m_points.size());
    const auto takesCap = [&](int point) {
        char& capped = isCapped[static_cast<std::size_t>(point)];
        return pointAt(point).radius != 0.0f && !std::exchange(capped, char{1});
    };
    forEachChain(m_segments, [&](std::span<const LineSegment> chain) {
        const bool isClosed = chain.front().first == chain.back().second;
        const bool startCap = !isClosed && takesCap(chain.front().first);
        const bool endCap = !isClosed && takesCap(chain.back().second);
        addTube3D(chain, startCap, endCap);
    });
}

void SceneGraphPlotTube::makeRingTables()
{
    const auto count = static_cast<std::size_t>(m_resolution) + 1;
    m_cosTable.resize(count);
    m_sinTable.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const float angle = static_cast<float>(2 * i) * c_pi / static_cast<float>(m_resolution);
        m_cosTable[i] = std::cos(angle);
        m_sinTable[i] = std::sin(angle);
    }
}

void SceneGraphPlotTube::addTube3D(std::span<const LineSegment> chain, bool startCap, bool endCap)
{
    const auto resolution = static_cast<std::size_t>(m_resolution);
    const int half = m_resolution / 2;
    const std::size_t numCaps = (startCap ? 1u : 0u) + (endCap ? 1u : 0u);
    const std::size_t numRings = chain.size() + numCaps * static_cast<std::size_t>(half) + 2;
    Tube& tube = addTube(numRings * (resolution + 1), 2 * (numRings - 1) * resolution);

    const Point& first = pointAt(chain.front().first);
    const Point& last = pointAt(chain.back().second);
    const auto scaledRadius = [this](float radius) {
        const float scaled = radius * m_radiusScaleFactor;
        return scaled < 0.0f ? 0.0f : scaled;
    };
    RingFrame frame(positionOf(pointAt(chain.front().second)) - positionOf(first));
    Ring ring{positionOf(first), scaledRadius(first.radius), first.texCoord, frame.u, frame.v};
    // The frames of several rings are computed before any of them is written: the processor then works on more than one
    // at a time, because most of the time is spent waiting for square roots and quotients.
    std::array<Ring, 32> batch;
    std::size_t batchSize = 0;
    const auto addBatch = [&] {
        for (std::size_t i = 0; i < batchSize; ++i) {
            const Ring& r = batch[i];
            addRing(tube.m_tubeVertices, r.centre, r.radius, r.texCoord, r.u, r.v);
        }
        batchSize = 0;
    };
    const auto add = [&](const Ring& next) {
        batch[batchSize++] = next;
        if (batchSize == batch.size()) {
            addBatch();
        }
    };
    const auto addNext = [&](const Vector3f& centre, float radius, float texCoord) {
        frame.turnTo(centre - ring.centre);
        ring = {centre, scaledRadius(radius), texCoord, frame.u, frame.v};
        add(ring);
    };
    /// @param s from -1 at the pole of the start to 1 at that of the end
    const auto addCapRing = [&](float s) {
        Ring capRing = ring;
        capRing.centre += frame.direction * s * ring.radius;
        capRing.radius *= std::sqrt(1.0f - s * s);
        add(capRing);
    };

    for (int k = 0; startCap && k < half; ++k) {
        addCapRing(static_cast<float>(k) / static_cast<float>(half) - 1.0f);
    }
    add(ring);
    for (const LineSegment& segment : chain) {
        const Point& a = pointAt(segment.first);
        const Point& b = pointAt(segment.second);
        addNext((positionOf(a) + positionOf(b)) / 2.0f, (a.radius + b.radius) / 2.0f, (a.texCoord + b.texCoord) / 2.0f);
    }
    addNext(positionOf(last), last.radius, last.texCoord);
    for (int k = 1; endCap && k <= half; ++k) {
        addCapRing(static_cast<float>(k) / static_cast<float>(half));
    }
    addBatch();
    tube.m_tubeTriangles.appendBands(0, m_resolution + 1, static_cast<int>(numRings) - 1);
}

void SceneGraphPlotTube::computeTubes2D()
{
    forEachChain(m_segments, [this](std::span<const LineSegment> chain) { addTube2D(chain); });
}

void SceneGraphPlotTube::addTube2D(std::span<const LineSegment> chain)
{
    const Point& first = pointAt(chain.front().first);
    const Point& last = pointAt(chain.back().second);
    const std::size_t numRound = (first.radius > 0.0f ? 1u : 0u) + (last.radius > 0.0f ? 1u : 0u);
    Tube& tube = addTube((c_fanSteps + 1) * numRound + 2 * chain.size(), c_fanSteps * numRound + 2 * chain.size());
    Band band(tube);
    const auto directionOf = [this](const LineSegment& segment) {
        return normalizedInPlane(positionInPlane(pointAt(segment.second)) - positionInPlane(pointAt(segment.first)));
    };
    const auto across = [this](const Vector3f& direction, const Point& point) {
        return Vector3f(-direction.y, direction.x, 0.0f) * point.radius * m_radiusScaleFactor;
    };

    Vector3f direction = directionOf(chain.front());
    if (first.radius > 0.0f) {
        band.startRound(positionInPlane(first), across(direction, first), first.texCoord);
    } else {
        band.start(positionInPlane(first), first.texCoord);
    }
    for (const LineSegment& segment : chain.subspan(1)) {
        const Point& joint = pointAt(segment.first);
        const Vector3f next = directionOf(segment);
        band.extend(positionInPlane(joint), across(normalizedInPlane(direction + next), joint), joint.texCoord);
        direction = next;
    }
    if (last.radius > 0.0f) {
        band.endRound(positionInPlane(last), across(direction, last), last.texCoord);
    } else {
        band.end(positionInPlane(last), last.texCoord);
    }
}

SceneGraphPlotTube::Tube& SceneGraphPlotTube::addTube(std::size_t numVertices, std::size_t numTriangles)
{
    constexpr std::size_t c_limit = std::numeric_limits<int>::max() / 3;
    if (std::max(numVertices, numTriangles) > c_limit) {
        throw std::invalid_argument(std::string(plotClassName(getType())) + ": a tube of " +
                                    std::to_string(numTriangles) + " triangles is too large.");
    }
    const auto tube = boost::make_shared<Tube>();
    tube->m_tubeVertices.allocate(static_cast<int>(numVertices));
    tube->m_tubeTriangles.internalAllocate(static_cast<int>(numTriangles), 1);
    tube->m_tubeTriangles.newSegment();
    m_tubes.push_back(tube);
    return *tube;
}

} // namespace vxgraphics3d
