package com.kovra.rfid.orla;

/** Stop a time-lapse operation. */
public class TIMELAPSE_STOP_TRIGGER {
    public int totalDuration;
    public int periodicDuration;
}
