#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/parts/partlabel.h"
#include "graphics3d/parts/selectablepart.h"

namespace vxgraphics3d {

/// A point of an object.
class VX_API Point : public SelectablePart {
public:
    Point();
    virtual ~Point();

    /// Sets the position and drops all marks.
    void setPosition(float x, float y, float z) { setPosition(Vector3f(x, y, z)); }
    void setPosition(const Vector3f& position);
    /// Labels the point with a new label; without a position, its label is removed.
    /// @return whether it has a label now
    bool setLabel(const vxbase::UString& text);
    void removeLabel() { m_label.remove(); }

    /// Counts the positions set.
    int getGeometryChangeId() const { return m_geometryChangeId.get(); }
    /// Counts the labels set and removed.
    int getLabelChangeId() const { return m_label.getChangeId(); }
    const Vector3f& getPosition() const { return m_position; }
    bool hasPosition() const { return m_hasPosition; }
    /// The label, or null.
    const boost::shared_ptr<SceneObjectLabel>& getLabel() const { return m_label.get(); }

private:
    ChangeNumber m_geometryChangeId;
    Vector3f m_position;
    bool m_hasPosition = false;
    PartLabel m_label;
};

} // namespace vxgraphics3d
