#include "base/serialstream.h"

#include <bit>
#include <limits>
#include <stdexcept>
#include <string_view>

namespace vxbase {

namespace {

constexpr char c_boolTag = 'b';
constexpr char c_floatTag = 'f';
constexpr char c_intTag = 'i';
constexpr char c_unsignedTag = 'u';
constexpr char c_commentTag = 'c';

constexpr char c_boolTags[] = {c_boolTag, '\0'};
constexpr char c_floatTags[] = {c_floatTag, '\0'};
constexpr char c_wholeNumberTags[] = {c_intTag, c_unsignedTag, '\0'};

constexpr std::size_t c_wordSize = 4;

std::uint32_t wordAt(const unsigned char* bytes)
{
    std::uint32_t word = 0;
    for (std::size_t i = 0; i < c_wordSize; ++i) {
        word |= static_cast<std::uint32_t>(bytes[i]) << 8 * i;
    }
    return word;
}

std::string place(std::size_t position)
{
    return "Serial data, byte " + std::to_string(position) + ": ";
}

} // namespace

void OSerialStream::write(bool value)
{
    m_bytes.push_back(c_boolTag);
    m_bytes.push_back(value ? '\1' : '\0');
}

void OSerialStream::write(float value)
{
    writeWord(c_floatTag, std::bit_cast<std::uint32_t>(value));
}

void OSerialStream::write(int value)
{
    writeWord(c_intTag, static_cast<std::uint32_t>(value));
}

void OSerialStream::write(unsigned value)
{
    writeWord(c_unsignedTag, value);
}

void OSerialStream::comment(const std::string& text)
{
    if (m_comments == Comments::written && !text.empty()) {
        writeWord(c_commentTag, static_cast<std::uint32_t>(text.size()));
        m_bytes += text;
    }
}

void OSerialStream::writeWord(char tag, std::uint32_t word)
{
    char value[1 + c_wordSize] = {tag};
    for (std::size_t i = 0; i < c_wordSize; ++i) {
        value[1 + i] = static_cast<char>(static_cast<unsigned char>(word >> 8 * i & 0xFF));
    }
    m_bytes.append(value, sizeof value);
}

bool ISerialStream::readBool()
{
    return *take(c_boolTags, 1, "a boolean") != 0;
}

float ISerialStream::readFloat()
{
    return std::bit_cast<float>(wordAt(take(c_floatTags, c_wordSize, "a float")));
}

int ISerialStream::readInt()
{
    const std::size_t start = m_position;
    const unsigned char* value = take(c_wholeNumberTags, c_wordSize, "an int");
    const std::uint32_t word = wordAt(value);
    if (value[-1] == c_unsignedTag && word > static_cast<std::uint32_t>(std::numeric_limits<int>::max())) {
        m_position = start;
        throw std::out_of_range(place(start) + std::to_string(word) + " is too large for an int.");
    }
    return static_cast<int>(word);
}

void ISerialStream::requireNumbers(std::int64_t count) const
{
    const std::size_t room = (m_size - m_position) / (1 + c_wordSize);
    if (count < 0 || static_cast<std::uint64_t>(count) > room) {
        throw std::out_of_range(place(m_position) + "the rest is too short for " + std::to_string(count) + " numbers.");
    }
}

void ISerialStream::skipComments()
{
    while (m_size - m_position > c_wordSize && m_bytes[m_position] == c_commentTag) {
        const std::size_t length = wordAt(m_bytes + m_position + 1);
        const std::size_t begin = m_position + 1 + c_wordSize;
        if (length > m_size - begin) {
            throw std::out_of_range(place(m_position) + "a comment goes past the end.");
        }
        m_position = begin + length;
    }
}

const unsigned char* ISerialStream::take(const char* tags, std::size_t size, const char* wanted)
{
    skipComments();
    const std::size_t rest = m_size - m_position;
    if (rest > 0 && std::string_view(tags).find(static_cast<char>(m_bytes[m_position])) == std::string_view::npos) {
        throw std::invalid_argument(place(m_position) + wanted + " was expected, another type was found.");
    }
    if (rest < 1 + size) {
        throw std::out_of_range(place(m_position) + wanted + " was expected where the data end.");
    }
    const unsigned char* value = m_bytes + m_position + 1;
    m_position += 1 + size;
    return value;
}

} // namespace vxbase
