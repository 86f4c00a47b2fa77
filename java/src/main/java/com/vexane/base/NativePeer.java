package com.vexane.base;

import java.lang.ref.PhantomReference;
import java.lang.ref.ReferenceQueue;
import java.util.Map;
import java.util.Objects;
import java.util.Set;
import java.util.TreeMap;
import java.util.concurrent.ConcurrentHashMap;

/**
 * A Java object that stands for a native one.
 *
 * <p>A peer holds a share in its native object until it is closed. Several peers may stand for one object, which lives
 * while any peer or any native owner holds it, so peers can be closed in any order. A closed peer throws a
 * {@link NativeException} from every method but {@link #close()} and {@link #isClosed()}.
 *
 * <p>A peer that is dropped without being closed gives its share back when the garbage collector has found it and the
 * next peer is made: native destructors take no lock, so they run on the thread that makes peers, never on a thread of
 * the collector. Close peers all the same; how long the collector takes is not known.
 *
 * <p>Peers are not synchronised: calls on one scene must come from one thread at a time.
 */
public abstract class NativePeer implements AutoCloseable {
    private static final ReferenceQueue<NativePeer> LOST = new ReferenceQueue<>();

    /** The shares of all open peers; also what keeps the references themselves alive. */
    private static final Set<Share> SHARES = ConcurrentHashMap.newKeySet();

    /** Address of the native handle, 0 while there is none. Native code reads it directly. */
    private long handle;

    private Share share;

    /** Loads the library at the first use, and gives back the shares of lost peers. */
    protected NativePeer() {
        NativeLibrary.ensureLoaded();
        for (Share lost = (Share) LOST.poll(); lost != null; lost = (Share) LOST.poll()) {
            if (SHARES.remove(lost)) {
                releaseLost(lost.handle);
            }
        }
    }

    /**
     * Whether the peer has been closed.
     *
     * @return true after {@link #close()}
     */
    public final boolean isClosed() {
        return handle == 0;
    }

    /** Gives the share in the native object back. Closing a closed peer does nothing. */
    @Override
    public final void close() {
        if (handle != 0) {
            cleanup();
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
        for (Share share : SHARES) {
            counts.merge(share.type.getSimpleName(), 1, Integer::sum);
        }
        return counts;
    }

    /** Called by native code when it stores or clears the handle. */
    private void setHandle(long newHandle) {
        if (share != null) {
            SHARES.remove(share);
            share.clear();
            share = null;
        }
        handle = newHandle;
        if (newHandle != 0) {
            share = new Share(this, newHandle);
            SHARES.add(share);
        }
    }

    /** What is known of a peer after it has been lost. */
    private static final class Share extends PhantomReference<NativePeer> {
        private final Class<?> type;
        private final long handle;

        Share(NativePeer peer, long handle) {
            super(peer, LOST);
            this.type = peer.getClass();
            this.handle = handle;
        }
    }

    private static native void releaseLost(long handle);
}
