#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"

namespace vxgraphics3d {

/// Base of the settings classes: one change number that rises with every change that an observer must notice.
///
/// A copy starts at 1; an assignment leaves the number of its target to the derived class.
class VX_API ChangeableSetting {
public:
    ChangeableSetting() = default;
    ChangeableSetting(const ChangeableSetting&) = default;
    ChangeableSetting& operator=(const ChangeableSetting&) = default;
    virtual ~ChangeableSetting();

    int getChangeId() const { return m_changeId.get(); }
    /// Whether something has changed since the observer last took the number.
    bool isChanged(const LastChangeId& last) const { return m_changeId.isChanged(last); }
    /// Brings the observer up to date.
    void resetChanged(LastChangeId& last) const { m_changeId.resetChanged(last); }

    /// Counts one change if the source is another object. A derived class calls it when it copies all settings.
    void import(const ChangeableSetting& other)
    {
        if (&other != this) {
            countChange();
        }
    }

protected:
    /// Counts one change.
    void countChange() { m_changeId.raise(); }

private:
    ChangeNumber m_changeId;
};

} // namespace vxgraphics3d
