package com.kovra.rfid.orla;

/** Cable loss of one antenna (class name chosen by this SDK). */
public class CABLE_LOSS_COMPENSATION {
    public short antennaID;
    /** Cable length in feet. */
    public float cableLengthInFt;
    /** Cable loss per 100 feet of cable. */
    public float cableLossPer100Ft;
}
