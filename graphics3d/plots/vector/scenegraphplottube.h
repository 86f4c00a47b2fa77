#pragma once

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"
#include "graphics3d/plots/vector/linechains.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <span>
#include <vector>

namespace vxgraphics3d {

/// Lines drawn as tubes whose radius and colour follow data: in space as rings with hemispherical ends, in the plane as
/// flat bands with semicircular ends. Tubes in the plane that height data raise are built in space.
///
/// Reads points, lines, colour and radius data of group 0 and keeps points and lines, so that a change of the radius
/// scale rebuilds the tubes without a record. Consecutive lines that continue each other form a chain, which gets
/// buffers of its own.
class VX_API SceneGraphPlotTube : public SceneGraphSingleTexturePlot {
public:
    static constexpr int c_minResolution = 8;
    static constexpr int c_maxResolution = 24;
    static constexpr int c_minThreshold = 10000;
    static constexpr int c_maxThreshold = 100000;

    struct Point {
        Point() = default;
        Point(double ax, double ay, double az, double aTexCoord, double aRadius);

        float x, y, z;
        float texCoord;
        float radius; ///< not negative, unscaled
    };

    /// The tube of one chain.
    struct Tube {
        VertexBufferNormalTex m_tubeVertices;
        IndexBufferTriangles m_tubeTriangles{m_tubeVertices};
    };
    using Tubes = std::vector<boost::shared_ptr<Tube>>;

    ~SceneGraphPlotTube() override;
    /// Does nothing: tubes stay until the next fill.
    void resetPlotData() override;
    /// Whether there are points and lines.
    bool isValid() const override;

    /// Sets the factor for all radii and rebuilds the tubes. In space, a negative factor counts as 0.
    /// @throws std::bad_alloc if memory runs out; then there are no tubes, and the factor is the earlier one
    void setRadiusScaleFactor(float factor);
    /// Rebuilds the tubes.
    void computeTubes();

    /// Appends a ring of `getResolution() + 1` vertices, of which the last is at the first, for which there must be
    /// space. Normals are radial.
    /// @param u,v unit vectors across the tube
    void addRing(VertexBufferNormalTex& vertices, const Vector3f& centre, float radius, float texCoord,
                 const Vector3f& u, const Vector3f& v) const;
    /// Appends the triangles between the two rings added last, for which there must be space.
    void addCylinder(const VertexBufferNormalTex& vertices, IndexBufferTriangles& triangles) const;

    /// The tubes in the order of the record's lines.
    const Tubes& getTubes() const { return m_tubes; }
    const std::vector<Point>& getPoints() const { return m_points; }
    const std::vector<LineSegment>& getSegments() const { return m_segments; }
    float getRadiusScaleFactor() const { return m_radiusScaleFactor; }
    /// The number of segments around a tube in space, which decreases with the number of lines; 0 before the first is
    /// built.
    int getResolution() const { return m_resolution; }

protected:
    SceneGraphPlotTube(PlotType type, int id);
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);
    void computeTubes2D();
    void computeTubes3D();
    void makeRingTables();
    void addTube2D(std::span<const LineSegment> chain);
    void addTube3D(std::span<const LineSegment> chain, bool startCap, bool endCap);
    /// Adds a tube with space for its vertices and triangles.
    Tube& addTube(std::size_t numVertices, std::size_t numTriangles);
    const Point& pointAt(int index) const { return m_points[static_cast<std::size_t>(index)]; }

    std::vector<Point> m_points;
    std::vector<LineSegment> m_segments;
    Tubes m_tubes;
    float m_radiusScaleFactor = 1.0f;
    int m_resolution = 0;
    std::vector<float> m_cosTable;
    std::vector<float> m_sinTable;
};

} // namespace vxgraphics3d
