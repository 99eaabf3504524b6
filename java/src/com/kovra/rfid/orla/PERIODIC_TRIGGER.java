package com.kovra.rfid.orla;

/** Start every periodMilliseconds from startTime. */
public class PERIODIC_TRIGGER {
    /** Period in milliseconds. */
    public int periodMilliseconds;
    /** First start; must not be null. */
    public SYSTEMTIME startTime = new SYSTEMTIME();
}
