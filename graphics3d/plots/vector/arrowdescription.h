#pragma once

namespace vxgraphics3d {

/// How a renderer shapes and scales the arrows of a plot: a plain value without change numbers, which belong to the
/// plot.
///
/// All sizes are fractions of a length: of the arrow's own length, or, with heads of equal size, of the length of the
/// plot's longest arrow.
struct ArrowDescription {
    /// How the stored length of an arrow maps to its length in the scene. The longest arrow keeps its length in all of
    /// them, and the common scale applies afterwards.
    enum class ScalingType : int {
        proportional = 0,           ///< the stored length
        normalized = 1,             ///< the length of the longest arrow for all that have a direction
        logarithmic = 2,            ///< the logarithm of the length, over the plot's logarithmic range
        proportionalEqualHeads = 3, ///< the stored length; heads and shafts are as large as those of the longest arrow
        squareRoot = 4              ///< the square root of the length
    };
    /// Which point of an arrow is at its position.
    enum class AnchorPoint : int { tail = 0, center = 1, tip = 2 };

    static constexpr float c_defaultShaftRadius = 0.03f;
    static constexpr float c_defaultHeadLength = 0.3f;
    static constexpr float c_defaultHeadRadius = 0.1f;

    ScalingType m_scalingType = ScalingType::proportional;
    AnchorPoint m_anchorPoint = AnchorPoint::tail;
    float m_commonArrowScale = 1.0f; ///< factor for the length of all arrows
    float m_shaftRadius = c_defaultShaftRadius;
    float m_headLength = c_defaultHeadLength;
    float m_headRadius = c_defaultHeadRadius;
};

} // namespace vxgraphics3d
