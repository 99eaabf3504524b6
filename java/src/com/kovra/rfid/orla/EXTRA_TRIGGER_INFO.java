package com.kovra.rfid.orla;

/** Up to seven further start and seven further stop triggers; unused entries stay null. */
public class EXTRA_TRIGGER_INFO {
    /** Number of entries of each array; the reader reads exactly this many. */
    public static final int MAX_EXTRA_TRIGGERS = 7;

    public START_TRIGGER[] startTrigger = new START_TRIGGER[MAX_EXTRA_TRIGGERS];
    public STOP_TRIGGER[] stopTrigger = new STOP_TRIGGER[MAX_EXTRA_TRIGGERS];
}
