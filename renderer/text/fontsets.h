#pragma once

#include "renderer/text/fontlibrary.h"
#include "renderer/text/fontset.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace vxrenderer {

/// Keeps the font sets of a renderer, one for each name and size in use.
class FontSets {
public:
    /// The set of a font, made at the first call. It lives until `forget`.
    FontSet& get(const std::string& name, int pixelSize)
    {
        std::unique_ptr<FontSet>& set = m_sets[{name, pixelSize}];
        if (!set) {
            set = std::make_unique<FontSet>(m_library, name, pixelSize);
        }
        return *set;
    }

    std::size_t getSize() const { return m_sets.size(); }
    /// Gives up all sets; open font files stay open.
    void forget() { m_sets.clear(); }

private:
    FontLibrary m_library;
    std::map<std::pair<std::string, int>, std::unique_ptr<FontSet>> m_sets;
};

} // namespace vxrenderer
