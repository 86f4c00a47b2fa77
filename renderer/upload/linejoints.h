#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/gl/globject.h"

#include <cstddef>
#include <span>
#include <vector>

namespace vxrenderer {

/// A straight piece of a line, with the texture coordinates of its ends.
struct LinePiece {
    vxgraphics3d::Vector3f from;
    vxgraphics3d::Vector3f to;
    float uFrom = 0.0f;
    float uTo = 0.0f;
};

/// A piece with the far ends of its neighbours, as the shaders of lines read it: they let pieces that follow each other
/// meet without a gap and without drawing any pixel twice.
struct JointedPiece {
    LinePiece piece;
    /// `piece.from` itself where no piece ends there.
    vxgraphics3d::Vector3f before;
    /// `piece.to` itself where no piece begins there.
    vxgraphics3d::Vector3f after;

    /// Describes the bound buffer to the bound vertex array: one piece for each instance.
    static void describe();
};
static_assert(sizeof(JointedPiece) == 56 && offsetof(JointedPiece, before) == 32);

/// Joins pieces that follow each other in the list, where one begins where the one before it ends, with the same
/// texture coordinate; a run that returns to its start is closed.
std::vector<JointedPiece> joinRuns(std::span<const LinePiece> pieces);

/// Joins pieces in any order where exactly two of them meet: at the same vertex, or at vertices of their own at the
/// same position.
/// @param vertices two for each piece
std::vector<JointedPiece> joinPairs(std::span<const LinePiece> pieces, std::span<const int> vertices);

} // namespace vxrenderer
