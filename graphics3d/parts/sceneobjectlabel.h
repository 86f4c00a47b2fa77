#pragma once

#include "base/export.h"
#include "base/ustring.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/foundation/vector3f.h"

namespace vxgraphics3d {

/// The text next to a part of an object, at a point of the scene. Its change number counts every text and position set.
class VX_API SceneObjectLabel {
public:
    void setText(const vxbase::UString& text)
    {
        m_text = text;
        m_changeId.raise();
    }
    void setPosition(const Vector3f& position)
    {
        m_position = position;
        m_changeId.raise();
    }

    const vxbase::UString& getText() const { return m_text; }
    const Vector3f& getPosition() const { return m_position; }
    int getChangeId() const { return m_changeId.get(); }

private:
    vxbase::UString m_text;
    Vector3f m_position;
    ChangeNumber m_changeId;
};

} // namespace vxgraphics3d
