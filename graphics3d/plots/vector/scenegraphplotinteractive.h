#pragma once

#include "graphics3d/parts/pointcollection.h"
#include "graphics3d/plots/scenegraphsingletextureplot.h"

#include <vector>

namespace vxgraphics3d {

/// Points and lines that a program shows while its user works. They come from three sources, which are independent of
/// each other: points, lines that are solid for a part of their length and dashed for the rest, and the lines of a
/// record. A fill sets no box.
class VX_API SceneGraphPlotInteractive : public SceneGraphSingleTexturePlot {
public:
    /// Coordinates by axis: x, y, z; further arrays are ignored.
    using Coordinates = std::vector<std::vector<double>>;

    explicit SceneGraphPlotInteractive(int id);
    ~SceneGraphPlotInteractive() override;

    /// Sets the part of each line that is solid, clamped to 0 to 1; NaN counts as 0. It applies to the next
    /// setLinePoints().
    void setSolidFraction(float fraction);
    float getSolidFraction() const { return m_solidFraction; }

    /// Replaces the points. Their number is that of the x coordinates.
    /// @throws std::invalid_argument if there are fewer than three arrays, or one has fewer values than the first; then
    ///         nothing has changed
    void setPoints(const Coordinates& points);
    /// Replaces the partly dashed lines: each goes from one point to the next, and a last single point is ignored. The
    /// dashes take 0.4 of their period, which is a thirtieth of the line, and are counted from its end, so the last
    /// one may overlap the solid part.
    /// @throws std::invalid_argument as setPoints(), or if there are more lines than fit
    void setLinePoints(const Coordinates& points);
    /// Drops points and lines and counts a change of geometry.
    void clear();

    /// Drops points and lines. Counts no change: a renderer checks isValid().
    void resetPlotData() override;
    /// Whether there are points or lines.
    bool isValid() const override;

    /// Does not change.
    int getInteractiveChangeId() const { return m_interactiveChangeId.get(); }
    /// The points of setPoints().
    const PointCollection& getInteractivePoints() const { return m_interactivePoints; }
    /// Pairs of ends of solid parts and dashes, from setLinePoints().
    const PointCollection& getDashPoints() const { return m_dashPoints; }
    /// Pairs of ends of the lines of a record.
    const PointCollection& getLinePoints() const { return m_linePoints; }

protected:
    /// Reads the points in space and the first two corners of the elements of all groups.
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);

    ChangeNumber m_interactiveChangeId;
    float m_solidFraction = 1.0f;
    PointCollection m_interactivePoints;
    PointCollection m_dashPoints;
    PointCollection m_linePoints;
};

} // namespace vxgraphics3d
