package com.kovra.rfid.orla.sim;

import com.kovra.rfid.orla.OrlaLibrary;

/**
 * Test access to the simulated reader library: its journal of C API calls
 * and the scripts that decide what the simulated calls answer.
 *
 * <p>Every C function of the simulator records its call: the function name,
 * the raw argument values (integers zero-extended from their declared width,
 * so a 32-bit -1 reads 0xFFFFFFFFL and a 16-bit one 0xFFFFL; 64-bit values
 * as they are; pointers as their address) and deep copies of the records it
 * was given, taken at call entry, under blob names such as "connInfo" or
 * "connInfo.secConnInfo.clientCertBuff". A NULL pointer is an absent blob.
 *
 * <p>Calls of one function are counted from 0 in call order; a negative
 * index counts back from the last call (-1 is the last). Asking for a call
 * that was not made throws {@link IllegalArgumentException}.
 *
 * <p>The simulator is loaded with the JNI library, by
 * {@link OrlaLibrary#load()}: from orla-sim.jar, or from the files that the
 * system properties "orla.sim" and "orla.lib" name (absolute or relative to
 * the working directory).
 */
public final class SimControl {
  static {
    OrlaLibrary.load();
  }

  private SimControl() {}

  /**
   * Clears the journal, the dropped count, the scripts, the allocations and every session, then
   * all reader state. Keeps the recording switch and the record capacity.
   */
  public static native void reset();

  /**
   * Switches recording of calls into the journal on or off. Off by default (on when the
   * environment has HALYARD_SIM_RECORD=1 as the library loads); scripts apply either way.
   */
  public static native void record(boolean on);

  /**
   * How many calls the journal keeps (1,000,000 by default); later calls are dropped and counted.
   * A negative capacity throws IllegalArgumentException.
   */
  public static native void recordCapacity(int entries);

  /** Calls dropped since the last reset because the journal was at its capacity. */
  public static native long droppedCalls();

  /** An empty native method: the cost of a bare JNI call. */
  public static native void nop();

  /** Number of recorded calls of fn; 0 for a function never called (or unknown). */
  public static native int count(String fn);

  /** Function names of every recorded call, in call order. */
  public static native String[] calls();

  /** Raw argument values of a call. */
  public static native long[] args(String fn, int index);

  /**
   * A blob of a call: the bytes copied at call entry, or null when the
   * pointer was NULL. Throws IllegalArgumentException when the call or the
   * blob name does not exist, IllegalStateException when the pointer was not
   * NULL but its memory could not be read.
   */
  public static native byte[] blob(String fn, int index, String name);

  /** Names of the blobs a call recorded, sorted. */
  public static native String[] blobNames(String fn, int index);

  /** Status that every later call of fn returns, until reset. */
  public static native void setStatus(String fn, int status);

  /** Status that the next call of fn returns, once; queued ones go first, in order. */
  public static native void queueStatus(String fn, int status);

  /**
   * Bytes that fn writes into its out-parameters, laid out across them in
   * their order and at their sizes (a record at its full size); what the
   * bytes do not cover is zeroed. Outputs are written whatever the status.
   */
  public static native void setOutput(String fn, byte[] bytes);

  /** Pointer result of fn (such as a wide text), e.g. an address from {@link #alloc}. */
  public static native void setPointer(String fn, long address);

  /** Copies bytes into memory that stays valid until reset; returns its address. */
  public static native long alloc(byte[] bytes);

  /** A NUL-terminated wide string (4 bytes a character) valid until reset. */
  public static long allocWide(String s) {
    return alloc(Bytes.wide(s));
  }

  /** Reads n bytes at an address; throws IllegalArgumentException if they are not readable. */
  public static native byte[] read(long address, int n);
}
