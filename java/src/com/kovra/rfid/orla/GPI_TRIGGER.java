package com.kovra.rfid.orla;

/** Start or stop on a GPI port event, with a time-out. */
public class GPI_TRIGGER {
    public short portNumber;
    /** The port state that triggers. */
    public boolean eventInfo;
    public int timeoutMilliseconds;
}
