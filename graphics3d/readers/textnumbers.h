#pragma once

namespace vxgraphics3d {

/// Reads the real at the start of a text, as `strtod` does in the "C" locale, whatever locale the process has set: the
/// same grammar (leading white space, sign, decimal and hexadecimal digits, infinities, not-a-number) and the same
/// bits. Common decimal numbers take a short way that is several times as fast.
/// @param text moves past the real; stays where it is if there is none
/// @return whether there is a real
bool readReal(const char*& text, double& value);

/// Reads the integer at the start of a text, as `strtol` does in base 10: leading white space, sign, digits, and the
/// nearest limit of `long` if the number is too large.
/// @param text moves past the integer; stays where it is if there is none
/// @return whether there is an integer
bool readInteger(const char*& text, long& value);

} // namespace vxgraphics3d
