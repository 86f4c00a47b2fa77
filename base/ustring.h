#pragma once

#include "base/export.h"

#include <cstddef>
#include <string>

namespace vxbase {

/// A text of 16-bit units in UTF-16, as in Java, so that a text crosses the boundary without conversion.
///
/// Narrow texts are UTF-8; each part that is not valid UTF-8 becomes one replacement character U+FFFD. An unpaired
/// surrogate, which a Java string may contain, is kept as it is. An empty text owns no memory.
class VX_API UString {
public:
    /// Iterates over the characters of a text, which must outlive it.
    class VX_API const_iterator {
    public:
        explicit const_iterator(const UString& text) : m_next(text.data()), m_end(text.data() + text.size()) {}

        bool hasNext() const { return m_next != m_end; }
        /// The next character, a surrogate pair as one character; 0 at the end.
        unsigned long next();

    private:
        const char16_t* m_next;
        const char16_t* m_end;
    };

    UString() = default;
    /// Takes a text in UTF-8; null is the empty text.
    UString(const char* utf8);
    /// Takes a text in UTF-8, which may contain null characters.
    UString(const std::string& utf8);
    /// Takes the units as they are.
    UString(const char16_t* units, std::size_t count) : m_units(units, count) {}

    UString& assign(const UString& other);
    UString& append(const UString& other);
    /// Appends one character, above U+FFFF as a surrogate pair; a number above U+10FFFF as U+FFFD.
    UString& append(unsigned long character);
    void clear() { m_units.clear(); }
    /// Reserves space for a total of `units` units.
    void reserve(std::size_t units) { m_units.reserve(units); }

    bool empty() const { return m_units.empty(); }
    /// Number of 16-bit units.
    std::size_t size() const { return m_units.size(); }
    /// The units, followed by a 0.
    const char16_t* data() const { return m_units.c_str(); }
    /// The text in UTF-8; an unpaired surrogate becomes U+FFFD.
    std::string toUtf8() const;

    bool operator==(const UString& other) const = default;

private:
    std::u16string m_units;
};

} // namespace vxbase
