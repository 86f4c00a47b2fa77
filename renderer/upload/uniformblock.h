#pragma once

#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"

#include <type_traits>

namespace vxrenderer {

/// A record of values that shaders read as a uniform block, set as a whole and used by several programs.
///
/// `Record` is laid out as std140 prescribes and names itself: `c_block` is the name of the block in the shaders,
/// `c_binding` the binding point, one for each block that may be in use at the same time.
template <class Record>
class UniformBlock {
public:
    /// Lets a program read the block.
    /// @throws std::logic_error if the program declares it with another size
    void attach(const GlProgram& program) const
    {
        program.bindBlock(Record::c_block, Record::c_binding, sizeof(Record));
    }

    /// Sets the values for what is drawn from now on.
    void set(const Record& record) const
    {
        static_assert(std::is_trivially_copyable_v<Record> && sizeof(Record) % 16 == 0);
        glBindBufferBase(GL_UNIFORM_BUFFER, Record::c_binding, m_buffer.name());
        glBufferData(GL_UNIFORM_BUFFER, sizeof(Record), &record, GL_STREAM_DRAW);
    }

private:
    GlBuffer m_buffer;
};

} // namespace vxrenderer
