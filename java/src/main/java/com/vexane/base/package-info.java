/**
 * What all peers share: the native object of a peer, its failures, and the native libraries.
 *
 * <p>Applications meet this package at three points:
 *
 * <pre>{@code
 * NativeLibrary.load(Path.of("lib"));         // only for libraries that are not in the jar
 * try (Scene scene = new Scene()) {           // a NativePeer, which has to be closed
 *     ...
 * } catch (NativeException e) {               // a failure that native code has reported
 *     log(e.getKey(), e.getDetail());
 * }
 * }</pre>
 *
 * <ul>
 *   <li>{@link NativePeer} is the root of all classes with a native object. It holds one reference to the object, and
 *       {@link NativePeer#close()} releases it. Several peers may refer to one object. Its documentation has the rules
 *       for peers that are not closed.
 *   <li>{@link NativeException} is the one exception that native code throws. Methods check their arguments first and
 *       throw exceptions of the Java library, such as {@link NullPointerException} for null and
 *       {@link IllegalStateException} for a closed peer.
 *   <li>{@link NativeEnum} is what enumerations have in common whose constants native code knows by number.
 *   <li>{@link NativeLibrary} finds and loads the libraries. The first peer that is made loads them; if that fails, the
 *       message lists every location tried.
 * </ul>
 *
 * <p>No class here starts a thread. {@link NativeLibrary} may be called from any thread; peers follow the rules of
 * their packages.
 */
package com.vexane.base;
