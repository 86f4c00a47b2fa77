package com.vexane.base;

import java.lang.ref.PhantomReference;
import java.lang.ref.ReferenceQueue;
import java.util.Map;
import java.util.Objects;
import java.util.TreeMap;

/**
 * A Java object that stands for a native one.
 *
 * <p>A peer holds a share in its native object until it is closed. Several peers may stand for one object, which lives
 * while any peer or any native owner holds it, so peers can be closed in any order. A closed peer throws a
 * {@link NativeException} from every method except {@link #close()} and {@link #isClosed()}.
 *
 * <p>A lost peer, dropped without being closed, gives its share back when the garbage collector has found it and the
 * next peer is made, on the thread that makes it. This disturbs no other thread: what goes with the share is owned by
 * nothing else. Close peers all the same; how long the collector takes is not known.
 *
 * <p>Peers are not synchronised: calls on one scene, with all that belongs to it, must come from one thread at a time.
 * The page docs/threads.md says what that covers.
 */
public abstract class NativePeer implements AutoCloseable {
    /** Where the collector puts the shares of lost peers. */
    private static final ReferenceQueue<NativePeer> LOST = new ReferenceQueue<>();

    /** Lost shares whose release ended before it began, at the end of the stack; chained, guarded by the ring's lock. */
    private static volatile Share postponed;

    /** Address of the native handle, 0 while there is none. Native code alone reads and writes it. */
    private long handle;

    /** What remains of this peer when it is lost; null once the peer has been closed. Native code reads it. */
    private Share share;

    /** Loads the library at the first use, and gives back the shares of lost peers. */
    protected NativePeer() {
        NativeLibrary.ensureLoaded();
        releaseAllLost();
        // Registered before it has a handle: native code then only stores numbers, which cannot fail half-way.
        share = new Share(this);
        share.register();
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
     * Gives the share in the native object back. Closing a closed peer does nothing. A call that ends with a
     * {@link StackOverflowError} has either closed the peer or left it open; it may be repeated.
     */
    @Override
    public final void close() {
        if (share != null) {
            cleanup();
            if (handle == 0) {
                Share own = share;
                share = null;
                own.withdraw();
            }
        }
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
     * How many peers are open, for tests that look for leaks. Lost peers count until their share has been given back.
     *
     * @return the number of open peers by the simple name of their class; classes without open peers are missing
     */
    public static Map<String, Integer> countOpen() {
        Map<String, Integer> counts = new TreeMap<>();
        synchronized (Share.RING) {
            for (Share share = Share.RING.next; share != Share.RING; share = share.next) {
                if (share.handle != 0) {
                    counts.merge(share.type.getSimpleName(), 1, Integer::sum);
                }
            }
        }
        return counts;
    }

    private static void releaseAllLost() {
        for (Share lost = nextLost(); lost != null; lost = nextLost()) {
            try {
                releaseLost(lost);
                lost.withdraw();
            } finally {
                if (lost.handle != 0) {
                    synchronized (Share.RING) {
                        lost.nextPostponed = postponed;
                        postponed = lost;
                    }
                }
            }
        }
    }

    private static Share nextLost() {
        if (postponed != null) {
            synchronized (Share.RING) {
                Share first = postponed;
                if (first != null) {
                    postponed = first.nextPostponed;
                    return first;
                }
            }
        }
        return (Share) LOST.poll();
    }

    /**
     * What is known of a peer after it has been lost. The ring of all shares keeps them alive; it is closed by field
     * stores alone, since a call inside could fail at the end of the stack and leave the ring torn.
     */
    private static final class Share extends PhantomReference<NativePeer> {
        /** Beginning and end of the ring, and its lock. */
        private static final Share RING = new Share(null);

        private final Class<?> type;

        /** The number of the peer's handle, 0 while it has none. Native code writes it. */
        private long handle;

        private Share previous = this;
        private Share next = this;
        private Share nextPostponed;

        Share(NativePeer peer) {
            super(peer, LOST);
            this.type = peer == null ? null : peer.getClass();
        }

        void register() {
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

    private static native void releaseLost(Share lost);
}
