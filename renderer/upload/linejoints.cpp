#include "renderer/upload/linejoints.h"

#include <algorithm>
#include <tuple>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

std::vector<JointedPiece> withoutJoints(std::span<const LinePiece> pieces)
{
    std::vector<JointedPiece> joined;
    joined.reserve(pieces.size());
    for (const LinePiece& piece : pieces) {
        joined.push_back({piece, piece.from, piece.to});
    }
    return joined;
}

/// The end of a piece: twice its index, and one more for the end that it runs to.
using End = std::size_t;

const Vector3f& pointOf(std::span<const LinePiece> pieces, End end)
{
    return end % 2 == 0 ? pieces[end / 2].from : pieces[end / 2].to;
}

void join(std::vector<JointedPiece>& pieces, End one, End other)
{
    const auto set = [&](End end, End neighbour) {
        const LinePiece& next = pieces[neighbour / 2].piece;
        (end % 2 == 0 ? pieces[end / 2].before : pieces[end / 2].after) = neighbour % 2 == 0 ? next.to : next.from;
    };
    set(one, other);
    set(other, one);
}

bool follows(const LinePiece& piece, const LinePiece& next)
{
    return piece.to == next.from && piece.uTo == next.uFrom;
}

} // namespace

void JointedPiece::describe()
{
    const auto attribute = [](GLuint location, GLint size, std::ptrdiff_t offset) {
        glEnableVertexAttribArray(location);
        glVertexAttribPointer(location, size, GL_FLOAT, GL_FALSE, sizeof(JointedPiece), offsetPointer(offset));
        glVertexAttribDivisor(location, 1);
    };
    attribute(0, 3, offsetof(LinePiece, from));
    attribute(1, 3, offsetof(LinePiece, to));
    attribute(2, 2, offsetof(LinePiece, uFrom));
    attribute(3, 3, offsetof(JointedPiece, before));
    attribute(4, 3, offsetof(JointedPiece, after));
}

std::vector<JointedPiece> joinRuns(std::span<const LinePiece> pieces)
{
    std::vector<JointedPiece> joined = withoutJoints(pieces);
    std::size_t start = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i + 1 < pieces.size() && follows(pieces[i], pieces[i + 1])) {
            join(joined, 2 * i + 1, 2 * (i + 1));
            continue;
        }
        if (i > start && follows(pieces[i], pieces[start])) {
            join(joined, 2 * i + 1, 2 * start);
        }
        start = i + 1;
    }
    return joined;
}

std::vector<JointedPiece> joinPairs(std::span<const LinePiece> pieces, std::span<const int> vertices)
{
    std::vector<JointedPiece> joined = withoutJoints(pieces);
    const int last = vertices.empty() ? -1 : *std::ranges::max_element(vertices);
    struct Meeting {
        End first = 0;
        End second = 0;
        int count = 0;
    };
    std::vector<Meeting> meetings(static_cast<std::size_t>(last + 1));
    for (End end = 0; end < vertices.size(); ++end) {
        Meeting& meeting = meetings[static_cast<std::size_t>(vertices[end])];
        (meeting.count == 0 ? meeting.first : meeting.second) = end;
        ++meeting.count;
    }
    std::vector<End> single;
    for (const Meeting& meeting : meetings) {
        if (meeting.count == 2 && meeting.first / 2 != meeting.second / 2) {
            join(joined, meeting.first, meeting.second);
        } else if (meeting.count == 1) {
            single.push_back(meeting.first);
        }
    }
    const auto keyOf = [&](End end) {
        const Vector3f& point = pointOf(pieces, end);
        return std::tuple(point.x, point.y, point.z);
    };
    std::ranges::sort(single, [&](End one, End other) {
        return std::tuple_cat(keyOf(one), std::tuple(one)) < std::tuple_cat(keyOf(other), std::tuple(other));
    });
    for (std::size_t i = 0; i < single.size();) {
        std::size_t next = i + 1;
        while (next < single.size() && keyOf(single[next]) == keyOf(single[i])) {
            ++next;
        }
        if (next - i == 2 && single[i] / 2 != single[i + 1] / 2) {
            join(joined, single[i], single[i + 1]);
        }
        i = next;
    }
    return joined;
}

} // namespace vxrenderer
