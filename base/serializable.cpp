#include "base/serializable.h"

namespace vxbase {

Serializable::~Serializable() = default;

bool Serializable::isOfType(const std::string& name) const
{
    return getTypeName() == name;
}

} // namespace vxbase
