#include "graphics3d/geometry/scenegraphdrawobjectcurve.h"
#include "graphics3d/geometry/scenegraphdrawobjectface.h"
#include "graphics3d/geometry/scenegraphdrawobjectpoint.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "tests/support/randomgeometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>
#include <vector>

namespace vxgraphics3d {
namespace {

using Action = SceneGraphObject::MarkingType;

constexpr Action c_actions[] = {SceneGraphObject::MarkingPrimary, SceneGraphObject::MarkingSecondary,
                                SceneGraphObject::MarkingHidden, SceneGraphObject::MarkingUnpickable};
constexpr MarkFlags c_own[] = {MarkPrimary, MarkSecondary, MarkHidden, MarkUnpickable};
constexpr MarkFlags c_adjacent[] = {MarkPrimaryAdjacent, MarkSecondaryAdjacent, MarkHiddenAdjacent,
                                    MarkUnpickableAdjacent};

void mark(SceneGraphDrawObject& object, int level, int index, Action action, bool on)
{
    object.mark(static_cast<ObjectPartType>(level), index, action, on);
}

void mark(SceneGraphPhysicsObject& object, int level, int index, Action action, bool on)
{
    switch (level) {
    case PartPoint:
        on ? object.markPoint(index, action) : object.unmarkPoint(index, action);
        break;
    case PartLine:
        on ? object.markEdge(index, action) : object.unmarkEdge(index, action);
        break;
    case PartSheet:
        on ? object.markBoundary(index, action) : object.unmarkBoundary(index, action);
        break;
    default:
        on ? object.markSubdomain(index, action) : object.unmarkSubdomain(index, action);
        break;
    }
}

/// What the marks of all parts have to be, computed from the record and from the list of parts that have been marked.
class ExpectedMarks {
public:
    struct Part {
        std::array<bool, 4> own{};
        /// The marked neighbours above, by action; of the control level only for the last two.
        std::array<int, 4> counts{};
        unsigned flags = 0;
        int controlLevel = SelectablePart::c_noControl;
        int controlCount = 0;
        /// The neighbours above that are not hidden, by level.
        std::array<int, 4> shown{};
    };

    ExpectedMarks(const vxdatacarrier::Geometry3D& record, int highest) : m_record(record), m_highest(highest)
    {
        const int counts[] = {record.m_numPoints, record.m_numCurves, record.m_numSheets, record.m_numSubdomains};
        for (int level = 0; level <= highest; ++level) {
            m_parts[at(level)].resize(at(counts[level]));
        }
    }

    std::vector<Part>& level(int level) { return m_parts[at(level)]; }
    int highest() const { return m_highest; }

    void setOwn(int level, Action action, bool on)
    {
        for (Part& part : m_parts[at(level)]) {
            part.own[at(action)] = on;
        }
    }

    void recompute()
    {
        for (int level = m_highest; level >= 0; --level) {
            for (std::size_t i = 0; i < m_parts[at(level)].size(); ++i) {
                recompute(level, static_cast<int>(i));
            }
        }
    }

private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }

    const vxdatacarrier::AdjacencyRecord& below(int level, int lower) const
    {
        const vxdatacarrier::AdjacencyRecord* relations[4][3] = {
            {},
            {&m_record.m_lineToPoint},
            {&m_record.m_sheetToPoint, &m_record.m_sheetToLine},
            {&m_record.m_subdomainToPoint, &m_record.m_subdomainToLine, &m_record.m_subdomainToSheet}};
        return *relations[level][lower];
    }

    void recompute(int level, int index)
    {
        Part& part = m_parts[at(level)][at(index)];
        const std::array<bool, 4> own = part.own;
        part = {};
        part.own = own;
        for (int upper = level + 1; upper <= m_highest; ++upper) {
            for (std::size_t i = 0; i < m_parts[at(upper)].size(); ++i) {
                for (const int value : valuesOf(below(upper, level), i)) {
                    if (value == index) {
                        addNeighbour(part, level, upper, m_parts[at(upper)][i]);
                    }
                }
            }
        }
        for (std::size_t action = 0; action < 4; ++action) {
            part.flags |= own[action] ? c_own[action] : 0u;
            const bool isAdjacent = action < 2 ? part.counts[action] > 0
                                               : part.controlCount > 0 && part.counts[action] >= part.controlCount;
            part.flags |= isAdjacent ? c_adjacent[action] : 0u;
        }
    }

