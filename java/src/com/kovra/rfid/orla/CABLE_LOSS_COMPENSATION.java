package com.kovra.rfid.orla;

/** Cable loss of one antenna (class name chosen by this SDK). */
public class CABLE_LOSS_COMPENSATION {
    public short antennaID;
    public float cableLengthInFt;
    public float cableLossPer100Ft;
}
