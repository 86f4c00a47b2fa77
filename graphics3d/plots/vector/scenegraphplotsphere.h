#pragma once

#include "graphics3d/plots/scenegraphsingletextureplot.h"

namespace vxgraphics3d {

/// A cloud of points, each drawn as a sphere or disc. A plot has one small record per sphere; a renderer draws copies
/// of one shape.
///
/// A fill reads the points of group 0, their colour data and radius data if present; a sphere without colour data has
/// the texture coordinate 0.5, one without radius data the radius 1. Points whose coordinates do not have a finite sum
/// are left out, and colour and radius of the others stay their own. The box is that of the centres.
class VX_API SceneGraphPlotSphere : public SceneGraphSingleTexturePlot {
public:
    ~SceneGraphPlotSphere() override;

    /// Sets the factor by which a renderer multiplies all radii. Another value computes the box again and counts a
    /// change of geometry; the records stay.
    void setRadiusScaleFactor(float factor);
    float getRadiusScaleFactor() const { return m_radiusScaleFactor; }

    /// Does nothing: the spheres stay until the next fill.
    void resetPlotData() override;

protected:
    SceneGraphPlotSphere(PlotType type, int id);

    /// Sets the box of the centres; 0 to 1 in each axis of a plot without spheres.
    virtual void updateBoundingBox() = 0;

private:
    float m_radiusScaleFactor = 1.0f;
};

} // namespace vxgraphics3d
