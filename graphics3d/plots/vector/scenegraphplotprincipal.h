#pragma once

#include "graphics3d/plots/vector/arrowrecords.h"

namespace vxgraphics3d {

/// Three arrows with a common centre, as a renderer passes them to the graphics hardware.
struct PrincipalRecord {
    float x, y, z;
    float length[3];     ///< negative for compression
    float largestLength; ///< the largest of their magnitudes; 1 if all are 0
    float azimuth[3];    ///< in radians, from the x axis
    float polarAngle[3]; ///< in radians, from the z axis
    float u;             ///< the coordinate in the colour table
};
static_assert(sizeof(PrincipalRecord) == 56);

/// Three directions at each point: the principal values of a tensor field, such as stresses, or, as a coordinate system
/// plot, local axes, which are all equally long.
///
/// Reads points, the directions of three axes and, except as a coordinate system plot, their values from group 0; and
/// colour data, if present.
class VX_API SceneGraphPlotPrincipal : public ArrowRecords<PrincipalRecord> {
public:
    /// The factor by which a renderer draws the stored lengths: arrows reach to both sides of a point.
    static constexpr float c_lengthScale = 0.4f;

    /// @param dimension 2 for a plot in the plane, anything else for one in space
    /// @param showsPrincipalValues false for coordinate systems
    SceneGraphPlotPrincipal(int dimension, bool showsPrincipalValues, int id);
    ~SceneGraphPlotPrincipal() override;

    static PlotType getType(int dimension, bool showsPrincipalValues);
    using SceneGraphPlot::getType;

    bool isCoordSysPlot() const;
    static float getLengthScale() { return c_lengthScale; }
    /// The distance between two axes of a point in the colour table: 0.5 if the last fill had no colour data, so that
    /// the axes have different colours, otherwise 0.
    float getTextureShift() const { return m_textureShift; }

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);

    float m_textureShift = 0.0f;
};

} // namespace vxgraphics3d
