#pragma once

namespace vxgraphics3d {

/// The pool of numbers under which a renderer keeps the colour table textures of one plot group's plots.
///
/// Handles are the numbers 1 to 256. A new stack gives 1, 2, 3 and so on; a handle that was given back is the next to
/// be taken.
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

    /// Takes the handle on top, or gives -1 when none is left.
    int pop() { return m_top < 0 ? -1 : m_handles[m_top--]; }

    /// Gives a handle back. Only handles that came from this stack may return, so there is always room.
    void push(int handle) { m_handles[++m_top] = handle; }

    /// Number of handles that can still be taken.
    int getNumAvailable() const { return m_top + 1; }

private:
    int m_handles[c_size];
    int m_top = c_size - 1;
};

} // namespace vxgraphics3d
