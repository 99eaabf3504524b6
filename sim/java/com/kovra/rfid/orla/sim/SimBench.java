package com.kovra.rfid.orla.sim;

import com.kovra.rfid.orla.TAG_DATA;

/**
 * The floors the benchmark measures the library against, in the simulator's library: what a
 * native cannot avoid doing, so that a ratio to it shows what the library adds.
 */
public final class SimBench {
  static {
    // The natives are in the simulator's library, which initialising SimControl loads.
    try {
      Class.forName(SimControl.class.getName(), true, SimBench.class.getClassLoader());
    } catch (ClassNotFoundException e) {
      throw new ExceptionInInitializerError(e);
    }
  }

  private SimBench() {}

  /**
   * A JNI native that calls an empty C function through the dynamic linker, as a forwarder
   * reaches the reader API: the floor of a forwarder. Returns 0.
   */
  public static native int callEmpty(int handle);

  /** Nanoseconds that calls of RFID_StopInventory take inside the simulator itself, no JNI. */
  public static native long timeStopInventory(int handle, int calls);

  /**
   * The tag writer's floor, for each of the first count tags: the class and field lookups and the
   * field sets of writing one tag (identifier, memory bank data, UTC seen times, no operation
   * result, GPS or location), with fixed strings in place of rendered ones, each tag fetched from
   * the array as rfid_GetReadTags fetches it. Every number field gets value.
   */
  public static native void writeTagsFloor(TAG_DATA[] tags, int count, int value);
}
