#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/parts/sceneobjectlabel.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {

/// The label that a part may have, and the number of times that it was set or removed.
class VX_API PartLabel {
public:
    /// Replaces the label by a new one.
    void set(const vxbase::UString& text, const Vector3f& position)
    {
        const auto label = boost::make_shared<SceneObjectLabel>();
        label->setText(text);
        label->setPosition(position);
        m_label = label;
        m_changeId.raise();
    }
    void remove()
    {
        m_label.reset();
        m_changeId.raise();
    }

    /// The label, or null.
    const boost::shared_ptr<SceneObjectLabel>& get() const { return m_label; }
    int getChangeId() const { return m_changeId.get(); }

private:
    ChangeNumber m_changeId;
    boost::shared_ptr<SceneObjectLabel> m_label;
};

} // namespace vxgraphics3d
