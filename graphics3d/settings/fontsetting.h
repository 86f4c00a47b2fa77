#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"

#include <string>

namespace vxgraphics3d {

/// The font of one kind of text: its name, its size, and a count of changes that tells a renderer to lay the text out
/// again.
///
/// The count belongs to the object and never travels with the value.
class VX_API FontSetting {
public:
    FontSetting() = default;
    /// A new setting with the other's font, whose count is 2.
    FontSetting(const FontSetting& other) { *this = other; }
    /// Copies the other's font and counts a change, even if the fonts are equal; does nothing for the object itself.
    FontSetting& operator=(const FontSetting& other)
    {
        if (this != &other) {
            m_name = other.m_name;
            m_size = other.m_size;
            m_changeCount.raise();
        }
        return *this;
    }

    /// Sets the font and counts a change if name or size differ from the current ones.
    void setFont(const std::string& name, int size)
    {
        if (name != m_name || size != m_size) {
            m_name = name;
            m_size = size;
            m_changeCount.raise();
        }
    }

    int getChangeCount() const { return m_changeCount.get(); }
    const std::string& getName() const { return m_name; }
    /// In points; -1 until a font is set.
    int getSize() const { return m_size; }

private:
    ChangeNumber m_changeCount;
    std::string m_name;
    int m_size = -1;
};

} // namespace vxgraphics3d
