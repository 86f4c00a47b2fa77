#pragma once

namespace vxgraphics3d {

/// Reads the real at the start of a text, as `strtod` does in the "C" locale, independent of the locale of the process:
/// the same grammar (leading white space, sign, decimal and hexadecimal digits, infinities, NaN) and the same bits.
/// Common decimal numbers take a fast path that is several times as fast.
/// @param text moves past the real; unchanged if there is none
/// @return whether there is a real
bool readReal(const char*& text, double& value);

/// Reads the integer at the start of a text, as `strtol` does in base 10: leading white space, sign, digits, and the
/// nearest limit of `long` if the number is too large.
/// @param text moves past the integer; unchanged if there is none
/// @return whether there is an integer
bool readInteger(const char*& text, long& value);

} // namespace vxgraphics3d
