package com.kovra.rfid.orla;

/** Parameters of a start trigger; the member used depends on the trigger type. */
public class START_TRIGGER_VALUE {
    public PERIODIC_TRIGGER periodic = new PERIODIC_TRIGGER();
    public GPI_TRIGGER gpi = new GPI_TRIGGER();
    public HANDHELD_TRIGGER handheld = new HANDHELD_TRIGGER();
    public TIMELAPSE_START_TRIGGER timelapse = new TIMELAPSE_START_TRIGGER();
    public DISTANCE_TRIGGER distance = new DISTANCE_TRIGGER();
}
