#pragma once

namespace vxgraphics3d {

/// The pool of numbers that a renderer uses for the colour table textures of one plot group's plots.
///
/// Handles are the numbers 1 to 256. A new stack gives 1, 2, 3 and so on; the handle returned last is taken next.
class TextureHandleStack {
public:
    /// Number of handles in a full stack.
    static constexpr int c_size = 256;

    TextureHandleStack()
    {
        for (int i = 0; i < c_size; ++i) {
            m_handles[i] = c_size - i;
        }
    }

    /// Takes the top handle, or returns -1 if none is left.
    int pop() { return m_top < 0 ? -1 : m_handles[m_top--]; }

    /// Returns a handle. Only handles that came from this stack may be returned, so there is always space.
    void push(int handle) { m_handles[++m_top] = handle; }

    /// Number of handles that can still be taken.
    int getNumAvailable() const { return m_top + 1; }

private:
    int m_handles[c_size];
    int m_top = c_size - 1;
};

} // namespace vxgraphics3d
