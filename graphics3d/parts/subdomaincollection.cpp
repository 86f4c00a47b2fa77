#include "graphics3d/parts/subdomaincollection.h"

#include <stdexcept>
#include <utility>

namespace vxgraphics3d {

void SubdomainCollection::allocateParts(int count)
{
    std::unique_ptr<Subdomain[]> parts;
    if (count > 0) {
        parts = std::make_unique<Subdomain[]>(static_cast<std::size_t>(count));
    }
    m_parts = std::move(parts);
    m_capacity = count;
    m_numParts = 0;
    m_marks = {};
    m_numLabels = 0;
}

int SubdomainCollection::addPart()
{
    if (m_numParts >= m_capacity) {
        throw std::out_of_range("The collection has all of its parts.");
    }
    return m_numParts++;
}

void SubdomainCollection::setPartBoundingBox(int index, const BoundingBox& box)
{
    part(index).setBoundingBox(box);
    part(index).m_hasGeometry = box.isValid();
}

void SubdomainCollection::setAdjacentCounts(int index, int points, int lines, int sheets)
{
    part(index).setAdjacentCounts(points, lines, sheets);
}

bool SubdomainCollection::setPartLabel(int index, const vxbase::UString& text, const Vector3f& position)
{
    Subdomain& subdomain = part(index);
    if (subdomain.getLabel() || !subdomain.m_hasGeometry) {
        return false;
    }
    subdomain.m_label.set(text, position);
    ++m_numLabels;
    return true;
}

void SubdomainCollection::removePartLabel(int index)
{
    Subdomain& subdomain = part(index);
    m_numLabels -= subdomain.getLabel() ? 1 : 0;
    subdomain.m_label.remove();
}

} // namespace vxgraphics3d
