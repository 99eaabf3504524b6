package com.kovra.rfid.orla;

/** Start after a distance. */
public class DISTANCE_TRIGGER {
    public int value;
}
