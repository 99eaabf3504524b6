package com.kovra.rfid.orla;

/** Power negotiation status of the reader (class name chosen by this SDK). */
public class POWER_NEGOTIATION_STATUS {
    public short enumMode;
}
