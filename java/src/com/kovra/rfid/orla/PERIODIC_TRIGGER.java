package com.kovra.rfid.orla;

/** Start every periodMilliseconds from startTime. */
public class PERIODIC_TRIGGER {
    public int periodMilliseconds;
    public SYSTEMTIME startTime = new SYSTEMTIME();
}
