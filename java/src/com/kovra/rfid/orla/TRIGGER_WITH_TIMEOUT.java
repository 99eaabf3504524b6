package com.kovra.rfid.orla;

/** Stop after n tag observations or n attempts, or after the time-out. */
public class TRIGGER_WITH_TIMEOUT {
    public short n;
    public int timeoutMilliseconds;
}
