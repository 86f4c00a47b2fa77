#include "base/ustring.h"

#include <string_view>

namespace vxbase {

namespace {

constexpr unsigned long c_replacement = 0xFFFD;
constexpr unsigned long c_lastCharacter = 0x10FFFF;

constexpr bool isHighSurrogate(unsigned long unit)
{
    return (unit & ~0x3FFul) == 0xD800;
}

constexpr bool isLowSurrogate(unsigned long unit)
{
    return (unit & ~0x3FFul) == 0xDC00;
}

void appendUtf16(std::u16string& out, unsigned long character)
{
    if (character > c_lastCharacter) {
        character = c_replacement;
    }
    if (character > 0xFFFF) {
        const unsigned long offset = character - 0x10000;
        out.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
        out.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
    } else {
        out.push_back(static_cast<char16_t>(character));
    }
}

void appendUtf8(std::string& out, unsigned long character)
{
    const auto put = [&](unsigned long byte) { out.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

/// Removes one character from the front of a UTF-8 text that is not empty. The longest invalid start of a character
/// counts as a single U+FFFD.
unsigned long takeUtf8(std::string_view& rest)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(rest[i]); };
    const unsigned long lead = byte(0);
    std::size_t length = 1;
    unsigned long character = lead;
    // The second byte's range excludes overlong forms, surrogates, and everything above the last character.
    unsigned long low = 0x80;
    unsigned long high = 0xBF;
    if (lead >= 0x80) {
        if (lead >= 0xC2 && lead <= 0xDF) {
            length = 2;
            character = lead & 0x1F;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            length = 3;
            character = lead & 0x0F;
            low = lead == 0xE0 ? 0xA0 : low;
            high = lead == 0xED ? 0x9F : high;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            length = 4;
            character = lead & 0x07;
            low = lead == 0xF0 ? 0x90 : low;
            high = lead == 0xF4 ? 0x8F : high;
        } else {
            character = c_replacement;
        }
    }
    std::size_t used = 1;
    for (; used < length; ++used) {
        if (used == rest.size() || byte(used) < low || byte(used) > high) {
            character = c_replacement;
            break;
        }
        character = character << 6 | (byte(used) & 0x3Fu);
        low = 0x80;
        high = 0xBF;
    }
    rest.remove_prefix(used);
    return character;
}

std::u16string fromUtf8(std::string_view utf8)
{
    std::u16string units;
    units.reserve(utf8.size());
    while (!utf8.empty()) {
        appendUtf16(units, takeUtf8(utf8));
    }
    return units;
}

} // namespace

unsigned long UString::const_iterator::next()
{
    if (m_next == m_end) {
        return 0;
    }
    const unsigned long unit = *m_next++;
    if (isHighSurrogate(unit) && m_next != m_end && isLowSurrogate(*m_next)) {
        return 0x10000 + ((unit - 0xD800) << 10) + (*m_next++ - 0xDC00u);
    }
    return unit;
}

UString::UString(const char* utf8) : m_units(utf8 == nullptr ? std::u16string() : fromUtf8(utf8)) {}

UString::UString(const std::string& utf8) : m_units(fromUtf8(utf8)) {}

UString& UString::assign(const UString& other)
{
    m_units = other.m_units;
    return *this;
}

UString& UString::append(const UString& other)
{
    m_units += other.m_units;
    return *this;
}

UString& UString::append(unsigned long character)
{
    appendUtf16(m_units, character);
    return *this;
}

std::string UString::toUtf8() const
{
    std::string utf8;
    utf8.reserve(size());
    const_iterator characters(*this);
    while (characters.hasNext()) {
        const unsigned long character = characters.next();
        appendUtf8(utf8, isHighSurrogate(character) || isLowSurrogate(character) ? c_replacement : character);
    }
    return utf8;
}

} // namespace vxbase
