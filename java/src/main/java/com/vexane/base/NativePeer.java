package com.vexane.base;

import java.lang.ref.PhantomReference;
import java.lang.ref.ReferenceQueue;
import java.util.Map;
import java.util.Objects;
import java.util.TreeMap;

/**
 * A Java object that refers to a native one.
 *
 * <p>A peer holds one reference to its native object until it is closed. Several peers may refer to one object, which
 * lives while a peer or a native owner refers to it, so peers can be closed in any order. Every method of a closed peer
 * throws a {@link NativeException}, except {@link #close()} and {@link #isClosed()}.
 *
 * <p>A peer that is garbage collected without being closed is lost. Its reference is released when the next peer is
 * made, on the thread that makes it. This affects no other thread, because only what has no other owner is destroyed.
 * Close peers all the same: it is not known when the collector runs.
 *
 * <p>Peers are not synchronised: calls on one scene, with everything that belongs to it, must come from one thread at a
 * time. The page {@code docs/threads.md} describes what that covers.
 */
public abstract class NativePeer implements AutoCloseable {
    /** The collector enqueues the registrations of lost peers here. */
    private static final ReferenceQueue<NativePeer> LOST = new ReferenceQueue<>();

    /**
     * Lost peers whose release failed before it began, because the stack was exhausted; a list, guarded by the ring's
     * lock.
     */
    private static volatile Registration postponed;

    /** Address of the native handle, 0 while there is none. Only native code reads and writes it. */
    private long handle;

    /** Address of the native object, which stays here when the peer is closed. Native code alone writes it. */
    private long object;

    /** What remains of this peer when it is lost; null once it has been closed. Native code reads it. */
    private Registration registration;

    /** Loads the library at the first use, and releases lost peers. */
    protected NativePeer() {
        NativeLibrary.ensureLoaded();
        releaseAllLost();
        // Registered before it has a handle, so that native code only stores numbers, which cannot fail halfway.
        registration = new Registration(this);
        registration.enter();
    }

    /**
     * Whether the peer has been closed.
     *
     * @return true after {@link #close()}
     */
    public final boolean isClosed() {
        return handle == 0;
    }

    /**
     * Releases the reference to the native object. Closing a closed peer does nothing. A call that ends with a
     * {@link StackOverflowError} has either closed the peer or left it open; it may be repeated.
     */
    @Override
    public final void close() {
        if (registration != null) {
            cleanup();
            if (handle == 0) {
                Registration own = registration;
                registration = null;
                own.withdraw();
            }
        }
    }

    /**
     * {@return a number that all open peers of one native object have in common and no peer of another object has}
     *
     * <p>An object that is made after the peer has been closed may have the same number.
     */
    protected final long objectNumber() {
        return object;
    }

    /** Calls the native that releases the handle of this family of peers. */
    protected abstract void cleanup();

    /**
     * Refuses a peer that cannot be an argument.
     *
     * @param <T> the class of the peer
     * @param peer the argument
     * @param name the name of the argument, for the message
     * @return the peer
     * @throws NullPointerException if the peer is null
     * @throws IllegalStateException if the peer is closed
     */
    public static <T extends NativePeer> T requireOpen(T peer, String name) {
        Objects.requireNonNull(peer, name);
        if (peer.isClosed()) {
            throw new IllegalStateException("The peer is closed: " + name);
        }
        return peer;
    }

    /**
     * How many peers are open, for tests that look for leaks. Lost peers count until they are released.
     *
     * @return the number of open peers by the simple name of their class; classes without open peers are missing
     */
    public static Map<String, Integer> countOpen() {
        Map<String, Integer> counts = new TreeMap<>();
        synchronized (Registration.RING) {
            for (Registration at = Registration.RING.next; at != Registration.RING; at = at.next) {
                if (at.handle != 0) {
                    counts.merge(at.type.getSimpleName(), 1, Integer::sum);
                }
            }
        }
        return counts;
    }

    private static void releaseAllLost() {
        for (Registration lost = nextLost(); lost != null; lost = nextLost()) {
            try {
                releaseLost(lost);
                lost.withdraw();
            } finally {
                if (lost.handle != 0) {
                    synchronized (Registration.RING) {
                        lost.nextPostponed = postponed;
                        postponed = lost;
                    }
                }
            }
        }
    }

    private static Registration nextLost() {
        if (postponed != null) {
            synchronized (Registration.RING) {
                Registration first = postponed;
                if (first != null) {
                    postponed = first.nextPostponed;
                    return first;
                }
            }
        }
        return (Registration) LOST.poll();
    }

    /**
     * What remains of a peer after it has been lost. A ring of all registrations keeps them alive. It is changed by
     * field assignments only: a call in between could fail when the stack is exhausted and leave the ring broken.
     */
    private static final class Registration extends PhantomReference<NativePeer> {
        /** Start and end of the ring, and its lock. */
        private static final Registration RING = new Registration(null);

        private final Class<?> type;

        /** The number of the peer's handle, 0 while it has none. Native code writes it. */
        private long handle;

        private Registration previous = this;
        private Registration next = this;
        private Registration nextPostponed;

        Registration(NativePeer peer) {
            super(peer, LOST);
            this.type = peer == null ? null : peer.getClass();
        }

        void enter() {
            synchronized (RING) {
                next = RING.next;
                previous = RING;
                next.previous = this;
                RING.next = this;
            }
        }

        void withdraw() {
            synchronized (RING) {
                previous.next = next;
                next.previous = previous;
                previous = this;
                next = this;
            }
        }
    }

    private static native void releaseLost(Registration lost);
}