    /// Neighbours come in the order of their levels, so the first one decides over the control level.
    static void addNeighbour(Part& part, int level, int upper, const Part& neighbour)
    {
        part.controlLevel = std::min(part.controlLevel, upper);
        part.controlCount += part.controlLevel == upper ? 1 : 0;
        part.shown[at(upper)] += (neighbour.flags & (MarkHidden | MarkHiddenAdjacent)) == 0 ? 1 : 0;
        for (std::size_t action = 0; action < 4; ++action) {
            if (action < 2) {
                part.counts[action] += neighbour.own[action] ? 1 : 0;
            } else if (part.controlLevel == upper) {
                // A neighbour counts twice if it is hidden by itself and by its own neighbours, of which only the level
                // directly above passes on.
                part.counts[action] += neighbour.own[action] ? 1 : 0;
                part.counts[action] += upper == level + 1 && (neighbour.flags & c_adjacent[action]) != 0 ? 1 : 0;
            }
        }
    }

    const vxdatacarrier::Geometry3D& m_record;
    int m_highest;
    std::array<std::vector<Part>, 4> m_parts;
};

template <class Parts>
void compareLevel(const Parts& parts, int level, ExpectedMarks& expected, bool areOnlyHidden)
{
    int numMarked = 0;
    int numPrimary = 0;
    ASSERT_EQ(parts.getNumParts(), static_cast<int>(expected.level(level).size()));
    for (int i = 0; i < parts.getNumParts(); ++i) {
        const SelectablePart& part = parts.getPart(i);
        const ExpectedMarks::Part& wanted = expected.level(level)[static_cast<std::size_t>(i)];
        ASSERT_EQ(part.getMarkFlags(), wanted.flags) << "level " << level << ", part " << i;
        const SelectablePart::AdjacentMarks& marks = part.getAdjacentMarks();
        ASSERT_EQ((std::array{marks.primary, marks.secondary, marks.hidden, marks.unpickable}), wanted.counts)
            << "level " << level << ", part " << i;
        ASSERT_EQ(part.getControlLevel(), wanted.controlLevel);
        ASSERT_EQ(part.getControlCount(), wanted.controlCount);
        // The sheets at a point are not counted here: the points of a sheet do not see that its neighbours hide it.
        for (int upper = level + 1; upper <= expected.highest() && areOnlyHidden; ++upper) {
            if (level != PartPoint || upper != PartSheet) {
                ASSERT_EQ(part.getAdjacentCount(upper), wanted.shown[static_cast<std::size_t>(upper)])
                    << "level " << level << ", part " << i << ", above " << upper;
            }
        }
        numMarked += (wanted.flags & 0xffff) != 0 ? 1 : 0;
        numPrimary += (wanted.flags & MarkPrimary) != 0 ? 1 : 0;
    }
    ASSERT_EQ(parts.getNumMarked(), numMarked) << "level " << level;
    ASSERT_EQ(parts.getNumPrimary(), numPrimary) << "level " << level;
}

/// An object filled with random geometry, and what is expected of it.
template <class Object, class Record, int highestLevel>
class Subject {
public:
    explicit Subject(RandomNumbers& random)
        : m_random(random), m_record(recordOf(random)), m_object(Object::create(1)), m_expected(m_record, highestLevel)
    {
        m_object->fillData(m_record);
    }

    void markSome(bool areOnlyHidden)
    {
        const Action action = areOnlyHidden ? c_actions[2] : c_actions[m_random.integer(0, 3)];
        const int kind = m_random.integer(0, 11);
        if (kind == 0) {
            const int part = m_random.integer(PartPoint, PartAll);
            m_object->unmarkAll(static_cast<ObjectPartType>(part), action);
            for (int level = 0; level <= highestLevel; ++level) {
                if (part == level || part == PartAll) {
                    m_expected.setOwn(level, action, false);
                }
            }
        } else if (kind == 1) {
            markWhole(action, m_random.integer(0, 1) > 0);
        } else {
            markPart(action);
        }
        compare(areOnlyHidden);
    }

