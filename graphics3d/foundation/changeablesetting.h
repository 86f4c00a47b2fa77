#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changecounter.h"
#include "graphics3d/foundation/lastchangeid.h"

namespace vxgraphics3d {

/// Base of the settings classes: one change number that rises with every change that an observer must notice.
///
/// The number belongs to the object and never travels with a value: a copy starts at 1, an assignment leaves the number
/// of its target to the derived class.
class VX_API ChangeableSetting {
public:
    ChangeableSetting() = default;
    ChangeableSetting(const ChangeableSetting&) {}
    ChangeableSetting& operator=(const ChangeableSetting&) { return *this; }
    virtual ~ChangeableSetting();

    int getChangeId() const { return m_changeId; }
    /// Whether something has changed since the observer took the number last.
    bool isChanged(const LastChangeId& last) const { return last.changeId != m_changeId; }
    /// Brings the observer up to date.
    void resetChanged(LastChangeId& last) const { last.changeId = m_changeId; }

    /// Counts one change if the source is another object. A derived class calls it when it takes all its settings over.
    void import(const ChangeableSetting& other)
    {
        if (&other != this) {
            countChange();
        }
    }

protected:
    /// Counts one change.
    void countChange() { raiseChange(m_changeId); }

private:
    int m_changeId = 1;
};

} // namespace vxgraphics3d
