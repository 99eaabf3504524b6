package com.kovra.rfid.orla;

/** Start at a time of day, then every period. */
public class TIMELAPSE_START_TRIGGER {
    public TIMEOFDAY startTime = new TIMEOFDAY();
    public int period;
}
