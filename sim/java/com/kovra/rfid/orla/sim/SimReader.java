package com.kovra.rfid.orla.sim;

import com.kovra.rfid.orla.OrlaLibrary;

/**
 * Test access to the simulated reader's tag side: the tag population in its
 * field, GPI inputs, reader events, and counters that show what the library
 * left behind.
 *
 * <p>The tag text format is one tag a line, '#' starting a comment, fields
 * KEY=value separated by blanks: EPC=hex (required, whole 16-bit words),
 * TID=hex, USER=hex, ACCESS=8 hex digits, KILL=8 hex digits, XPC=1 to 8 hex
 * digits, ANT=1,3 (antennas 1 to 4 whose field holds the tag; default 1),
 * RSSI=-52 (dBm; one value, or one per antenna of ANT; default -50), EAS=0|1.
 *
 * <p>Reader handles are those the simulated connection issued; a handle that
 * is not an open session throws {@link IllegalArgumentException}.
 *
 * <p>The simulator is loaded as {@link SimControl} says.
 */
public final class SimReader {
  static {
    OrlaLibrary.load();
  }

  private SimReader() {}

  /**
   * Replaces the tag population by the tags of the text. Returns null, or the
   * problem ("line 3: bad hex digit in EPC") and keeps the population as it was.
   */
  public static native String loadTags(String text);

  /** Puts back the built-in population of two dozen tags. */
  public static native void useBuiltInTags();

  /** Number of tags in the population. */
  public static native int tagCount();

  /**
   * A GPI port of the reader changes state: raises a GPI event (port and
   * state as its data) and fires GPI start and stop triggers.
   */
  public static native void setGpi(long reader, int port, boolean state);

  /**
   * Raises an event of a type (0 to 15) on the reader, as if the reader had
   * signalled it: the registered event object is set and RFID_GetEventData
   * returns the data (cut to 16 bytes, 1088 for type 11).
   */
  public static native void raiseEvent(long reader, int type, byte[] data);

  /** Tag records the reader handed out and that were not handed back yet. */
  public static native int liveTagRecords(long reader);

  /** Reads waiting in the reader's tag buffer. */
  public static native int bufferedReads(long reader);

  /** Seen times of later tag records in the up-time form (true) or UTC (false, the default). */
  public static native void useUpTime(long reader, boolean upTime);

  /**
   * Whether calls are checked against the reader's capabilities (antenna IDs
   * 1 to 4, indices within its power, sensitivity, frequency and RF mode
   * tables): a call beyond them gets status 2 and a last error that says why.
   * By default a recording simulator does not check and one that does not
   * record does; this decides until {@link SimControl#reset()}.
   */
  public static native void checkCapabilities(boolean on);

  /**
   * Replaces the scenario (when tags enter and leave the field, and on which
   * antennas): one window a line, {@code EPC=hex AT=from-to [EVERY=ms]
   * [ANT=1,3] [RSSI=-55]}, times in milliseconds of the field's time (25 ms
   * a round). An empty text: every tag always in its field. Returns null, or
   * the problem, and keeps the scenario as it was.
   */
  public static native String loadScenario(String text);

  /** Reads per second a reader manages at most (800 by default); 0: no limit. */
  public static native void readRate(int perSecond);

  /**
   * Fast mode: rounds follow one another at once instead of 25 ms apart; the
   * field's time still advances 25 ms a round, so a scenario plays alike.
   */
  public static native void fastMode(boolean fast);

  /**
   * Plays the reader's field again from its start (field time 0, every
   * antenna from its first tag) with the seed of its random choices: the
   * same seed gives the same reads.
   */
  public static native void seed(long reader, long seed);

  /**
   * An antenna is plugged in or pulled out: raises an antenna event (the
   * antenna, then 1 connected or 0 disconnected); a disconnected antenna
   * reads nothing.
   */
  public static native void connectAntenna(long reader, int antenna, boolean connected);

  /**
   * The reader's temperature in degrees Celsius: a temperature alarm (source
   * 0, the temperature, the level) is raised when the alarm level changes:
   * 0 below 60, 1 from 60, 2 from 70.
   */
  public static native void setTemperature(long reader, int celsius);
}
