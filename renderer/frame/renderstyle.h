#pragma once

namespace vxrenderer {

/// How faces of a 3D view are shaded and outlined, and how finely exports are drawn: settings of the renderer alone,
/// which the model does not have.
struct RenderStyle {
    static constexpr float c_widestAngle = 180.0f;
    static constexpr int c_mostSupersampling = 4;

    /// Whether shapes are lit for reading them, see `StudioLight`; otherwise by the documented formula.
    bool isStudio = false;
    /// In degrees, 0 to 180: faces of a body that meet at more than this have a sharp edge; 180 for none.
    float creaseAngle = 35.0f;
    /// Whether sharp edges, borders and silhouettes of bodies are drawn as thin dark lines.
    bool showFeatureEdges = false;
    /// Pixels drawn for each pixel of an export, per direction, 1 to 4.
    int supersampling = 1;

    /// @throws std::invalid_argument if a number is out of its range
    void validate() const;
};

} // namespace vxrenderer
