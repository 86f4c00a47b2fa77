#pragma once

/// In what form a title is given.
enum class TextFormat : int {
    /// Plain text, in which braces and backslashes are ordinary characters.
    plain = 0,
    /// The markup in which titles are written.
    markup = 1,
};
