package com.kovra.rfid.orla;

/**
 * How an antenna singulates tags (class name chosen by this SDK). Setting reads session; getting writes
 * enumSession.
 */
public class SINGULATION_CONTROL {
    /** Gen2 session, sent by a set; a get writes enumSession instead. Must not be null. */
    public SESSION session = SESSION.SESSION_S0;
    /** Expected number of tags in the field. */
    public short tagPopulation;
    /** Time a tag stays in the field, in milliseconds. */
    public short tagTransitTimeMilliseconds;
    /** Must not be null. */
    public STATE_AWARE_SINGULATION_ACTION stateAwareSingulationAction = new STATE_AWARE_SINGULATION_ACTION();
    /** Filled by RFID_GetSingulationControl. */
    public short enumSession;
}
