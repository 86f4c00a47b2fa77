#pragma once

#include "base/export.h"
#include "graphics3d/parts/markingmodesetup.h"

#include <array>

namespace vxgraphics3d {

/// The marking tables of the process, one for each of three modes. Which mode is in use is the renderer's choice.
///
/// `Canvas3dGlobalSettings` owns the one object that renderers read; a change takes effect when a renderer reads it
/// next. A new object has the default tables.
class VX_API MarkingSetups {
public:
    enum MarkingMode : int { MarkingMode0 = 0, MarkingMode1 = 1, MarkingMode2 = 2 };
    static constexpr int c_numModes = 3;

    MarkingSetups();

    // Each of these throws std::out_of_range if there is no such mode or row, and then changes nothing.

    /// Sets a row and makes it visible.
    void setMarkingSetup(MarkingMode mode, MarkingType row, const Color& sheet, const Color& line, float lineWidth,
                         const Color& point, float pointSize, const Color& label, int polygonLayer);
    /// Makes a row hidden; its colours and sizes are lost.
    void setMarkingSetupHidden(MarkingMode mode, MarkingType row);
    /// Replaces the table of a mode.
    void setMarkingModeSetup(MarkingMode mode, const MarkingModeSetup& setup);

    const MarkingModeSetup& getMarkingModeSetup(MarkingMode mode) const;
    const Marking& getMarking(MarkingMode mode, MarkingType row) const;

private:
    std::array<MarkingModeSetup, c_numModes> m_modes;
};

} // namespace vxgraphics3d
