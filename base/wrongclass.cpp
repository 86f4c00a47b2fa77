#include "base/wrongclass.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace vxbase {

namespace {

/// The name of a class without its namespace.
std::string nameOf(const std::type_info& type)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> demangled(abi::__cxa_demangle(type.name(), nullptr, nullptr, &status),
                                                           std::free);
    const std::string name = demangled ? demangled.get() : type.name();
    const std::size_t separator = name.rfind("::");
    return separator == std::string::npos ? name : name.substr(separator + 2);
}

} // namespace

WrongClass::WrongClass(const char* argument, const std::type_info& expected, const std::type_info& found)
    : m_text(std::string("Argument \"") + argument + "\": expected class " + nameOf(expected) + ", found class " +
             nameOf(found) + ".")
{}

WrongClass::~WrongClass() = default;

const char* WrongClass::what() const noexcept
{
    return m_text.c_str();
}

} // namespace vxbase
