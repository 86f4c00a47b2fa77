#pragma once

#include "graphics3d/parts/partlabel.h"
#include "graphics3d/parts/selectablepart.h"

namespace vxgraphics3d {

/// A subdomain of an object, which has no geometry of its own, only a box. It belongs to a `SubdomainCollection`.
class VX_API Subdomain : public SelectablePart {
public:
    Subdomain() : SelectablePart(3) {}

    /// Whether there is geometry of the subdomain: it has a box that is not empty.
    bool hasGeometry() const { return m_hasGeometry; }
    /// The label, or null.
    const boost::shared_ptr<SceneObjectLabel>& getLabel() const { return m_label.get(); }

private:
    friend class SubdomainCollection;

    bool m_hasGeometry = false;
    PartLabel m_label;
};

} // namespace vxgraphics3d
