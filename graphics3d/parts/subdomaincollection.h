#pragma once

#include "graphics3d/parts/ipartcollection.h"
#include "graphics3d/parts/markcounts.h"
#include "graphics3d/parts/subdomain.h"

#include <cstddef>
#include <memory>

namespace vxgraphics3d {

/// The subdomains of an object, by value. They get no marks from other parts, since no part is of a higher level.
class VX_API SubdomainCollection : public IPartCollection {
public:
    /// Deletes all subdomains and makes space for `count` new ones; with a count below 1 there is no array.
    void allocateParts(int count);
    /// Deletes all subdomains and the array.
    void resetParts() { allocateParts(0); }
    /// Adds a subdomain and returns its index.
    /// @throws std::out_of_range if all subdomains have been added
    int addPart();
    /// Sets the box of a subdomain, which has geometry if the box is valid.
    void setPartBoundingBox(int index, const BoundingBox& box);
    /// Stores the numbers of the parts adjacent to one: points, lines, sheets.
    void setAdjacentCounts(int index, int points, int lines, int sheets);

    /// Labels a subdomain. Returns false if it has a label already, or no geometry.
    bool setPartLabel(int index, const vxbase::UString& text, const Vector3f& position);
    void removePartLabel(int index);

    int getCapacity() const { return m_capacity; }
    int getNumParts() const { return m_numParts; }
    const Subdomain& getPart(int index) const { return m_parts[static_cast<std::size_t>(index)]; }
    /// The number of parts with marks that decide how they look.
    int getNumMarked() const { return m_marks.getNumMarked(); }
    /// The number of parts with a primary mark of their own.
    int getNumPrimary() const { return m_marks.getNumPrimary(); }
    int getNumLabels() const { return m_numLabels; }

    unsigned short getMarkFlags(int index) const override { return getPart(index).getDisplayFlags(); }
    void setPrimaryMark(bool on, int index) { m_marks.setMark(part(index), MarkPrimary, on); }
    bool isPrimaryMarked(int index) const { return getPart(index).isMarked(MarkPrimary); }
    void setSecondaryMark(bool on, int index) { m_marks.setMark(part(index), MarkSecondary, on); }
    bool isSecondaryMarked(int index) const { return getPart(index).isMarked(MarkSecondary); }
    void setHiddenMark(bool on, int index) { m_marks.setMark(part(index), MarkHidden, on); }
    bool isHiddenMarked(int index) const { return getPart(index).isMarked(MarkHidden); }
    void setUnpickableMark(bool on, int index) { MarkCounts::setUnpickableMark(part(index), on); }
    bool isUnpickableMarked(int index) const { return getPart(index).isMarked(MarkUnpickable); }

    /// Sets or removes a mark of a part's own.
    void setMark(MarkFlags mark, bool on, int index)
    {
        if (mark == MarkUnpickable) {
            setUnpickableMark(on, index);
        } else {
            m_marks.setMark(part(index), mark, on);
        }
    }

private:
    Subdomain& part(int index) { return m_parts[static_cast<std::size_t>(index)]; }

    std::unique_ptr<Subdomain[]> m_parts;
    int m_capacity = 0;
    int m_numParts = 0;
    MarkCounts m_marks;
    int m_numLabels = 0;
};

} // namespace vxgraphics3d
