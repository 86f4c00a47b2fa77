#pragma once

#include "base/export.h"

#include <cstddef>
#include <string>

namespace vxbase {

/// A text of 16-bit units in UTF-16: what Java holds, so that a text crosses the boundary without a change of form.
///
/// Narrow texts come in as UTF-8; each part of them that is no UTF-8 becomes one replacement character U+FFFD.
/// A surrogate without its partner, which a Java string may hold, is kept as it is. An empty text owns no memory.
class VX_API UString {
public:
    /// Walks over the characters of a text; it must not outlive the text.
    class VX_API const_iterator {
    public:
        explicit const_iterator(const UString& text) : m_next(text.data()), m_end(text.data() + text.size()) {}

        bool hasNext() const { return m_next != m_end; }
        /// The next character, a surrogate pair as one; at the end 0.
        unsigned long next();

    private:
        const char16_t* m_next;
        const char16_t* m_end;
    };

    UString() = default;
    /// Takes a text in UTF-8; null is the empty text.
    UString(const char* utf8);
    /// Takes a text in UTF-8, which may hold characters 0.
    UString(const std::string& utf8);
    /// Takes the units as they are.
    UString(const char16_t* units, std::size_t count) : m_units(units, count) {}

    UString& assign(const UString& other);
    UString& append(const UString& other);
    /// Appends one character, above U+FFFF as a surrogate pair; a number above U+10FFFF as U+FFFD.
    UString& append(unsigned long character);
    void clear() { m_units.clear(); }
    /// Makes room for so many units in all.
    void reserve(std::size_t units) { m_units.reserve(units); }

    bool empty() const { return m_units.empty(); }
    /// Number of 16-bit units.
    std::size_t size() const { return m_units.size(); }
    /// The units, with a 0 behind the last one.
    const char16_t* data() const { return m_units.c_str(); }
    /// The text in UTF-8; a surrogate without its partner becomes U+FFFD.
    std::string toUtf8() const;

    bool operator==(const UString& other) const = default;

private:
    std::u16string m_units;
};

} // namespace vxbase
