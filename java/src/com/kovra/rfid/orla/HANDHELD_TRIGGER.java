package com.kovra.rfid.orla;

/** Start or stop on a handheld trigger event, with a time-out. */
public class HANDHELD_TRIGGER {
    public HANDHELD_TRIGGER_EVENT_TYPE handheldEvent = HANDHELD_TRIGGER_EVENT_TYPE.HANDHELD_TRIGGER_PRESSED;
    /** Time-out in milliseconds. */
    public int timeoutMilliseconds;
}
