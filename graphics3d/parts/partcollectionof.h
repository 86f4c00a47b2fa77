#pragma once

#include "base/ustring.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/parts/iselectablepartcollection.h"
#include "graphics3d/parts/markcounts.h"

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <utility>

namespace vxgraphics3d {

/// The common part of the collections of points, lines and sheets: the array of parts, which it owns, their marks and
/// their labels.
///
/// A collection is allocated for the final number of parts, then filled one by one; parts never leave singly. Derived
/// classes add how a part is made and filled.
template <class Part>
class VX_API PartCollectionOf : public ISelectablePartCollection {
public:
    /// Deletes all parts and makes space for `count` new ones; with a count below 1 there is no array.
    void allocateParts(int count)
    {
        std::unique_ptr<std::unique_ptr<Part>[]> parts;
        if (count > 0) {
            parts = std::make_unique<std::unique_ptr<Part>[]>(static_cast<std::size_t>(count));
        }
        m_parts = std::move(parts);
        m_capacity = count;
        m_numParts = 0;
        m_marks = {};
        m_numLabels = 0;
    }
    /// Deletes all parts and the array.
    void resetParts() { allocateParts(0); }

    /// Stores the numbers of the parts adjacent to one, see `SelectablePart`.
    void setAdjacentCounts(int index, int first, int second, int third)
    {
        part(index).setAdjacentCounts(first, second, third);
    }

    /// Labels a part. Returns false if it has a label already, or nothing that a label could be placed at.
    bool setPartLabel(int index, const vxbase::UString& text)
    {
        if (part(index).getLabel() || !part(index).setLabel(text)) {
            return false;
        }
        ++m_numLabels;
        return true;
    }
    void removePartLabel(int index)
    {
        m_numLabels -= part(index).getLabel() ? 1 : 0;
        part(index).removeLabel();
    }

    int getCapacity() const { return m_capacity; }
    int getNumParts() const { return m_numParts; }
    const Part& getPart(int index) const { return *m_parts[static_cast<std::size_t>(index)]; }
    /// The number of parts with marks that decide how they look.
    int getNumMarked() const { return m_marks.getNumMarked(); }
    /// The number of parts with a primary mark of their own.
    int getNumPrimary() const { return m_marks.getNumPrimary(); }
    int getNumLabels() const { return m_numLabels; }

    /// Merges into `box` the boxes of the parts that have no display flag of `exclude` and, unless `include` is 0, one
    /// of `include`.
    void mergeMarkedBoxes(BoundingBox& box, int include, int exclude) const
    {
        for (int i = 0; i < m_numParts; ++i) {
            const int flags = getPart(i).getDisplayFlags();
            if ((include == 0 || (flags & include) != 0) && (flags & exclude) == 0) {
                box.merge(getPart(i).getBoundingBox());
            }
        }
    }

    // Final, so that calls for a known collection need no dispatch.

    unsigned short getMarkFlags(int index) const final { return getPart(index).getDisplayFlags(); }
    void setPrimaryMark(bool on, int index) final { m_marks.setMark(part(index), MarkPrimary, on); }
    bool isPrimaryMarked(int index) const final { return getPart(index).isMarked(MarkPrimary); }
    void setSecondaryMark(bool on, int index) final { m_marks.setMark(part(index), MarkSecondary, on); }
    bool isSecondaryMarked(int index) const final { return getPart(index).isMarked(MarkSecondary); }
    void setHiddenMark(bool on, int index) final { m_marks.setMark(part(index), MarkHidden, on); }
    bool isHiddenMarked(int index) const final { return getPart(index).isMarked(MarkHidden); }
    void setUnpickableMark(bool on, int index) final { MarkCounts::setUnpickableMark(part(index), on); }
    bool isUnpickableMarked(int index) const final { return getPart(index).isMarked(MarkUnpickable); }
    void adjacentPrimaryMark(bool on, int index) final { m_marks.adjacentPrimaryMark(part(index), on); }
    void adjacentSecondaryMark(bool on, int index) final { m_marks.adjacentSecondaryMark(part(index), on); }
    bool adjacentHiddenMark(bool on, int index, int level, int sourceFlags) final
    {
        return m_marks.adjacentHiddenMark(part(index), on, level, sourceFlags);
    }
    bool adjacentUnpickableMark(bool on, int index, int level, int sourceFlags) final
    {
        return MarkCounts::adjacentUnpickableMark(part(index), on, level, sourceFlags);
    }

    /// Sets or removes a mark of a part's own.
    void setMark(MarkFlags mark, bool on, int index)
    {
        if (mark == MarkUnpickable) {
            setUnpickableMark(on, index);
        } else {
            m_marks.setMark(part(index), mark, on);
        }
    }

protected:
    /// Sets or removes the mark of a part that has a mesh.
    void markMeshed(int index, bool on) { m_marks.setMark(part(index), MarkMeshed, on); }

    Part& part(int index) { return *m_parts[static_cast<std::size_t>(index)]; }

    /// Stores the next part, of which the collection becomes the owner, and returns its index.
    /// @throws std::out_of_range if all parts have been added
    int append(std::unique_ptr<Part> part)
    {
        if (m_numParts >= m_capacity) {
            throw std::out_of_range("The collection has all of its parts.");
        }
        m_parts[static_cast<std::size_t>(m_numParts)] = std::move(part);
        return m_numParts++;
    }

private:
    std::unique_ptr<std::unique_ptr<Part>[]> m_parts;
    int m_capacity = 0;
    int m_numParts = 0;
    MarkCounts m_marks;
    int m_numLabels = 0;
};

} // namespace vxgraphics3d
