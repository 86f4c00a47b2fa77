#pragma once

#include "graphics3d/foundation/lastchangeid.h"

namespace vxgraphics3d {

/// Counts the changes of one object, from 1. The object raises the number with each change that an observer must
/// notice; the observer keeps the number it saw in a `LastChangeId` and compares the two for equality only, since the
/// number wraps at the end of its range.
///
/// The number belongs to its object and never travels with a value: a copy starts at 1, and assignment leaves the
/// number of the target alone.
class ChangeNumber {
public:
    ChangeNumber() = default;
    ChangeNumber(const ChangeNumber&) {}
    ChangeNumber& operator=(const ChangeNumber&) { return *this; }

    int get() const { return m_number; }
    /// Counts one change.
    void raise() { m_number = after(m_number); }
    /// Whether a change has been counted since the observer took the number.
    bool isChanged(const LastChangeId& last) const { return last.differsFrom(m_number); }
    /// Brings the observer up to date.
    void resetChanged(LastChangeId& last) const { last.take(m_number); }

    /// The next number: the lowest follows the highest. Signed overflow would be undefined.
    static constexpr int after(int number) { return static_cast<int>(static_cast<unsigned>(number) + 1u); }

private:
    int m_number = 1;
};

} // namespace vxgraphics3d
