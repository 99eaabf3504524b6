package com.kovra.rfid.orla;

/**
 * Power negotiation state (class name chosen by this SDK). Setting reads status; getting writes
 * powernegstate.
 */
public class POWER_NEGOTIATION_STATE {
    public boolean status;
    public boolean powernegstate;
}
