#pragma once

#include "graphics3d/geometry/objectparts.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxgraphics3d {

/// Marks the parts of an object, and propagates each mark to the adjacent parts of lower levels.
///
/// Primary and secondary marks are counted: a part has the adjacent mark while one of its direct neighbours above is
/// marked. Hidden and unpickable marks have a threshold: a part has the adjacent mark once all parts of its control
/// level are hidden; only that change is propagated, one level down at a time. The cost of a mark is the size of the
/// part's rows; geometry is never visited.
class PartMarking {
public:
    using Action = SceneGraphObject::MarkingType;

    explicit PartMarking(ObjectParts& parts) : m_parts(parts) {}

    /// Sets or removes a part's own mark. Nothing happens if it has the mark already, or has not.
    /// @param level a level that the object has
    /// @throws std::out_of_range if there is no such part
    void mark(int level, int index, Action action, bool on);
    /// The same for all parts of a level.
    void markAll(int level, Action action, bool on);
    /// Removes the marks of all parts of one kind that the object has, or of all kinds, from the highest level to the
    /// points.
    void unmarkAll(ObjectPartType part, Action action);

private:
    template <class Parts>
    void apply(Parts& parts, int level, int index, Action action, bool on);
    void propagateCount(int level, int index, Action action, bool on);
    /// A part whose mark spreads to the parts below.
    struct Source {
        int level;
        int flags; ///< without the mark that spreads
        Action action;
        bool on;
    };
    void propagateThreshold(int index, const Source& source);
    template <class Parts>
    void controlAdjacent(Parts& parts, int level, int index, const Source& source);
    void cascade(int index, const Source& source);

    ObjectParts& m_parts;
};

} // namespace vxgraphics3d
