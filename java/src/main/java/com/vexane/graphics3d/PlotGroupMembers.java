package com.vexane.graphics3d;

import java.lang.ref.WeakReference;
import java.util.HashMap;
import java.util.Map;
import java.util.WeakHashMap;

/**
 * The plots that Java code has added to one plot group, shared by all peers of the group, so that
 * {@link SceneGraphPlotGroup#addPlot} can refuse a plot that is in a group.
 *
 * <p>It lives while a peer of the group is open, which is as long as Java code can be sure that the group exists. Its
 * peers hold it; everything else refers to it weakly, so that peers that are lost do not keep it.
 *
 * <p>Not noticed are plots that native code adds or removes. A plot that gets no texture handles counts as added if the
 * group has another plot with its id; removing that id corrects this.
 */
final class PlotGroupMembers {
    /** What is known of one plot, shared by its peers. */
    static final class Member {
        /** The group that the plot is in; null for none. */
        private WeakReference<PlotGroupMembers> group;

        boolean isInGroup() {
            return group != null && group.get() != null;
        }
    }

    private record Group(long objectNumber) {}

    /** The members of each group with an open peer. Each key is held by its members alone. */
    private static final Map<Group, WeakReference<PlotGroupMembers>> GROUPS = new WeakHashMap<>();

    private final Group key;
    private final WeakReference<PlotGroupMembers> self = new WeakReference<>(this);
    private final Map<Integer, Member> members = new HashMap<>();
    private int openPeers = 1;

    private PlotGroupMembers(Group key) {
        this.key = key;
    }

    /** {@return the members of a new group, for its first peer} */
    static PlotGroupMembers ofNew(long objectNumber) {
        PlotGroupMembers made = new PlotGroupMembers(new Group(objectNumber));
        synchronized (GROUPS) {
            // An equal key of a group that was lost would stay when only the value is replaced.
            GROUPS.remove(made.key);
            GROUPS.put(made.key, made.self);
        }
        return made;
    }

    /** {@return the members of a group, for one more peer} */
    static PlotGroupMembers of(long objectNumber) {
        synchronized (GROUPS) {
            WeakReference<PlotGroupMembers> found = GROUPS.get(new Group(objectNumber));
            PlotGroupMembers known = found == null ? null : found.get();
            if (known == null) {
                return ofNew(objectNumber);
            }
            ++known.openPeers;
            return known;
        }
    }

    /** Called when a peer of the group is closed. With the last one all plots are forgotten. */
    void leave() {
        synchronized (GROUPS) {
            if (--openPeers == 0) {
                // The native group has been released, and another thread may already have made one of the same number.
                GROUPS.remove(key, self);
                removeAll();
            }
        }
    }

    /** {@return what is known of a plot that is in the group} */
    Member memberOf(int plotId) {
        return members.computeIfAbsent(plotId, id -> {
            Member member = new Member();
            member.group = self;
            return member;
        });
    }

    /** Notes a plot that has been added. Another plot with the same id is no longer in the group. */
    void put(int plotId, Member member) {
        remove(plotId);
        members.put(plotId, member);
        member.group = self;
    }

    void remove(int plotId) {
        Member removed = members.remove(plotId);
        if (removed != null) {
            removed.group = null;
        }
    }

    void removeAll() {
        members.values().forEach(member -> member.group = null);
        members.clear();
    }
}
