#pragma once

#include "base/export.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <typeinfo>

namespace vxbase {

/// An argument refers to an object of the wrong class. The text names the argument, and the classes expected and found:
/// "Argument \"child\": expected class SceneGraphNode, found class Scene."
///
/// Class names are those of C++ without namespaces, which match the Java peers where there is one.
class VX_API WrongClass : public std::bad_cast {
public:
    WrongClass(const char* argument, const std::type_info& expected, const std::type_info& found);
    ~WrongClass() override;
    const char* what() const noexcept override;

private:
    std::string m_text;
};

/// The object as one of a derived class.
/// @param argument the name of the argument that refers to the object, for the message
/// @throws WrongClass if it is of another class
template <class T, class Base>
T& castTo(Base& object, const char* argument)
{
    if (auto* cast = dynamic_cast<T*>(&object)) {
        return *cast;
    }
    throw WrongClass(argument, typeid(T), typeid(object));
}

/// The same for a shared pointer; a null pointer stays one.
template <class T, class Base>
boost::shared_ptr<T> castTo(const boost::shared_ptr<Base>& object, const char* argument)
{
    return object ? boost::shared_ptr<T>(object, &castTo<T>(*object, argument)) : nullptr;
}

} // namespace vxbase
