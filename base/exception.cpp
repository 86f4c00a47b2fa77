#include "base/exception.h"

#include <utility>

namespace vxbase {

Exception::Exception(std::string file, int line, std::string key) : Exception(std::move(file), line, std::move(key), {})
{}

Exception::Exception(std::string file, int line, std::string key, std::string detail)
    : m_file(std::move(file)), m_line(line), m_key(std::move(key)), m_detail(std::move(detail))
{}

Exception::~Exception() = default;

const char* Exception::what() const noexcept
{
    return m_detail.empty() ? m_key.c_str() : m_detail.c_str();
}

} // namespace vxbase
