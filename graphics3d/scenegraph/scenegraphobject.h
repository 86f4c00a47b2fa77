#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/scenegraph/scenegraphnode.h"

namespace vxgraphics3d {

/// A leaf of the scene tree that shows geometry, with its own colour and shininess.
class VX_API SceneGraphObject : public SceneGraphNode {
public:
    enum ObjectType {
        ObjectSolid = 0,
        ObjectFace = 1,
        ObjectCurve = 2,
        ObjectPoint = 3,
        ObjectPhysics = 4,
        ObjectProbe = 5,
        ObjectBallBox = 6,
        ObjectFeature = 7,
        ObjectDrawProj = 8
    };

    /// What a caller does to a part: the marking actions.
    enum MarkingType { MarkingPrimary = 0, MarkingSecondary = 1, MarkingHidden = 2, MarkingUnpickable = 3 };

    ObjectType getObjectType() const { return m_objectType; }

    // Each setter counts a change, even when the value stays the same.

    const Color& getObjectColor() const { return m_objectColor; }
    void setObjectColor(const Color& color);
    /// Whether the object is shown in its own colour.
    bool isObjectColorUsed() const { return m_useObjectColor; }
    void setUseObjectColor(bool use);
    /// The exponent of the highlight, 1 to 128.
    float getShininess() const { return m_shininess; }
    /// Clamps the value to 1 to 128; NaN counts as 1.
    void setShininess(float shininess);

protected:
    explicit SceneGraphObject(ObjectType type);

private:
    ObjectType m_objectType;
    float m_shininess = 64.0f;
    bool m_useObjectColor = false;
    Color m_objectColor{255, 255, 255, 255};
};

} // namespace vxgraphics3d
