#pragma once

#include "graphics3d/plots/vector/scenegraphplotarrow.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {

struct ArrowInput;

/// An arrow plot with an array of records.
template <class Record>
class VX_API ArrowRecords : public SceneGraphPlotArrow {
public:
    using Arrow = Record;

    /// Frees the records, if there are any, which counts as a change of geometry and of shape.
    void resetPlotData() override
    {
        if (getCapacity() > 0) {
            m_arrows.reset();
            noteReset();
        }
    }

    /// The first of `getNumArrows()` records; null before the first allocation.
    const Arrow* getArrows() const { return m_arrows.get(); }

protected:
    using SceneGraphPlotArrow::SceneGraphPlotArrow;

    /// Replaces the array by one that is not yet written; if memory runs out, there is none.
    /// @return its first record
    Arrow* replaceArrows(int count)
    {
        m_arrows.reset();
        noteAllocated(0);
        m_arrows.reset(new Arrow[static_cast<std::size_t>(count)]);
        noteAllocated(count);
        return m_arrows.get();
    }
    Arrow* arrows() { return m_arrows.get(); }

    void allocateArrows(int count)
    {
        if (count < 0) {
            throw std::invalid_argument(std::string(plotClassName(getType())) + " cannot have " +
                                        std::to_string(count) + " arrows.");
        }
        resetPlotData();
        replaceArrows(count);
    }

    /// Fills the plot with an arrow per point, scales all lengths so that the longest arrow has the target length, and
    /// boxes them. Defined in arrowfill.h.
    /// @param arrowAt makes the record of a point with a coordinate in the colour table
    template <class ArrowAt>
    void fillArrows(const ArrowInput& input, ArrowAt arrowAt);

private:
    /// @return the factor of all lengths; nothing if all are 0
    template <class ArrowAt>
    std::optional<double> appendAll(const ArrowInput& input, ArrowAt arrowAt);

    std::unique_ptr<Arrow[]> m_arrows;
};

} // namespace vxgraphics3d
