package com.kovra.rfid.orla;

/** Stop after n tag observations or n attempts, or after the time-out. */
public class TRIGGER_WITH_TIMEOUT {
    /** Number of tag observations or of attempts. */
    public short n;
    /** Time-out in milliseconds. */
    public int timeoutMilliseconds;
}
