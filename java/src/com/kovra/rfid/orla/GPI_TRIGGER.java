package com.kovra.rfid.orla;

/** Start or stop on a GPI port event, with a time-out. */
public class GPI_TRIGGER {
    /** GPI port. */
    public short portNumber;
    /** The port state that triggers. */
    public boolean eventInfo;
    /** Time-out in milliseconds. */
    public int timeoutMilliseconds;
}
