#pragma once

#include "base/export.h"

#include <exception>
#include <string>

namespace vxbase {

/// A failure with a key that the Java side knows, and the source location where it occurred.
///
/// Thrown by value, caught by reference. Java receives key, detail, file and line in one unchecked exception; other
/// standard exceptions are wrapped into this class at the native boundary.
class VX_API Exception : public std::exception {
public:
    Exception(std::string file, int line, std::string key);
    Exception(std::string file, int line, std::string key, std::string detail);
    Exception(const Exception&) = default;
    ~Exception() override;

    const std::string& getFile() const { return m_file; }
    int getLine() const { return m_line; }
    const std::string& getKey() const { return m_key; }
    const std::string& getDetail() const { return m_detail; }

    /// The detail if there is one, otherwise the key.
    const char* what() const noexcept override;

private:
    std::string m_file;
    int m_line;
    std::string m_key;
    std::string m_detail;
};

} // namespace vxbase
