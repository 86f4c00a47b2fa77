#pragma once

/// Marks a class or function that crosses a library border: it is visible to renderers, producers and the Java side.
/// Everything without the mark stays inside its library (the build hides symbols by default).
#define VX_API __attribute__((visibility("default")))