    /// Hides every part by itself, in a random order of levels, and shows all of them again in another.
    void hideAndShow()
    {
        for (const bool on : {true, false}) {
            const int first = m_random.integer(0, highestLevel);
            for (int k = 0; k <= highestLevel; ++k) {
                const int level = (first + k) % (highestLevel + 1);
                for (int i = 0; i < m_object->getParts().getNumParts(level); ++i) {
                    mark(*m_object, level, i, SceneGraphObject::MarkingHidden, on);
                }
                m_expected.setOwn(level, SceneGraphObject::MarkingHidden, on);
                compare(true);
            }
        }
        EXPECT_EQ(m_object->getParts().getLines().getNumMarked(), 0);
    }

private:
    static Record recordOf(RandomNumbers& random)
    {
        Record record;
        record.m_id = 1;
        RandomGeometry(random, Vector3f(), 1.0f).fill(record);
        return record;
    }

    void markPart(Action action)
    {
        const int level = m_random.integer(0, highestLevel);
        const int numParts = m_object->getParts().getNumParts(level);
        if (numParts > 0) {
            const int index = m_random.integer(0, numParts - 1);
            const bool on = m_random.integer(0, 2) > 0;
            mark(*m_object, level, index, action, on);
            m_expected.level(level)[static_cast<std::size_t>(index)].own[static_cast<std::size_t>(action)] = on;
        }
    }

    void markWhole(Action action, bool on)
    {
        if constexpr (std::is_base_of_v<SceneGraphDrawObject, Object>) {
            m_object->mark(action, on);
            m_expected.setOwn(highestLevel, action, on);
            if (highestLevel == PartSolid) {
                m_expected.setOwn(PartSheet, action, on);
                const unsigned flags = m_object->getObjectPart().getMarkFlags();
                const unsigned own = c_own[action] & (MarkHidden | MarkUnpickable);
                ASSERT_EQ(flags & own, on ? own : 0u);
            }
        }
    }

    void compare(bool areOnlyHidden)
    {
        m_expected.recompute();
        const ObjectParts& parts = m_object->getParts();
        compareLevel(parts.getPoints(), PartPoint, m_expected, areOnlyHidden);
        compareLevel(parts.getLines(), PartLine, m_expected, areOnlyHidden);
        compareLevel(parts.getSheets(), PartSheet, m_expected, areOnlyHidden);
        compareLevel(parts.getSubdomains(), PartSolid, m_expected, areOnlyHidden);
    }

    RandomNumbers& m_random;
    Record m_record;
    boost::shared_ptr<Object> m_object;
    ExpectedMarks m_expected;
};

template <class Subject>
class PartMarking : public testing::Test {};

using vxdatacarrier::RenderDraw3D;
using vxdatacarrier::RenderGeom3D;
using Subjects = testing::Types<Subject<SceneGraphDrawObjectPoint, RenderDraw3D, PartPoint>,
                                Subject<SceneGraphDrawObjectCurve, RenderDraw3D, PartLine>,
                                Subject<SceneGraphDrawObjectFace, RenderDraw3D, PartSheet>,
                                Subject<SceneGraphDrawObjectSolid, RenderDraw3D, PartSolid>,
                                Subject<SceneGraphPhysicsObject, RenderGeom3D, PartSolid>>;
TYPED_TEST_SUITE(PartMarking, Subjects);

TYPED_TEST(PartMarking, everyFlagAndCountFollowsFromThePartsThatWereMarked)
{
    RandomNumbers random(20);
    for (int run = 0; run < 200 && !this->HasFatalFailure(); ++run) {
        TypeParam subject(random);
        for (int i = 0; i < 40 && !this->HasFatalFailure(); ++i) {
            subject.markSome(run % 4 == 0);
        }
    }
}

TYPED_TEST(PartMarking, everythingThatIsHiddenAndShownAgainIsAsBefore)
{
    RandomNumbers random(21);
    for (int run = 0; run < 200 && !this->HasFatalFailure(); ++run) {
        TypeParam(random).hideAndShow();
    }
}

} // namespace
} // namespace vxgraphics3d
