package com.kovra.rfid.orla;

/**
 * Parameters of a stop trigger; the member used depends on the trigger type. Object members are optional:
 * when the one of the chosen type is null, the trigger goes out without its values.
 */
public class STOP_TRIGGER_VALUE {
    /** Duration in milliseconds. */
    public int duration;
    public GPI_TRIGGER gpi;
    public TRIGGER_WITH_TIMEOUT tagObservation;
    public TRIGGER_WITH_TIMEOUT numAttempts;
    public HANDHELD_TRIGGER handheld;
    public TIMELAPSE_STOP_TRIGGER timelapse;
}
