#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {

/// An element of a vector, by a number from outside.
/// @param what what an element is called in the message
/// @throws std::out_of_range if there is no such element
template <class Element>
const Element& elementAt(const std::vector<Element>& elements, int index, const char* what)
{
    if (index < 0 || static_cast<std::size_t>(index) >= elements.size()) {
        throw std::out_of_range("There is no " + std::string(what) + " " + std::to_string(index) + ": there are " +
                                std::to_string(elements.size()) + ".");
    }
    return elements[static_cast<std::size_t>(index)];
}

} // namespace vxgraphics3d
