#pragma once

#include "renderer/gl/glprogram.h"
#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// The program that draws data on meshes: it turns the texture coordinate of the vertices into a colour by the few
/// numbers that a plot keeps beside its buffers, so that new legend limits or restrictions need no new buffers.
///
/// With u the coordinate of a vertex, 0 to 1 over the range of the data, l = mix(dataTexMin, dataTexMax, u) is the
/// place on the legend and t = mix(legendTexMin, legendTexMax, l), with l clamped, the place in the colour table.
class FieldProgram {
public:
    FieldProgram();

    /// Sets the program up for a plot.
    /// @return false if the plot's restriction hides all of it
    bool use(const PlotItem& item, const PaintContext& context) const;

private:
    void setLight(const PaintContext& context) const;

    GlProgram m_program;
    GLint m_modelView;
    GLint m_projection;
    GLint m_normalMatrix;
    GLint m_hasTable;
    GLint m_uniformColor;
    GLint m_dataTex;
    GLint m_legendTex;
    GLint m_restriction;
    GLint m_isReversed;
    GLint m_opacity;
    GLint m_shininess;
    GLint m_isLit;
    GLint m_isPerspective;
    GLint m_ambient;
    GLint m_numLights;
    GLint m_lightPlaces;
    GLint m_lightDiffuse;
    GLint m_lightSpecular;
    GLint m_lightCones;
};

} // namespace vxrenderer
