#pragma once

/// The format of a title.
enum class TextFormat : int {
    /// Plain text, in which braces and backslashes are ordinary characters.
    plain = 0,
    /// The markup in which titles are written.
    markup = 1,
};
