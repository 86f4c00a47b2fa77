#pragma once

#include <concepts>
#include <cstddef>
#include <type_traits>

namespace vxbase {

/// The last component of a path.
constexpr const char* fileNameOf(const char* path)
{
    const char* name = path;
    for (; *path != '\0'; ++path) {
        if (*path == '/' || *path == '\\') {
            name = path + 1;
        }
    }
    return name;
}

/// The text of a boolean in a log line.
constexpr const char* trueFalse(bool value)
{
    return value ? "true" : "false";
}

/// An argument as it is passed to a function like `printf`: a float widens to double.
template <class T>
constexpr auto printable(T value)
{
    if constexpr (std::same_as<T, float>) {
        return static_cast<double>(value);
    } else {
        return value;
    }
}

namespace detail {

/// Whether an argument of type T matches the conversion character c of a log text.
template <class T>
consteval bool fitsConversion(char c)
{
    switch (c) {
    case 'd':
        return std::same_as<T, int> || std::same_as<T, short>;
    case 'u':
        return std::same_as<T, unsigned>;
    case 'f':
    case 'g':
        return std::same_as<T, float> || std::same_as<T, double>;
    case 's':
        return std::same_as<T, const char*> || std::same_as<T, char*>;
    default:
        return false;
    }
}

/// Whether the conversions of a printf text match the argument types exactly and in order.
template <class... Args>
consteval bool fitsArguments(const char* text)
{
    std::size_t used = 0;
    for (; *text != '\0'; ++text) {
        if (*text != '%') {
            continue;
        }
        ++text;
        if (*text == '%') {
            continue;
        }
        std::size_t position = 0;
        if (!((position++ == used ? fitsConversion<Args>(*text) : false) || ...)) {
            return false;
        }
        ++used;
    }
    return used == sizeof...(Args);
}

} // namespace detail

/// A printf text that the compiler has checked against the types of its arguments, with its source location.
///
/// Made implicitly from a string literal, so user input can never become a format. The location comes from default
/// arguments, which refer to the caller's line.
template <class... Args>
struct LogText {
    const char* text;
    const char* file;
    int line;

    /// Separates the arguments of a message from the location, which callers never pass.
    struct Here {
        explicit constexpr Here() = default;
    };

    consteval LogText(const char* format, Here = Here(), const char* path = __builtin_FILE(),
                      int place = __builtin_LINE())
        : text(format), file(fileNameOf(path)), line(place)
    {
        if (!detail::fitsArguments<Args...>(format)) {
            throw "the conversions of a log text do not match its arguments";
        }
    }
};

} // namespace vxbase
