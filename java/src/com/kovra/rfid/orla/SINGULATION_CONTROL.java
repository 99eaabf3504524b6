package com.kovra.rfid.orla;

/**
 * How an antenna singulates tags (class name chosen by this SDK). Setting reads session; getting writes
 * enumSession.
 */
public class SINGULATION_CONTROL {
    public SESSION session = SESSION.SESSION_S0;
    public short tagPopulation;
    public short tagTransitTimeMilliseconds;
    public STATE_AWARE_SINGULATION_ACTION stateAwareSingulationAction = new STATE_AWARE_SINGULATION_ACTION();
    /** Filled by RFID_GetSingulationControl. */
    public short enumSession;
}
