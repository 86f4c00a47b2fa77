#pragma once

#include "base/export.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace vxbase {

/// Collects typed values as bytes, in the same format on every machine: one byte for the type, then the value with its
/// lowest byte first. A boolean takes two bytes in all, a number five.
class VX_API OSerialStream {
public:
    /// Whether comments are written or dropped. Readers skip them.
    enum class Comments { dropped, written };

    explicit OSerialStream(Comments comments = Comments::dropped) : m_comments(comments) {}

    void write(bool value);
    void write(float value);
    void write(int value);
    void write(unsigned value);
    /// A remark for people who look at the bytes; an empty one separates groups of values and is never written.
    void comment(const std::string& text);

    /// All bytes written so far.
    const std::string& bytes() const { return m_bytes; }

private:
    void writeWord(char tag, std::uint32_t word);

    Comments m_comments;
    std::string m_bytes;
};

/// Reads the values of an OSerialStream in the order in which they were written. The bytes are not copied and must
/// outlive the stream; they may come from any source, since every read is checked.
///
/// A read past the end throws std::out_of_range, a read of another type std::invalid_argument; the position in the
/// stream is then unchanged. An unsigned number can be read as an int if it fits into one.
class VX_API ISerialStream {
public:
    ISerialStream(const void* bytes, std::size_t size) : m_bytes(static_cast<const unsigned char*>(bytes)), m_size(size)
    {}

    bool readBool();
    float readFloat();
    int readInt();

    /// Throws std::out_of_range if a count is negative or if the rest of the bytes is too short for that many numbers.
    /// Use it for counts read from the stream, before memory is allocated for the values that follow.
    void requireNumbers(std::int64_t count) const;

private:
    void skipComments();
    const unsigned char* take(const char* tags, std::size_t size, const char* wanted);

    const unsigned char* m_bytes;
    std::size_t m_size;
    std::size_t m_position = 0;
};

inline OSerialStream& operator<<(OSerialStream& out, bool value)
{
    out.write(value);
    return out;
}

inline OSerialStream& operator<<(OSerialStream& out, float value)
{
    out.write(value);
    return out;
}

inline OSerialStream& operator<<(OSerialStream& out, int value)
{
    out.write(value);
    return out;
}

inline OSerialStream& operator<<(OSerialStream& out, unsigned value)
{
    out.write(value);
    return out;
}

inline ISerialStream& operator>>(ISerialStream& in, bool& value)
{
    value = in.readBool();
    return in;
}

inline ISerialStream& operator>>(ISerialStream& in, float& value)
{
    value = in.readFloat();
    return in;
}

inline ISerialStream& operator>>(ISerialStream& in, int& value)
{
    value = in.readInt();
    return in;
}

} // namespace vxbase
