#pragma once

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"
#include "graphics3d/plots/vector/linechains.h"

#include <boost/shared_ptr.hpp>

#include <span>
#include <vector>

namespace vxgraphics3d {

/// Lines in space drawn as flat bands whose direction and width the data give at each point, such as ribbons along the
/// streamlines of a flow.
///
/// Reads points, lines, colour and radius data (the distance from the line to each side) of group 0, the first
/// direction, in which the band extends, and the second, its normal. It keeps points and lines, so that a change of the
/// width scale rebuilds the ribbons without a record. Consecutive lines that continue each other form a chain, which
/// gets buffers of its own.
class VX_API SceneGraphPlotRibbon3d : public SceneGraphSingleTexturePlot {
public:
    struct Point {
        Point(double ax, double ay, double az, double aTexCoord, double aWidth, double acrossX, double acrossY,
              double acrossZ, double normalX, double normalY, double normalZ);

        Vector3f position;
        Vector3f across; ///< used as it is, neither of unit length nor perpendicular to the line
        Vector3f normal;
        float texCoord;
        float width; ///< not negative, unscaled
    };

    /// The ribbon of one chain: three vertices for each of its points.
    struct Ribbon {
        VertexBufferNormalTex m_ribbonVertices;
        IndexBufferTriangles m_ribbonTriangles{m_ribbonVertices};
    };
    using Ribbons = std::vector<boost::shared_ptr<Ribbon>>;

    explicit SceneGraphPlotRibbon3d(int id);
    ~SceneGraphPlotRibbon3d() override;
    /// Does nothing: ribbons stay until the next fill.
    void resetPlotData() override;
    /// Whether there are points and lines.
    bool isValid() const override;

    /// Sets the factor for all widths and rebuilds the ribbons.
    /// @throws std::bad_alloc if memory runs out; then there are no ribbons, and the factor is the earlier one
    void setWidthScaleFactor(float factor);
    /// Rebuilds the ribbons.
    void computeRibbons();

    /// The ribbons in the order of the record's lines.
    const Ribbons& getRibbons() const { return m_ribbons; }
    const std::vector<Point>& getPoints() const { return m_points; }
    const std::vector<LineSegment>& getSegments() const { return m_segments; }
    float getWidthScaleFactor() const { return m_widthScaleFactor; }

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);
    void addRibbon(std::span<const LineSegment> chain);

    std::vector<Point> m_points;
    std::vector<LineSegment> m_segments;
    Ribbons m_ribbons;
    float m_widthScaleFactor = 1.0f;
};

} // namespace vxgraphics3d
